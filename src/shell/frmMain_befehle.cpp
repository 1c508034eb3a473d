// What the menu commands of the main window do.

#include "ansichtstitel.h"
#include "einstellungen.h"
#include "frmDocument.h"
#include "frmEinzelwerteLesenSchreiben.h"
#include "frmHoleLichtleistenInfo.h"
#include "frmIdentifikationsAnforderung.h"
#include "frmInfo.h"
#include "frmInitHardware.h"
#include "frmKonfigurationLesenAusHardware.h"
#include "frmMain.h"
#include "frmResetHardware.h"
#include "frmSimulation.h"
#include "konfigurationsbefehle.h"
#include "lesevorgang.h"
#include "lokalisiereform.h"
#include "programmstart.h"
#include "qttexte.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "schnittstelle.h"
#include "texte.h"
#include "trace.h"
#include "transaktionen.h"
#include "ui_frmMain.h"

#include <QDir>

#include <algorithm>

namespace varnoth {

namespace {

constexpr std::int16_t TextAutosendFrage = 6003;
constexpr const char* Flasher = "Flasher.exe";

} // namespace

struct frmMain::Befehlszeile {
    Befehl befehl;
    void (*ablauf)(frmMain& fenster, int index);
};

/// The user has ended the program while the command waited for live data to stop: no dialog may open now.
bool frmMain::IstZuSpaet(Befehl befehl) const {
    return Beendet() && befehl != Befehl::Beenden && ZeigtFenster(befehl);
}

/// The dialog of a service command, for a controller that does not send by itself and has said who it is.
template<class Dienstdialog>
void frmMain::OeffneDienst() {
    modModbus::SchreibeSteuerwert4();
    if (Identifiziere() && !Beendet())
        Dienstdialog(this).exec();
}

void frmMain::FuehreAus(Befehl befehl, int index) {
    if (IstZuSpaet(befehl))
        return;
    static constexpr Befehlszeile zeilen[] = {
        {Befehl::VisualisierenStart, [](frmMain& f, int) { f.Autostart(); }},
        {Befehl::VisualisierenStop, [](frmMain& f, int) { f.SubMessdatenVisualisierenStop(); }},
        {Befehl::LichtleisteAnzeigen, [](frmMain& f, int i) { f.ZeigeLichtleiste(i); }},
        {Befehl::Beenden, [](frmMain& f, int) { f.SubBeenden(); }},
        {Befehl::Einzelwerte, [](frmMain& f, int) { f.OeffneDienst<frmEinzelwerteLesenSchreiben>(); }},
        {Befehl::FensterNebeneinander, [](frmMain& f, int) { f.Ordne(Anordnung::Nebeneinander); }},
        {Befehl::FensterUeberlappend, [](frmMain& f, int) { f.ui->mdiBereich->cascadeSubWindows(); }},
        {Befehl::FensterUntereinander, [](frmMain& f, int) { f.Ordne(Anordnung::Untereinander); }},
        {Befehl::FirmwareUpdate, [](frmMain& f, int) { AktualisiereFirmware(f); }},
        {Befehl::InitHardware, [](frmMain& f, int) { f.OeffneDienst<frmInitHardware>(); }},
        {Befehl::KonfigurationAnzeigen, [](frmMain& f, int) { f.BearbeiteKonfiguration(); }},
        {Befehl::KonfigurationOeffnen, [](frmMain& f, int) { f.SubOeffnen(); }},
        {Befehl::KonfigurationSpeichernUnter, [](frmMain&, int) { KonfigurationSpeichernUnter(); }},
        {Befehl::NeueKonfiguration, [](frmMain& f, int) { f.NeueKonfiguration(); }},
        {Befehl::UebertragenerWert, [](frmMain& f, int) { f.ui->mnuUebertragenerWert->toggle(); }},
        {Befehl::ResetHardware, [](frmMain& f, int) { f.OeffneDienst<frmResetHardware>(); }},
        {Befehl::ComPort, [](frmMain& f, int i) { f.WaehleComPort(i); }},
        {Befehl::Simulation, [](frmMain& f, int) { frmSimulation(&f).exec(); }},
        {Befehl::Hilfethemen, [](frmMain& f, int) { f.hilfe(); }},
        {Befehl::Info, [](frmMain& f, int) { f.ZeigeInfo(); }},
        {Befehl::AutosendStarten, [](frmMain& f, int) { f.SubAutosendStarten(); }},
        {Befehl::Deutsch, [](frmMain& f, int) { f.SchalteSprache(varnoth::Deutsch); }},
        {Befehl::Englisch, [](frmMain& f, int) { f.SchalteSprache(varnoth::Englisch); }},
    };
    const auto zeile = std::ranges::find(zeilen, befehl, &Befehlszeile::befehl);
    if (zeile != std::ranges::end(zeilen))
        zeile->ablauf(*this, index);
}

void frmMain::MenuAusführen() {
    befehle.FuehreAus(*this);
}

void frmMain::mnuBeenden_Click() {
    befehle.Klick(Befehl::Beenden);
}

void frmMain::mnuMessdatenVisualisierenStop_Click() {
    befehle.Klick(Befehl::VisualisierenStop);
}

void frmMain::Autostart() {
    varnoth::Autostart(*this);
}

bool frmMain::Identifiziere() {
    if (Beendet())
        return false;
    frmIdentifikationsAnforderung dialog(this);
    dialog.SetWeiter(True);
    dialog.exec();
    return dialog.GetCancel() == False;
}

bool frmMain::LiesKonfiguration() {
    frmKonfigurationLesenAusHardware dialog(this);
    dialog.SetWeiter(True);
    dialog.exec();
    if (dialog.GetCancel() != False)
        return false;
    zustand.autosendWaehlbar = AutosendWaehlbar(
        modDaten::HoleRegister(Speicherbereich::Kommunikationsdaten, kommunikation::Autosend));
    AktualisiereMenue();
    return true;
}

bool frmMain::HoleOptikteilInformation() {
    frmHoleLichtleistenInfo dialog(this);
    dialog.SetWeiter(True);
    dialog.exec();
    return dialog.GetCancel() == False;
}

void frmMain::SubMessdatenVisualisierenStop() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        const std::int32_t status = modDaten::HoleRegister(Speicherbereich::SpezifischeGeraetedaten,
                                                           spezifisch::Optikteilstatus, teil);
        SetzeTitel(teil, Titeltext(modPolling::ZustandAus(status), false));
    }
    ZeigeStatustext(FeldMeldungen, "");
    modPolling::StoppePolling();
    modModbus::SchreibeSteuerwert4();
    SetzeMessdatenMenue(2);
}

