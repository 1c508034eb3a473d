#include "polling.h"

#include "geraetestatus.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "schnittstelle.h"
#include "startzustand.h"
#include "statusbits.h"
#include "texte.h"
#include "transaktionen.h"
#include "verbindungsauskunft.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace varnoth::modPolling {

namespace {

using namespace modDaten;
using namespace modModbus;

constexpr auto Global = Speicherbereich::GlobaleGeraetedaten;
constexpr auto Spezifisch = Speicherbereich::SpezifischeGeraetedaten;

constexpr int Versuche = 10;

constexpr std::int16_t TextVerbindungUnterbrochen = 3000;
constexpr std::int16_t TextAusgangAktiv = 3001;
constexpr std::int16_t TextAusgangNichtAktiv = 3002;
constexpr std::int16_t TextAnzahlGeaendert = 3004;

struct Zustand {
    Boolean pollingAktiv = False;
    std::array<Optikteilzustand, AnzahlOptikteile> optikteilStatus{};
    int anzahlOptikteile = 0;
    unsigned durchgaenge = 0;
    bool verloren = false;
};

Zustand zustand;
PollingZiel* dasZiel = nullptr;
const Startwert startwert(zustand, dasZiel);

void MeldeVerlust() {
    zustand.verloren = true;
    dasZiel->AktualisiereGeraetestatus();
    DieUmgebung().ZeigeMeldung(
        MeldungOhneVerbindung(LadeText(TextVerbindungUnterbrochen), LadeText(TextAchtung)));
}

void MeldeRueckkehr() {
    if (!zustand.verloren)
        return;
    zustand.verloren = false;
    dasZiel->AktualisiereGeraetestatus();
}

/// Tries a transaction until it succeeds. False ends the pass: polling was switched off or a command waits,
/// or the attempts are used up, which the user is told. The last attempt counts as used up whatever its
/// result.
template<class Transaktion>
bool MitVersuchen(Transaktion transaktion) {
    for (int versuch = 1;;) {
        const bool gelungen = transaktion() != False;
        DieUmgebung().LasseEreignisseLaufen();
        if (zustand.pollingAktiv == False || dasZiel->BefehlWartet())
            return false;
        if (++versuch > Versuche) {
            MeldeVerlust();
            return false;
        }
        if (gelungen)
            return true;
    }
}

bool Lies(Speicherbereich bereich, std::int16_t adresse, std::int16_t anzahl, Werte& werte) {
    werte.resize(static_cast<std::size_t>(anzahl));
    return MitVersuchen([&] {
        return RTUModeH03LeseAnforderung(Geraeteadresse(bereich, adresse), static_cast<std::uint16_t>(anzahl),
                                         werte);
    });
}

/// Reads a parameter from the controller into the image. `teil` is the optical part that is selected.
bool LiesParameter(Speicherbereich bereich, std::int16_t adresse, int teil = 0) {
    Werte werte;
    return Lies(bereich, adresse, Beschreibung(bereich, adresse).Laenge, werte) &&
           SetzeParameter(bereich, adresse, werte, teil);
}

bool LiesStrahlen(int teil, LiveAnsicht& ansicht) {
    const auto anzahl = static_cast<std::int16_t>(GeleseneStrahlregister(Strahlenzahl(teil)));
    Werte werte;
    if (anzahl > 0 && !Lies(Spezifisch, spezifisch::Strahlzustaende, anzahl, werte))
        return false;
    SetzeStrahlzustaende(anzahl, static_cast<std::int16_t>(teil), werte);
    ansicht.StrahlzustaendeLiegenVor();
    ansicht.BlankingBekannt();
    return true;
}

bool LiesMesswerte(int teil, LiveAnsicht& ansicht) {
    if (!LiesParameter(Spezifisch, spezifisch::Messwerte, teil))
        return false;
    ansicht.MesswerteLiegenVor();
    return true;
}

/// Takes over a part's presence. False when it has changed, which ends the pass.
bool UebernimmAnwesenheit(int teil, std::int32_t statusregister) {
    const auto neu = ZustandAus(statusregister);
    if (neu == GetOptikteilStatus(teil))
        return true;
    SetzeOptikteilStatus(teil, neu);
    dasZiel->AktualisiereGeraetestatus();
    ZeigeWarnung(LadeText(TextAnzahlGeaendert), LadeText(TextAchtung));
    return false;
}

bool PolleOptikteil(int teil) {
    if (!MitVersuchen([&] { return WaehleOptikteil(teil); }))
        return false;
    if (!LiesParameter(Spezifisch, spezifisch::Optikteilstatus, teil) ||
        !UebernimmAnwesenheit(teil, HoleRegister(Spezifisch, spezifisch::Optikteilstatus, teil)))
        return false;
    LiveAnsicht& ansicht = dasZiel->Ansicht(teil);
    if (GetOptikteilStatus(teil) != Vorhanden || !ansicht.ZeigtLiveDaten())
        return true;
    ansicht.NeuerDatensatz();
    return LiesStrahlen(teil, ansicht) && LiesMesswerte(teil, ansicht);
}

bool PolleGlobalstatus() {
    if (!LiesParameter(Global, global::Geraetestatus))
        return false;
    const bool aktiv = (HoleRegister(Global, global::Geraetestatus) & geraetestatus::PnpAktiv) != 0;
    DieUmgebung().ZeigeStatustext(FeldSchaltausgang,
                                  LadeText(aktiv ? TextAusgangAktiv : TextAusgangNichtAktiv));
    return true;
}

} // namespace

