#include "polling.h"

#include "austausch.h"
#include "durchgangsmeldung.h"
#include "geraetestand.h"
#include "geraetestatus.h"
#include "messhoerer.h"
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
#include <chrono>
#include <cmath>
#include <functional>
#include <ranges>
#include <utility>
#include <vector>

namespace varnoth::modPolling {

namespace {

using namespace modDaten;
using namespace modModbus;

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
    std::chrono::system_clock::time_point letzter{}; ///< when the last pass ended
    bool verloren = false;
    unsigned long brueche = 0; ///< those that the passes have dealt with
    int verworfene = 0;        ///< passes in a row that a break ended
};

/// What was stored before it was certain, and how to take it back.
struct Vorlaeufiges {
    unsigned long austausch;
    std::function<void()> nimmZurueck;
};

Zustand zustand;
std::vector<Vorlaeufiges> vorlaeufiges;
PollingZiel* dasZiel = nullptr;
const Startwert startwert(zustand, vorlaeufiges, dasZiel);

void MeldeVerlust() {
    modDurchgangsmeldung::Verwirf();
    if (!zustand.verloren)
        modMesshoerer::Melde(Liveereignisart::Verloren);
    zustand.verloren = true;
    dasZiel->AktualisiereGeraetestatus();
    if (modMesshoerer::LaeuftAllein())
        return;
    DieUmgebung().ZeigeMeldung(
        MeldungOhneVerbindung(LadeText(TextVerbindungUnterbrochen), LadeText(TextAchtung)));
}

void MeldeRueckkehr() {
    if (!zustand.verloren)
        return;
    zustand.verloren = false;
    modMesshoerer::Melde(Liveereignisart::Zurueck);
    dasZiel->AktualisiereGeraetestatus();
}

/// Keeps at hand what a parameter that was read just now replaces, until the new is certain.
void MerkeVorlaeufiges(std::function<void()> nimmZurueck) {
    std::erase_if(vorlaeufiges,
                  [](const Vorlaeufiges& eines) { return eines.austausch <= modAustausch::GewissBis(); });
    vorlaeufiges.push_back({modAustausch::Letzter(), std::move(nimmZurueck)});
}

bool SpeichereParameter(Speicherbereich bereich, std::int16_t adresse, const Werte& werte, int teil) {
    MerkeVorlaeufiges([=, alte = HoleParameter(bereich, adresse, teil)] {
        static_cast<void>(SetzeParameter(bereich, adresse, alte, teil));
    });
    return SetzeParameter(bereich, adresse, werte, teil);
}

void SpeichereStrahlen(int teil, std::int16_t anzahl, const Werte& werte) {
    const auto optikteil = static_cast<std::int16_t>(teil);
    Werte alte;
    HoleStrahlzustaende(anzahl, optikteil, alte);
    MerkeVorlaeufiges([=] { SetzeStrahlzustaende(anzahl, optikteil, alte); });
    SetzeStrahlzustaende(anzahl, optikteil, werte);
}

void NimmVorlaeufigesZurueck() {
    modDurchgangsmeldung::Verwirf();
    for (const auto& eines : std::views::reverse(vorlaeufiges))
        if (eines.austausch > modAustausch::GewissBis())
            eines.nimmZurueck();
    vorlaeufiges.clear();
}

/// A reply came that nobody was waiting for: what is not certain is taken back, and the pass begins anew.
void VerwirfDurchgang() {
    NimmVorlaeufigesZurueck();
    if (++zustand.verworfene < Versuche)
        return;
    zustand.verworfene = 0;
    MeldeVerlust();
}

/// Tries a transaction until it succeeds. False ends the pass: polling was switched off, a command waits, a
/// reply came that nobody was waiting for, or the attempts are used up, which the user is told. The last
/// attempt counts as used up whatever its result.
template<class Transaktion>
bool MitVersuchen(Transaktion transaktion) {
    for (int versuch = 1;;) {
        const bool gelungen = transaktion() != False;
        DieUmgebung().LasseEreignisseLaufen();
        if (zustand.pollingAktiv == False || dasZiel->BefehlWartet()) {
            NimmVorlaeufigesZurueck();
            return false;
        }
        if (!gelungen)
            BeruhigeGeraet();
        if (modAustausch::Brueche() != zustand.brueche) {
            VerwirfDurchgang();
            return false;
        }
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
           SpeichereParameter(bereich, adresse, werte, teil);
}

bool LiesStrahlen(int teil, LiveAnsicht& ansicht, bool zeigt) {
    const auto anzahl = static_cast<std::int16_t>(GeleseneStrahlregister(Strahlenzahl(teil)));
    Werte werte;
    if (anzahl > 0 && !Lies(Spezifisch, spezifisch::Strahlzustaende, anzahl, werte))
        return false;
    SpeichereStrahlen(teil, anzahl, werte);
    modDurchgangsmeldung::MerkeStrahlen(teil, std::move(werte));
    if (!zeigt)
        return true;
    ansicht.StrahlzustaendeLiegenVor();
    ansicht.BlankingBekannt();
    return true;
}

bool LiesMesswerte(int teil, LiveAnsicht& ansicht, bool zeigt) {
    if (!LiesParameter(Spezifisch, spezifisch::Messwerte, teil))
        return false;
    modDurchgangsmeldung::MerkeMesswerte(teil);
    if (zeigt)
        ansicht.MesswerteLiegenVor();
    return true;
}

/// Takes over a part's presence. False when it has changed, which ends the pass.
bool UebernimmAnwesenheit(int teil, std::int32_t statusregister) {
    const auto neu = ZustandAus(statusregister);
    if (neu == GetOptikteilStatus(teil))
        return true;
    // On a line that repeats replies nothing is said before this is certain to have been the part's own.
    if (modAustausch::Brueche() > 0 && !modAustausch::Lausche()) {
        VerwirfDurchgang();
        return false;
    }
    SetzeOptikteilStatus(teil, neu);
    dasZiel->AktualisiereGeraetestatus();
    if (!modMesshoerer::LaeuftAllein())
        ZeigeWarnung(LadeText(TextAnzahlGeaendert), LadeText(TextAchtung));
    return false;
}

bool PolleOptikteil(int teil) {
    if (!MitVersuchen([&] { return WaehleOptikteil(teil); }))
        return false;
    if (!LiesParameter(Spezifisch, spezifisch::Optikteilstatus, teil) ||
        !UebernimmAnwesenheit(teil, HoleRegister(Spezifisch, spezifisch::Optikteilstatus, teil)))
        return false;
    modDurchgangsmeldung::MerkeStatus(teil, GetOptikteilStatus(teil) == Vorhanden);
    LiveAnsicht& ansicht = dasZiel->Ansicht(teil);
    const bool zeigt = ansicht.ZeigtLiveDaten();
    if (GetOptikteilStatus(teil) != Vorhanden || (!zeigt && !modMesshoerer::Braucht(teil)))
        return true;
    if (zeigt)
        ansicht.NeuerDatensatz();
    return LiesStrahlen(teil, ansicht, zeigt) && LiesMesswerte(teil, ansicht, zeigt);
}

bool PolleGlobalstatus() {
    if (!LiesParameter(Global, global::Geraetestatus))
        return false;
    const bool aktiv = (HoleRegister(Global, global::Geraetestatus) & geraetestatus::PnpAktiv) != 0;
    DieUmgebung().ZeigeStatustext(FeldSchaltausgang,
                                  LadeText(aktiv ? TextAusgangAktiv : TextAusgangNichtAktiv));
    return true;
}

void BeendeDurchgang() {
    ++zustand.durchgaenge;
    zustand.letzter = std::chrono::system_clock::now();
    zustand.verworfene = 0;
    MeldeRueckkehr();
    modDurchgangsmeldung::Beende(zustand.letzter, zustand.anzahlOptikteile);
}

/// After a break it is settled first whose turn it is, which may take several attempts. False ends the pass.
bool BeginneNachBruch() {
    if (modAustausch::Brueche() == zustand.brueche)
        return true;
    for (int versuch = 1; versuch < Versuche; ++versuch) {
        const bool geklaert = modAustausch::Vergewissere();
        zustand.brueche = modAustausch::Brueche();
        DieUmgebung().LasseEreignisseLaufen();
        if (zustand.pollingAktiv == False || dasZiel->BefehlWartet())
            return false;
        if (geklaert)
            return true;
        BeruhigeGeraet();
    }
    MeldeVerlust();
    return false;
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
    zustand.brueche = modAustausch::Brueche();
    zustand.verworfene = 0;
    if (zustand.pollingAktiv != False)
        modMesshoerer::Melde(Liveereignisart::Begonnen);
}

void StoppePolling() {
    NimmVorlaeufigesZurueck();
    if (zustand.pollingAktiv != False)
        modMesshoerer::Melde(Liveereignisart::Beendet);
    if (zustand.pollingAktiv != False && zustand.durchgaenge > 0)
        modGeraetestand::MerkeTeilzustaende(DasAbbild(), zustand.anzahlOptikteile, zustand.letzter);
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
    if (!BeginneNachBruch())
        return;
    modDurchgangsmeldung::Beginne();
    for (int teil = 0; teil < zustand.anzahlOptikteile; ++teil)
        if (!PolleOptikteil(teil))
            return;
    if (!PolleGlobalstatus())
        return;
    BeendeDurchgang();
}

} // namespace varnoth::modPolling
