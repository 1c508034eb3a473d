#include "anwendung.h"
#include "kommandozeile.h"
#include "systemdarstellung.h"
#include "terminal.h"
#include "texte.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>

namespace {

/// What was asked for in a terminal is answered in its language, before there is a screen or a settings file.
std::optional<QString> AuskunftImTerminal(int anzahl, char** worte) {
    QStringList liste;
    for (int i = 1; i < anzahl; ++i)
        liste += QString::fromLocal8Bit(worte[i]);
    const bool deutsch = QLocale::system().uiLanguages().value(0).startsWith(QLatin1String("de"));
    varnoth::SetzeSprachoffset(deutsch ? varnoth::Deutsch : varnoth::Englisch);
    return varnoth::Aufrufauskunft(liste);
}

} // namespace

int main(int argc, char** argv) {
    if (const auto auskunft = AuskunftImTerminal(argc, argv)) {
        varnoth::NimmTerminalDesAufrufers();
        return varnoth::SchreibeInStrom(varnoth::Strom::Ausgabe, auskunft->toStdString()) == 0 ? 0 : 1;
    }
    varnoth::FolgeImRahmenDemSystem();
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication anwendung(argc, argv);
    QApplication::setDesktopFileName(QStringLiteral("varnoth"));
    QApplication::setQuitOnLastWindowClosed(false);
    const QFileInfo programm(QApplication::applicationFilePath());
    return varnoth::Anwendung({.worte = QApplication::arguments().mid(1),
                               .programmordner = programm.absolutePath(),
                               .programmname = programm.completeBaseName()})
        .Laufe();
}