void SetzeZiel(PollingZiel* ziel) {
    dasZiel = ziel;
}

void StartePolling() {
    modSchnittstelle::OpenCommPort();
    zustand.pollingAktiv = modSchnittstelle::GetPortIstOffen();
    zustand.verloren = false;
    zustand.durchgaenge = 0;
}

void StoppePolling() {
    modSchnittstelle::CloseCommPort();
    zustand.pollingAktiv = modSchnittstelle::GetPortIstOffen();
}

Boolean GetPollingAktiv() {
    return zustand.pollingAktiv;
}

void SetzeAnzahlOptikteile(int anzahl) {
    zustand.anzahlOptikteile = std::clamp(anzahl, 0, AnzahlOptikteile);
}

int GetAnzahlOptikteile() {
    return zustand.anzahlOptikteile;
}

Optikteilzustand GetOptikteilStatus(int optikteil) {
    return zustand.optikteilStatus.at(static_cast<std::size_t>(optikteil));
}

void SetzeOptikteilStatus(int optikteil, Optikteilzustand neu) {
    zustand.optikteilStatus.at(static_cast<std::size_t>(optikteil)) = neu;
}

Optikteilzustand ZustandAus(std::int32_t statusregister) {
    return IstOptikteilVorhanden(statusregister) ? Vorhanden : NichtVorhanden;
}

unsigned GetDurchgaenge() {
    return zustand.durchgaenge;
}

bool VerbindungVerloren() {
    return zustand.verloren;
}

int GeleseneStrahlregister(std::int32_t strahlenzahl) {
    constexpr int Registerbits = 16;
    const auto gerundet = static_cast<int>(std::nearbyint(strahlenzahl / double{Registerbits}));
    const int zusatz = strahlenzahl % Registerbits != 0 ? 1 : 0;
    return std::clamp(gerundet + zusatz, 0, int{MaxStrahlregister});
}

void PollingZyklus() {
    for (int teil = 0; teil < zustand.anzahlOptikteile; ++teil)
        if (!PolleOptikteil(teil))
            return;
    if (!PolleGlobalstatus())
        return;
    ++zustand.durchgaenge;
    MeldeRueckkehr();
}

} // namespace varnoth::modPolling
