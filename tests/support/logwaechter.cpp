#include "logwaechter.h"

#include "fenstertest.h"

#include <QStringList>
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

void UeberwacheLog() {
    qInstallMessageHandler(BeiLogzeile);
    testing::UnitTest::GetInstance()->listeners().Append(new ErwartungenVergessen);
}

} // namespace varnoth::pruefung