void frmMain::SubAutosendStarten() {
    const Antwort antwort = DieUmgebung().ZeigeMeldung({.text = LadeText(TextAutosendFrage),
                                                        .titel = LadeText(TextAchtung),
                                                        .symbol = Symbol::Warnung,
                                                        .knoepfe = Knoepfe::OkAbbrechen,
                                                        .abbrechenVorgegeben = true});
    if (antwort == Antwort::Ok)
        modModbus::SchreibeSteuerwert2();
}

void frmMain::SubBeenden() {
    if (!FrageNachSpeichern())
        return;
    modTrace::Schliesse();
    Entlade();
}

void frmMain::WaehleComPort(int nummer) {
    if (nummer == modSchnittstelle::GetComPort())
        return;
    NimmComPort(nummer);
    DieEinstellungen().SchreibText("Settings", "ComPort", std::to_string(nummer));
}

void frmMain::NimmComPort(int nummer) {
    modSchnittstelle::CloseCommPort();
    modSchnittstelle::SetzeComPort(static_cast<std::int16_t>(nummer));
    ZeigePort();
}

void frmMain::SchalteSprache(std::int16_t offset) {
    SetzeSprachoffset(offset);
    ZeigeSprache();
    LadeQtTexte(offset);
    DieEinstellungen().SchreibText("Settings", "Sprache", std::to_string(offset));
    LokalisiereForm(*this);
    for (frmDocument* ansicht : Fensterliste)
        ansicht->Lokalisiere();
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTitel(teil, titeltexte.at(static_cast<std::size_t>(teil)));
    ZeigeStatustext(FeldSchaltausgang, "");
}

std::string frmMain::StarteFlasher(const std::string& parameter) {
    return StarteProgramm(QDir(programmordner).filePath(QLatin1String(Flasher)),
                          QString::fromStdString(parameter));
}

void frmMain::ZeigeInfo() {
    frmInfo(this).exec();
}

} // namespace varnoth
