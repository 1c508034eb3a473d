#include "stellen.h"

#include "zelle.h"

#include "polling.h"
#include "texte.h"
#include "transaktionen.h"

#include <QComboBox>
#include <QLineEdit>

namespace varnoth::pruefung {

namespace {

constexpr int DrittesMal = 3;
constexpr int ZweitesMal = 2;
/// Longer than the two attempts of the editor, or two of any other procedure, take.
constexpr qint64 NachZweiVersuchen = 2500;

constexpr std::int16_t TextKeineVerbindung = 7209;
constexpr std::int16_t TextVerbindungUnterbrochen = 3000;
constexpr std::int16_t TextAutosendFrage = 6003;

constexpr const char* Lesedialog = "frmKonfigurationLesenAusHardware";
constexpr const char* Schreibdialog = "frmKonfigurationSchreibenInHardware";
constexpr const char* Infodialog = "frmHoleLichtleistenInfo";
constexpr const char* Editor = "frmKonfigurationEdit";
constexpr const char* Einzelwerte = "frmEinzelwerteLesenSchreiben";
constexpr const char* Resetdialog = "frmResetHardware";
constexpr const char* Initdialog = "frmInitHardware";

bool ZeigtZahlAb(Zelle& z, const char* fenster, const char* feld, int zahl) {
    return z.betrieb.Text(fenster, feld).toInt() >= zahl;
}

bool KnopfIstFrei(const char* fenster, const char* knopf) {
    const QWidget* const sichtbares = SichtbaresFenster(fenster);
    return sichtbares != nullptr && sichtbares->findChild<QWidget*>(knopf)->isEnabled();
}

void SetzeText(const char* fenster, const char* feld, const char* text) {
    if (QWidget* const sichtbares = SichtbaresFenster(fenster))
        Kind<QLineEdit>(*sichtbares, feld).setText(text);
}

Handlung BereiteNichts(Zelle& z) {
    co_await z.regie.Bis("the main window", [&z] { return z.betrieb.HatRuhe(); });
}

Handlung BereiteLiveDaten(Zelle& z) {
    co_await z.GeheLive();
}

Handlung BereiteStehendeVerbindung(Zelle& z) {
    co_await z.GeheLive();
    co_await z.Stoppe();
}

void Verbinde(Zelle& z) {
    z.betrieb.Gib([&z] { z.betrieb.programm.Verbinde(); });
}

bool IstVerbunden(Zelle& z) {
    return z.betrieb.HatRuhe() && Betrieb::IstLive();
}

// Identification

bool IdentifikationGescheitert(Zelle& z) {
    return z.betrieb.HatRuhe() && z.HatGemeldet(TextKeineVerbindung);
}

bool IdentifikationBrauchtMehr(Zelle& z) {
    const QString verbleibend = z.betrieb.Text("frmIdentifikationsAnforderung", "lblVersuche");
    return !verbleibend.isEmpty() && verbleibend.toInt() <= 10 - ZweitesMal;
}

Handlung StarteNeu(Zelle& z) {
    z.betrieb.Waehle("mnuMessdatenVisualisierenStart");
    co_await z.regie.Nach(0);
}

// Reading the configuration

bool LesenBrauchtVieleVersuche(Zelle& z) {
    return ZeigtZahlAb(z, Lesedialog, "txtLeseversuch", DrittesMal);
}

bool LesenBrauchtMehr(Zelle& z) {
    return ZeigtZahlAb(z, Lesedialog, "txtLeseversuch", ZweitesMal);
}

// Part information: shows no attempts, only that it does not get on

bool InfoStehtStill(Zelle& z) {
    return z.betrieb.SeitGezeigt(Infodialog) > NachZweiVersuchen && !KnopfIstFrei(Infodialog, "cmdWeiter") &&
           z.betrieb.Text(Infodialog, "lblLichtleiste_0").endsWith(":  ");
}

// Writing the configuration

Handlung BereiteSchreiben(Zelle& z) {
    co_await z.GeheLive();
    z.betrieb.Waehle("mnuAnzeigeKonfiguration");
    co_await z.regie.Bis("Download in the editor", [] { return KnopfIstFrei(Editor, "cmdDownLoad"); });
    SichtbaresFenster(Editor)->findChild<QComboBox*>("cboReichweite_0")->setCurrentIndex(4);
    Klicke(Editor, "cmdDownLoad");
    co_await z.regie.Bis("the write dialog", [] { return KnopfIstFrei(Schreibdialog, "cmdStart"); });
}

void KlickeSchreiben(Zelle& /*z*/) {
    Klicke(Schreibdialog, "cmdStart");
}

bool SchreibenBrauchtVieleVersuche(Zelle& z) {
    return ZeigtZahlAb(z, Schreibdialog, "txtSchreibversuch", DrittesMal);
}

bool SchreibenBrauchtMehr(Zelle& z) {
    return ZeigtZahlAb(z, Schreibdialog, "txtSchreibversuch", ZweitesMal);
}

bool GeschriebenUndLive(Zelle& z) {
    return z.betrieb.HatRuhe() && Betrieb::IstLive() && z.betrieb.geraet.Register("specific 0 14") == 4;
}

// Polling

void MerkeDurchgaenge(Zelle& z) {
    z.durchgaengeMarke = modPolling::GetDurchgaenge();
}

bool VerbindungIstVerloren(Zelle& z) {
    return z.HatGemeldet(TextVerbindungUnterbrochen) && z.betrieb.ZeigtAlleOffline();
}

bool PolltWeiter(Zelle& z) {
    return modPolling::GetDurchgaenge() >= z.durchgaengeMarke + 2 && Betrieb::IstLive() &&
           z.betrieb.ZeigtAlleOnline();
}

// Single registers: specific 19 of the third part

Handlung BereiteDienst(Zelle& z, const char* aktion, const char* fenster) {
    co_await z.GeheLive();
    z.betrieb.Waehle(aktion);
    co_await z.regie.Bis("the service dialog", [fenster] { return SichtbaresFenster(fenster) != nullptr; });
}

Handlung BereiteEinzelwerte(Zelle& z) {
    co_await BereiteDienst(z, "mnuEinzelwerteLesenSchreiben", Einzelwerte);
    Klicke(Einzelwerte, "OptAdressOffset_1");
    Klicke(Einzelwerte, "optSubUnit_2");
    SetzeText(Einzelwerte, "txtAdresse", "19");
}

void LiesEinzelnes(Zelle& /*z*/) {
    SetzeText(Einzelwerte, "txtInhalt", "");
    Klicke(Einzelwerte, "cmdLesen");
}

bool ZeigtFragezeichen(Zelle& z) {
    return z.betrieb.Text(Einzelwerte, "txtInhalt") == "???" && KnopfIstFrei(Einzelwerte, "cmdLesen");
}

bool ZeigtInhalt(Zelle& z) {
    return z.betrieb.Text(Einzelwerte, "txtInhalt") == "&H27" && KnopfIstFrei(Einzelwerte, "cmdLesen");
}

Handlung SchliesseEinzelwerte(Zelle& z) {
    Klicke(Einzelwerte, "cmdCancel");
    co_await z.regie.Bis("the dialog to close", [&z] { return z.betrieb.HatRuhe(); });
}

// Restart

Handlung BereiteReset(Zelle& z) {
    return BereiteDienst(z, "mnuResetHardware", Resetdialog);
}

void KlickeReset(Zelle& /*z*/) {
    Klicke(Resetdialog, "cmdOK");
}

bool ResetBrauchtVieleVersuche(Zelle& z) {
    return ZeigtZahlAb(z, Resetdialog, "lblAnzahlDerVersuche", DrittesMal);
}

bool ResetBrauchtMehr(Zelle& z) {
    return ZeigtZahlAb(z, Resetdialog, "lblAnzahlDerVersuche", ZweitesMal);
}

// Factory data

Handlung BereiteWerksdaten(Zelle& z) {
    co_await BereiteDienst(z, "mnuInitHardware", Initdialog);
    SetzeText(Initdialog, "txtSeriennummer", "AB");
    SetzeText(Initdialog, "txtHauptversion", "1");
    SetzeText(Initdialog, "txtUnterversion", "5");
}

void SchreibeWerksdaten(Zelle& /*z*/) {
    Klicke(Initdialog, "cmdSchreiben");
}

bool WerksdatenBrauchenVieleVersuche(Zelle& z) {
    return ZeigtZahlAb(z, Initdialog, "txtCounter", DrittesMal);
}

bool WerksdatenBrauchenMehr(Zelle& z) {
    return ZeigtZahlAb(z, Initdialog, "txtCounter", ZweitesMal);
}

bool WerksdatenSindGeschrieben(Zelle& z) {
    constexpr int ErsteZeichen = 'A' * 256 + 'B';
    constexpr int Version = 1 * 256 + 5;
    return z.betrieb.HatRuhe() && z.betrieb.geraet.Register("global 9") == ErsteZeichen &&
           z.betrieb.geraet.Register("global 24") == Version;
}

/// A controller takes each password once: when the reply to a protected write got lost, the same write is
/// refused from then on, and the user begins anew.
Handlung SchreibeWerksdatenNeu(Zelle& z) {
    Klicke(Initdialog, "cmdCancel");
    co_await z.regie.Bis("the dialog to close", [&z] { return z.betrieb.HatRuhe(); });
    co_await BereiteWerksdaten(z);
    SchreibeWerksdaten(z);
}

// The editor's search for the controller

void OeffneEditor(Zelle& z) {
    z.betrieb.Waehle("mnuAnzeigeKonfiguration");
}

bool EditorIstOffline(Zelle& z) {
    return z.betrieb.SeitGezeigt(Editor) > NachZweiVersuchen && KnopfIstFrei(Editor, "cmdUebernehmen") &&
           !KnopfIstFrei(Editor, "cmdDownLoad");
}

bool EditorIstOnline(Zelle& /*z*/) {
    return KnopfIstFrei(Editor, "cmdDownLoad");
}

Handlung SchliesseEditor(Zelle& z) {
    Klicke(Editor, "cmdCancel");
    co_await z.regie.Bis("the editor to close", [&z] { return z.betrieb.HatRuhe(); });
}

Handlung OeffneEditorNeu(Zelle& z) {
    co_await SchliesseEditor(z);
    OeffneEditor(z);
    co_await z.regie.Bis("the editor", [] { return SichtbaresFenster(Editor) != nullptr; });
}

// Commands without a reply that anybody looks at

bool AutosendIst(Zelle& z, const char* wie) {
    return z.betrieb.HatRuhe() &&
           z.betrieb.geraet.Befehl("state").find(std::string("autosend=") + wie) != std::string::npos;
}

bool AutosendLaeuft(Zelle& z) {
    return AutosendIst(z, "on");
}

bool AutosendSteht(Zelle& z) {
    return AutosendIst(z, "off");
}

void WaehleAutosend(Zelle& z) {
    z.betrieb.Waehle("mnuAutosendStarten");
}

void BeendeAutosend(Zelle& z) {
    z.betrieb.Gib(modModbus::SchreibeSteuerwert4);
}

Handlung BereiteLaufendesAutosend(Zelle& z) {
    co_await BereiteStehendeVerbindung(z);
    z.betrieb.Gib(modModbus::SchreibeSteuerwert2);
    co_await z.regie.Bis("autosend", [&z] { return AutosendLaeuft(z); });
}

void SendeKommando09(Zelle& z) {
    z.betrieb.geraet.Befehl("stats clear");
    z.betrieb.Gib([] { modModbus::SendeFunktion09Kommando(); });
}

bool Kommando09IstAngekommen(Zelle& z) {
    return z.betrieb.HatRuhe() && z.Geraetezahl("stats", "09") == 1;
}

bool IstZurueck(Zelle& z) {
    return z.betrieb.HatRuhe();
}

template<void (*tat)(Zelle&)>
Handlung TuNochmal(Zelle& z) {
    tat(z);
    co_await z.regie.Nach(0);
}

constexpr Stelle Stellen[] = {
    {.name = "identification",
     .fenster = nullptr,
     .bereite = BereiteNichts,
     .beginne = Verbinde,
     .zeigtStoerung = IdentifikationGescheitert,
     .zeigtVersuch = IdentifikationBrauchtMehr,
     .fertig = IstVerbunden,
     .nochmal = StarteNeu,
     .verlasse = nullptr,
     .belastung = {.nur = "@17",
                   .lesen = 0,
                   .schreiben = 0,
                   .kennung = 45,
                   .amStueck = 7,
                   .abwechselnd = false,
                   .vonVorn = false,
                   .austausche = 1},
     .geduldMs = 0,
     .stoermeldung = TextKeineVerbindung,
     .frage = 0},
    {.name = "read",
     .fenster = Lesedialog,
     .bereite = BereiteNichts,
     .beginne = Verbinde,
     .zeigtStoerung = LesenBrauchtVieleVersuche,
     .zeigtVersuch = LesenBrauchtMehr,
     .fertig = IstVerbunden,
     .nochmal = nullptr,
     .verlasse = nullptr,
     .belastung = {.nur = "",
                   .lesen = 69,
                   .schreiben = 8,
                   .kennung = 0,
                   .amStueck = 40,
                   .abwechselnd = true,
                   .vonVorn = false,
                   .austausche = 12},
     .geduldMs = 0,
     .stoermeldung = 0,
     .frage = 0},
    {.name = "part info",
     .fenster = Infodialog,
     .bereite = BereiteNichts,
     .beginne = Verbinde,
     .zeigtStoerung = InfoStehtStill,
     .zeigtVersuch = nullptr,
     .fertig = IstVerbunden,
     .nochmal = nullptr,
     .verlasse = nullptr,
     .belastung = {.nur = "",
                   .lesen = 7,
                   .schreiben = 8,
                   .kennung = 0,
                   .amStueck = 15,
                   .abwechselnd = false,
                   .vonVorn = false,
                   .austausche = 8},
     .geduldMs = 0,
     .stoermeldung = 0,
     .frage = 0},
    {.name = "write",
     .fenster = nullptr,
     .bereite = BereiteSchreiben,
     .beginne = KlickeSchreiben,
     .zeigtStoerung = SchreibenBrauchtVieleVersuche,
     .zeigtVersuch = SchreibenBrauchtMehr,
     .fertig = GeschriebenUndLive,
     .nochmal = nullptr,
     .verlasse = nullptr,
     .belastung = {.nur = "",
                   .lesen = 0,
                   .schreiben = 8,
                   .kennung = 0,
                   .amStueck = 8,
                   .abwechselnd = false,
                   .vonVorn = true,
                   .austausche = 8},
     .geduldMs = 0,
     .stoermeldung = 0,
     .frage = 0},
    {.name = "polling",
     .fenster = nullptr,
     .bereite = BereiteLiveDaten,
     .beginne = MerkeDurchgaenge,
     .zeigtStoerung = VerbindungIstVerloren,
     .zeigtVersuch = nullptr,
     .fertig = PolltWeiter,
     .nochmal = nullptr,
     .verlasse = nullptr,
     .belastung = {.nur = "",
                   .lesen = 41,
                   .schreiben = 8,
                   .kennung = 0,
                   .amStueck = 9,
                   .abwechselnd = true,
                   .vonVorn = false,
                   .austausche = 24},
     .geduldMs = 0,
     .stoermeldung = TextVerbindungUnterbrochen,
     .frage = 0},
    {.name = "single reg",
     .fenster = nullptr,
     .bereite = BereiteEinzelwerte,
     .beginne = LiesEinzelnes,
     .zeigtStoerung = ZeigtFragezeichen,
     .zeigtVersuch = nullptr,
     .fertig = ZeigtInhalt,
     .nochmal = TuNochmal<LiesEinzelnes>,
     .verlasse = SchliesseEinzelwerte,
     .belastung = {.nur = "",
                   .lesen = 7,
                   .schreiben = 8,
                   .kennung = 0,
                   .amStueck = 1,
                   .abwechselnd = false,
                   .vonVorn = false,
                   .austausche = 2},
     .geduldMs = 0,
     .stoermeldung = 0,
     .frage = 0},
    {.name = "reset",
     .fenster = nullptr,
     .bereite = BereiteReset,
     .beginne = KlickeReset,
     .zeigtStoerung = ResetBrauchtVieleVersuche,
     .zeigtVersuch = ResetBrauchtMehr,
     .fertig = IstZurueck,
     .nochmal = nullptr,
     .verlasse = nullptr,
     .belastung = {.nur = "",
                   .lesen = 0,
                   .schreiben = 8,
                   .kennung = 0,
                   .amStueck = 8,
                   .abwechselnd = false,
                   .vonVorn = true,
                   .austausche = 1},
     .geduldMs = 0,
     .stoermeldung = 0,
     .frage = 0},
    {.name = "factory data",
     .fenster = nullptr,
     .bereite = BereiteWerksdaten,
     .beginne = SchreibeWerksdaten,
     .zeigtStoerung = WerksdatenBrauchenVieleVersuche,
     .zeigtVersuch = WerksdatenBrauchenMehr,
     .fertig = WerksdatenSindGeschrieben,
     .nochmal = SchreibeWerksdatenNeu,
     .verlasse = nullptr,
     .belastung = {.nur = "",
                   .lesen = 0,
                   .schreiben = 8,
                   .kennung = 0,
                   .amStueck = 8,
                   .abwechselnd = false,
                   .vonVorn = true,
                   .austausche = 7},
     .geduldMs = 5000,
     .stoermeldung = 0,
     .frage = 0},
    {.name = "editor",
     .fenster = Editor,
     .bereite = BereiteStehendeVerbindung,
     .beginne = OeffneEditor,
     .zeigtStoerung = EditorIstOffline,
     .zeigtVersuch = nullptr,
     .fertig = EditorIstOnline,
     .nochmal = OeffneEditorNeu,
     .verlasse = SchliesseEditor,
     .belastung = {.nur = "@17",
                   .lesen = 0,
                   .schreiben = 0,
                   .kennung = 45,
                   .amStueck = 1,
                   .abwechselnd = false,
                   .vonVorn = false,
                   .austausche = 2},
     .geduldMs = 0,
     .stoermeldung = 0,
     .frage = 0},
    {.name = "autosend on",
     .fenster = nullptr,
     .bereite = BereiteStehendeVerbindung,
     .beginne = WaehleAutosend,
     .zeigtStoerung = IstZurueck,
     .zeigtVersuch = nullptr,
     .fertig = AutosendLaeuft,
     .nochmal = TuNochmal<WaehleAutosend>,
     .verlasse = nullptr,
     .belastung = {.nur = "",
                   .lesen = 0,
                   .schreiben = 8,
                   .kennung = 0,
                   .amStueck = 1,
                   .abwechselnd = false,
                   .vonVorn = false,
                   .austausche = 1},
     .geduldMs = 0,
     .stoermeldung = 0,
     .frage = TextAutosendFrage},
    {.name = "autosend off",
     .fenster = nullptr,
     .bereite = BereiteLaufendesAutosend,
     .beginne = BeendeAutosend,
     .zeigtStoerung = IstZurueck,
     .zeigtVersuch = nullptr,
     .fertig = AutosendSteht,
     .nochmal = TuNochmal<BeendeAutosend>,
     .verlasse = nullptr,
     .belastung = {.nur = "",
                   .lesen = 0,
                   .schreiben = 8,
                   .kennung = 0,
                   .amStueck = 1,
                   .abwechselnd = false,
                   .vonVorn = false,
                   .austausche = 1},
     .geduldMs = 0,
     .stoermeldung = 0,
     .frage = 0},
    {.name = "function 09",
     .fenster = nullptr,
     .bereite = BereiteStehendeVerbindung,
     .beginne = SendeKommando09,
     .zeigtStoerung = IstZurueck,
     .zeigtVersuch = nullptr,
     .fertig = Kommando09IstAngekommen,
     .nochmal = TuNochmal<SendeKommando09>,
     .verlasse = nullptr,
     .belastung = {.nur = "",
                   .lesen = 0,
                   .schreiben = 0,
                   .kennung = 1,
                   .amStueck = 1,
                   .abwechselnd = false,
                   .vonVorn = false,
                   .austausche = 1},
     .geduldMs = 0,
     .stoermeldung = 0,
     .frage = 0},
};

} // namespace

std::span<const Stelle> AlleStellen() {
    return Stellen;
}

} // namespace varnoth::pruefung
