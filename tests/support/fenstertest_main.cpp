// The main function of every test program that opens windows: an application on the offscreen platform, and a
// failed test for every warning that nobody expected.

#include "fenstertest.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <cstdio>

namespace varnoth::pruefung {

namespace {

// What the offscreen platform says of things that a window manager does; it means nothing.
const QString plattformhinweis = QStringLiteral("This plugin does not support");

QStringList erwartet;

void BeiLogzeile(QtMsgType art, const QMessageLogContext& /*woher*/, const QString& text) {
    if (art == QtDebugMsg || art == QtInfoMsg || text.contains(plattformhinweis))
        return;
    for (const QString& teil : erwartet)
        if (text.contains(teil))
            return;
    ADD_FAILURE() << "unexpected warning in the log: " << text.toStdString();
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

class ErwartungenVergessen : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo& /*test*/) override { erwartet.clear(); }
};

} // namespace

void ErwarteWarnung(const QString& teil) {
    erwartet.append(teil);
}

} // namespace varnoth::pruefung

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(varnoth::pruefung::BeiLogzeile);
    testing::UnitTest::GetInstance()->listeners().Append(new varnoth::pruefung::ErwartungenVergessen);
    return RUN_ALL_TESTS();
}
