// What the menu commands of the main window do.

#include "aktionen.h"
#include "aufzeichnungsablauf.h"
#include "busablauf.h"
#include "darstellungsmenue.h"
#include "einstellungen.h"
#include "ereignisablauf.h"
#include "ereignisse.h"
#include "erscheinungsbild.h"
#include "frmEinzelwerteLesenSchreiben.h"
#include "frmInfo.h"
#include "frmInitHardware.h"
#include "frmMain.h"
#include "frmResetHardware.h"
#include "frmSimulation.h"
#include "frmVerlauf.h"
#include "konfigurationsbefehle.h"
#include "letztedateien.h"
#include "lokalisiereform.h"
#include "messablauf.h"
#include "qttexte.h"
#include "schnittstelle.h"
#include "sicherungsablauf.h"
#include "strahlablauf.h"
#include "texte.h"
#include "trace.h"
#include "transaktionen.h"
#include "ui_frmMain.h"
#include "umgebung.h"
#include "verbindungsablauf.h"
#include "vergleichsablauf.h"
#include "werkzeugleiste.h"
#include "wiedergabeablauf.h"
#include "wiedergaberegel.h"

#include <QAction>
#include <QMenu>

namespace varnoth {

/// The user has ended the program while the command waited for live data to stop: no dialog may open now.
bool frmMain::IstZuSpaet(Befehl befehl) const {
    return Beendet() && befehl != Befehl::Beenden && ZeigtFenster(befehl);
}

void frmMain::FuehreAus(Befehl befehl, int index) {
    const Befehlszeile* const zeile = ZeileZu(befehl);
    if (zeile == nullptr || IstZuSpaet(befehl))
        return;
    MerkeBefehl(*zeile, index);
    if (VerlaesstWiedergabe(befehl))
        BeendeWiedergabe();
    zeile->tut(*this, index);
}

/// By the id of its button's text or, where it has none, of its menu item's, so that it is told later in
/// whatever language is in use.
void frmMain::MerkeBefehl(const Befehlszeile& zeile, int index) const {
    const auto* const aktion =
        findChild<QAction*>(QString::fromStdString(Aktionsname(zeile, index - zeile.ersterIndex)));
    Ereignis ereignis{
        .art = Ereignisart::Befehl, .alt = static_cast<std::int32_t>(zeile.befehl), .neu = zeile.textId};
    if (ereignis.neu == 0 && aktion != nullptr) {
        ereignis.neu = aktion->property("Tag").toInt();
        ereignis.text = aktion->text().toStdString();
    }
    modEreignisse::Merke(ereignis);
}

void frmMain::MenuAusführen() {
    StelleUebergebeneAn();
    if (!befehle.Wartet())
        return;
    befehle.FuehreAus(*this);
    ZeigeWillkommen();
    vergleich->Erneuere();
    sicherungen->Erneuere();
    verbindung->Erneuere();
}

void frmMain::mnuBeenden_Click() {
    befehle.Klick(Befehl::Beenden);
}

void frmMain::mnuMessdatenVisualisierenStop_Click() {
    befehle.Klick(Befehl::VisualisierenStop);
}

void frmMain::mnuOeffnen_Click() {
    befehle.Klick(Befehl::KonfigurationOeffnen);
}

void frmMain::SubOeffnen() {
    ablauf->Oeffne();
}

void frmMain::LadeDatei(const std::string& pfad) {
    ablauf->LadeDatei(pfad);
}

void frmMain::Autostart() {
    betrieb->Verbinde();
}

void frmMain::SubMessdatenVisualisierenStop() {
    betrieb->StoppeLiveDaten();
}

void frmMain::SubAutosendStarten() {
    betrieb->StarteAutosend();
}

void frmMain::SubBeenden() {
    if (!FrageNachSpeichern())
        return;
    modTrace::Schliesse();
    Entlade();
}

void frmMain::ZeigeAnsicht(int optikteil) {
    if (wiedergabe->Laeuft())
        return wiedergabe->ZeigeAnsicht(optikteil);
    ansichten->Zeige(optikteil, betrieb->IstLive());
}

/// The dialog of a service command, for a controller that does not send by itself and has said who it is.
template<class Dienstdialog>
void frmMain::OeffneDienst() {
    modModbus::SchreibeSteuerwert4();
    if (betrieb->Identifiziere() && !Beendet())
        Dienstdialog(this).exec();
}

void frmMain::BearbeiteEinzelwerte() {
    OeffneDienst<frmEinzelwerteLesenSchreiben>();
}

void frmMain::InitialisiereHardware() {
    OeffneDienst<frmInitHardware>();
}

void frmMain::SetzeHardwareZurueck() {
    OeffneDienst<frmResetHardware>();
}

void frmMain::SpeichereKonfiguration() {
    KonfigurationSpeichernUnter();
}

void frmMain::WaehleComPort(int nummer) {
    const bool zurueck = WechslePort(false);
    if (!zurueck && nummer == modSchnittstelle::GetComPort())
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
    menue.ZeigeFundorte();
    leiste->Lokalisiere();
    ansichten->Lokalisiere();
    sicherungen->Lokalisiere();
    vergleich->Lokalisiere();
    bus->Lokalisiere();
    aufzeichnung->Lokalisiere();
    messung->Lokalisiere();
    strahlen->Lokalisiere();
    ereignisse->Lokalisiere();
    verbindung->Lokalisiere();
    status.ZeigePort();
    ZeigeStatustext(FeldSchaltausgang, "");
    wiedergabe->Lokalisiere();
}

void frmMain::OeffneLetzteDatei(int platz) {
    const auto dateien = LetzteDateien();
    if (platz < static_cast<int>(dateien.size()))
        LadeDatei(dateien[static_cast<std::size_t>(platz)]);
}

void frmMain::VerbindeSimuliert() {
    if (WechslePort(true))
        menue.HakePort(0);
    Autostart();
}

void frmMain::ZeigeVergleich() {
    vergleich->Zeige();
}

void frmMain::LiesGeraetZumVergleich() {
    vergleich->LiesGeraet(*betrieb);
}

std::unique_ptr<Verbindungsablauf> frmMain::MacheVerbindungsablauf() {
    return std::make_unique<Verbindungsablauf>(Verbindungsablauf::Ziel{
        .klick = [this](Befehl befehl) { befehle.Klick(befehl); },
        .wartetAuf = [this](Befehl befehl) { return befehle.WartetAuf(befehl); },
        .unterbrochen = [this] { return entladen || befehle.KlickSeitBeginn(); },
        .nimmPort =
            [this](int nummer) {
                WechslePort(false);
                NimmComPort(nummer);
            },
        .amPort = [this](const std::function<void()>& tat) { leihport ? leihport(tat) : tat(); },
        .immerSimuliert = [this] { return immerSimuliert; }});
}

void frmMain::ZeigeVerbindung(bool suche) {
    verbindung->Zeige(suche);
}

void frmMain::UebernimmAnschluss() {
    verbindung->FuehreUebernahmeAus();
}

void frmMain::SucheGeraet() {
    verbindung->FuehreSucheAus();
}

void frmMain::PruefeLeitung() {
    verbindung->FuehrePruefungAus();
}

void frmMain::BieteDarstellung() {
    QMenu* const auswahl =
        MacheDarstellungsmenue(*this, erscheinungsbild->Gewaehlt(), [this](const Darstellung& gewaehlt) {
            erscheinungsbild->WendeAn(gewaehlt);
            SchreibDarstellung(DieEinstellungen(), gewaehlt);
        });
    auswahl->popup(leiste->StelleUnter(Befehl::Darstellung));
}

void frmMain::ZeigeBusprotokoll() {
    bus->Zeige();
}

void frmMain::ZeigeBericht() {
    liveDatenPassen = !strahlen->Berichte(false);
}

void frmMain::ZeigeStrahlbericht() {
    liveDatenPassen = !strahlen->Berichte(true);
}

void frmMain::ZeigeStrahlverlauf() {
    strahlen->Zeige();
}

void frmMain::BearbeiteBlankingvorschlag() {
    strahlen->BearbeiteVorschlag();
}

std::unique_ptr<Aufzeichnungsablauf> frmMain::MacheAufzeichnungsablauf() {
    QAction& knopf = Aktion(*this, QStringLiteral("tlbAufzeichnung"));
    knopf.setCheckable(true);
    messung->SetzeNotizhoerer([this](Zeit uhr, Systemzeit zeit, const std::string& text) {
        aufzeichnung->Notiere(uhr, zeit, text);
        modEreignisse::Merke({.art = Ereignisart::Notiz, .zeit = zeit, .laufzeit = uhr, .text = text});
    });
    return std::make_unique<Aufzeichnungsablauf>(
        Aufzeichnungsablauf::Ziel{.leiste = *ui->sbStatusBar,
                                  .zeige = [this] { befehle.Klick(Befehl::Aufzeichnungen); },
                                  .laeuft = [&knopf](bool laeuft) { knopf.setChecked(laeuft); },
                                  .speicher = &messung->Speicher()});
}

void frmMain::SchalteAufzeichnung() {
    aufzeichnung->Schalte();
}

void frmMain::ZeigeAufzeichnungen() {
    aufzeichnung->Zeige();
}

void frmMain::ZeigeEreignisse() {
    ereignisse->Zeige();
}

void frmMain::ZeigeVerlauf() {
    messung->Zeige<frmVerlauf>();
}

void frmMain::ZeigeSicherungen() {
    sicherungen->Zeige();
}

void frmMain::OeffneSicherung() {
    ablauf->LadeDatei(sicherungen->ZuOeffnende(), Dateirolle::Vorlage);
}

void frmMain::ZeigeSimulation() {
    frmSimulation(this).exec();
}

void frmMain::ZeigeInfo() {
    frmInfo(this, einstellungsdatei).exec();
}

} // namespace varnoth
