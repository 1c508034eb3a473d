#include "laufanwendung.h"

#include <QStringList>

namespace varnoth::pruefung {

namespace {

QStringList warnungen;

void BeiLogzeile(QtMsgType art, const QMessageLogContext& /*woher*/, const QString& text) {
    if (art != QtDebugMsg && art != QtInfoMsg && !text.contains("This plugin does not support"))
        warnungen.append(text);
}

} // namespace

Laufanwendung::Umfeld::Umfeld() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("HOME", heim.path().toUtf8());
}

Laufanwendung::Laufanwendung(int& argc, char** argv) : anwendung(argc, argv) {
    QApplication::setQuitOnLastWindowClosed(false);
}

void SammleWarnungen() {
    qInstallMessageHandler(BeiLogzeile);
}

std::string UnerwarteteWarnungen() {
    return warnungen.isEmpty() ? std::string() : "unexpected warning: " + warnungen.join("; ").toStdString();
}

} // namespace varnoth::pruefung
