// The service dialogs.

#include "stellenhelfer.h"

#include <QLineEdit>

namespace varnoth::pruefung {

namespace {

constexpr const char* Einzelwerte = "frmEinzelwerteLesenSchreiben";
constexpr const char* Resetdialog = "frmResetHardware";
constexpr const char* Initdialog = "frmInitHardware";

void SetzeText(const char* fenster, const char* feld, const char* text) {
    if (QWidget* const sichtbares = SichtbaresFenster(fenster))
        Kind<QLineEdit>(*sichtbares, feld).setText(text);
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

constexpr Stelle Stellen[] = {
    {.name = "single reg",
     .bereite = BereiteEinzelwerte,
     .beginne = LiesEinzelnes,
     .zeigtStoerung = ZeigtFragezeichen,
     .fertig = ZeigtInhalt,
     .nochmal = TuNochmal<LiesEinzelnes>,
     .verlasse = SchliesseEinzelwerte,
     .belastung = {.lesen = 7, .schreiben = 8, .amStueck = 1, .austausche = 2}},
    {.name = "reset",
     .bereite = BereiteReset,
     .beginne = KlickeReset,
     .zeigtStoerung = ResetBrauchtVieleVersuche,
     .zeigtVersuch = ResetBrauchtMehr,
     .fertig = IstZurueck,
     .belastung = {.schreiben = 8, .amStueck = 8, .vonVorn = true, .austausche = 1}},
    {.name = "factory data",
     .bereite = BereiteWerksdaten,
     .beginne = SchreibeWerksdaten,
     .zeigtStoerung = WerksdatenBrauchenVieleVersuche,
     .zeigtVersuch = WerksdatenBrauchenMehr,
     .fertig = WerksdatenSindGeschrieben,
     .nochmal = SchreibeWerksdatenNeu,
     .belastung = {.schreiben = 8, .amStueck = 8, .vonVorn = true, .austausche = 7},
     .geduldMs = 5000},
};

} // namespace

std::span<const Stelle> DienstStellen() {
    return Stellen;
}

} // namespace varnoth::pruefung
