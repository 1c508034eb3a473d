// The places on the way to live data, and polling.

#include "stellenhelfer.h"

#include "polling.h"

namespace varnoth::pruefung {

namespace {

constexpr std::int16_t TextKeineVerbindung = 7209;
constexpr std::int16_t TextVerbindungUnterbrochen = 3000;
constexpr const char* Lesedialog = "frmKonfigurationLesenAusHardware";
constexpr const char* Infodialog = "frmHoleLichtleistenInfo";

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

constexpr Stelle Stellen[] = {
    {.name = "identification",
     .bereite = BereiteNichts,
     .beginne = Verbinde,
     .zeigtStoerung = IdentifikationGescheitert,
     .zeigtVersuch = IdentifikationBrauchtMehr,
     .fertig = IstVerbunden,
     .nochmal = StarteNeu,
     .belastung = {.nur = "@17", .kennung = 45, .amStueck = 7, .austausche = 1},
     .stoermeldung = TextKeineVerbindung},
    {.name = "read",
     .fenster = Lesedialog,
     .bereite = BereiteNichts,
     .beginne = Verbinde,
     .zeigtStoerung = LesenBrauchtVieleVersuche,
     .zeigtVersuch = LesenBrauchtMehr,
     .fertig = IstVerbunden,
     .belastung = {.lesen = 69, .schreiben = 8, .amStueck = 40, .abwechselnd = true, .austausche = 12}},
    {.name = "part info",
     .fenster = Infodialog,
     .bereite = BereiteNichts,
     .beginne = Verbinde,
     .zeigtStoerung = InfoStehtStill,
     .fertig = IstVerbunden,
     .belastung = {.lesen = 7, .schreiben = 8, .amStueck = 15, .austausche = 8}},
    {.name = "polling",
     .bereite = BereiteLiveDaten,
     .beginne = MerkeDurchgaenge,
     .zeigtStoerung = VerbindungIstVerloren,
     .fertig = PolltWeiter,
     .belastung = {.lesen = 41, .schreiben = 8, .amStueck = 9, .abwechselnd = true, .austausche = 24},
     .stoermeldung = TextVerbindungUnterbrochen},
};

} // namespace

std::span<const Stelle> VerbindungsStellen() {
    return Stellen;
}

} // namespace varnoth::pruefung
