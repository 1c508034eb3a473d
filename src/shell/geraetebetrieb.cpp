#include "geraetebetrieb.h"

#include "ansichten.h"
#include "ansichtstitel.h"
#include "frmDocument.h"
#include "frmHoleLichtleistenInfo.h"
#include "frmIdentifikationsAnforderung.h"
#include "frmKonfigurationLesenAusHardware.h"
#include "hauptmenue.h"
#include "konfigurationsablauf.h"
#include "lesevorgang.h"
#include "programmstart.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "statusleiste.h"
#include "texte.h"
#include "transaktionen.h"
#include "umgebung.h"
#include "verbindungsanzeige.h"
#include "verbindungsauskunft.h"

#include <QDir>

#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextAutosendFrage = 6003;
constexpr const char* Flasher = "Flasher.exe";

/// Shows a dialog that goes on by itself; whether it has succeeded.
template<class Dialog>
bool Durchlaufe(QWidget& fenster) {
    Dialog dialog(&fenster);
    dialog.SetWeiter(True);
    dialog.exec();
    return dialog.GetCancel() == False;
}

} // namespace

Geraetebetrieb::Geraetebetrieb(const Hauptteile& hauptteile, const Befehlsspeicher& speicher,
                               Konfigurationsablauf& konfigurationsablauf, QString ordner)
    : teile(hauptteile), befehle(speicher), ablauf(konfigurationsablauf), programmordner(std::move(ordner)) {
    modPolling::SetzeZiel(this);
}

Geraetebetrieb::~Geraetebetrieb() {
    modPolling::SetzeZiel(nullptr);
}

void Geraetebetrieb::Verbinde() {
    teile.verbindung.SetzeVerbindet(true);
    Autostart(*this);
    teile.verbindung.SetzeVerbindet(false);
}

void Geraetebetrieb::StoppeLiveDaten() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        const std::int32_t status = modDaten::HoleRegister(Speicherbereich::SpezifischeGeraetedaten,
                                                           spezifisch::Optikteilstatus, teil);
        teile.ansichten.SetzeTitel(teil, Titeltext(modPolling::ZustandAus(status), false));
    }
    teile.status.Zeige(FeldMeldungen, "");
    modPolling::StoppePolling();
    modModbus::SchreibeSteuerwert4();
    teile.menue.SetzeLiveDaten(false);
}

bool Geraetebetrieb::LiveDatenLaufen() const {
    return modPolling::GetPollingAktiv() != False;
}

void Geraetebetrieb::SetzeLiveDatenFort() {
    if (Beendet())
        return;
    modPolling::StartePolling();
    if (LiveDatenLaufen())
        LiveDatenLaufenAn();
}

void Geraetebetrieb::LiesAbzug(QWidget& ueber, Geraeteabzug& abzug) {
    modModbus::SchreibeSteuerwert4();
    if (Beendet() || !Durchlaufe<frmIdentifikationsAnforderung>(ueber) || Beendet())
        return;
    frmKonfigurationLesenAusHardware dialog(&ueber, &abzug);
    dialog.SetWeiter(True);
    dialog.exec();
}

bool Geraetebetrieb::IstLive() const {
    return LiveDatenLaufen() && !modPolling::VerbindungVerloren();
}

void Geraetebetrieb::LiveDatenLaufenAn() {
    teile.menue.SetzeLiveDaten(true);
    AktualisiereGeraetestatus();
}

void Geraetebetrieb::StarteAutosend() {
    const Antwort antwort = DieUmgebung().ZeigeMeldung({.text = LadeText(TextAutosendFrage),
                                                        .titel = LadeText(TextAchtung),
                                                        .symbol = Symbol::Warnung,
                                                        .knoepfe = Knoepfe::OkAbbrechen,
                                                        .abbrechenVorgegeben = true});
    if (antwort == Antwort::Ok)
        modModbus::SchreibeSteuerwert2();
}

bool Geraetebetrieb::BefehlWartet() {
    return befehle.Wartet();
}

LiveAnsicht& Geraetebetrieb::Ansicht(int optikteil) {
    return teile.ansichten.Ansicht(optikteil);
}

void Geraetebetrieb::AktualisiereGeraetestatus() {
    teile.ansichten.ZeigeZustaende(IstLive());
    ZeigeLichtleistenmenue();
    if (modPolling::VerbindungVerloren())
        teile.status.Zeige(FeldSchaltausgang, "");
}

void Geraetebetrieb::ZeigeLichtleistenmenue() {
    teile.menue.FolgeStrahlenzahlen();
}

void Geraetebetrieb::ZeigeAlleOffline() {
    teile.ansichten.ZeigeAlleOffline();
    teile.menue.VerbergeAnsichten();
}

bool Geraetebetrieb::Identifiziere() {
    return !Beendet() && Durchlaufe<frmIdentifikationsAnforderung>(teile.fenster);
}

bool Geraetebetrieb::LiesKonfiguration() {
    if (!Durchlaufe<frmKonfigurationLesenAusHardware>(teile.fenster))
        return false;
    FolgeAutosendart();
    return true;
}

bool Geraetebetrieb::HoleOptikteilInformation() {
    if (!Durchlaufe<frmHoleLichtleistenInfo>(teile.fenster))
        return false;
    FolgeAutosendart(); // what the read has left open may have been read once more
    return true;
}

void Geraetebetrieb::FolgeAutosendart() {
    teile.menue.SetzeAutosendWaehlbar(AutosendWaehlbar(
        modDaten::HoleRegister(Speicherbereich::Kommunikationsdaten, kommunikation::Autosend)));
}

bool Geraetebetrieb::FrageNachKonfiguration() {
    teile.verbindung.SetzeVerbindet(false);
    return ablauf.FrageNachKonfiguration(AuskunftNachFehlschlag());
}

std::string Geraetebetrieb::StarteFlasher(const std::string& parameter) {
    return StarteProgramm(QDir(programmordner).filePath(QLatin1String(Flasher)),
                          QString::fromStdString(parameter));
}

} // namespace varnoth
