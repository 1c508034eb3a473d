// The program without a window: fits the system in, and runs one command line.

#include "abbruchsignal.h"
#include "befehlszeile.h"
#include "dateisicherungen.h"
#include "geraeteport.h"
#include "inieinstellungen.h"
#include "lauf.h"
#include "leseeinstellungen.h"
#include "programmumgebung.h"
#include "programmversion.h"
#include "prozesskonsole.h"
#include "qtumgebung.h"
#include "schnittstelle.h"
#include "sicherungen.h"
#include "startzustand.h"
#include "systemfehler.h"
#include "texte.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

using namespace varnoth;

constexpr const char* Fensterprogramm = "varnoth"; // its settings, its data folder

/// What a window would show in a box.
Antwort Melde(ctl::Konsole& konsole, const Meldung& meldung) {
    konsole.Meldung(meldung.text);
    if (!meldung.informativtext.empty())
        konsole.Meldung(meldung.informativtext);
    return meldung.knoepfe == Knoepfe::Ok ? Antwort::Ok : Antwort::Abbrechen;
}

/// The command with its data written to the last byte.
int AlsExitcode(ctl::Ende ende, ctl::Prozesskonsole& konsole) {
    if (konsole.Fehlernummer() == 0)
        return static_cast<int>(ende);
    konsole.Meldung("varnothctl: " + Systemfehler(konsole.Fehlernummer()));
    return static_cast<int>(ctl::Ende::Datei);
}

int Laufe(std::span<const std::string> worte, ctl::Prozesskonsole& konsole) {
    QtUmgebung umgebung;
    umgebung.SetzeMeldungsweg([&konsole](const Meldung& meldung) { return Melde(konsole, meldung); });
    IniEinstellungen datei(
        Einstellungspfad(QCoreApplication::applicationDirPath(), QString::fromLatin1(Fensterprogramm)));
    ctl::Leseeinstellungen einstellungen(datei);
    Dateisicherungen sicherungen(UeblicherDatenordner(), std::string(Programmversion()));
    SetzeSicherungen(&sicherungen);
    const auto port = MacheGeraeteport();
    modSchnittstelle::SetzePort(port.get());
    const ctl::Ende ende = ctl::FuehreAus(worte, konsole);
    modSchnittstelle::SetzePort(nullptr);
    SetzeSicherungen(nullptr);
    return AlsExitcode(ende, konsole);
}

} // namespace

int main(int argc, char** argv) {
    const Startzustand startzustand;
    ctl::Prozesskonsole konsole(ZeichenvorratDesNutzers());
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QCoreApplication anwendung(argc, argv);
    QCoreApplication::setApplicationName(QString::fromLatin1(Fensterprogramm));
    FangeAbbruchsignaleAb();
    const auto worte = Programmworte(argc, argv);
    SetzeSprachoffset(ctl::SpracheAus(worte, Umgebungswert));
    return Laufe(worte, konsole);
}
