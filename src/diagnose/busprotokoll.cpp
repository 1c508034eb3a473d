#include "busprotokoll.h"

#include "busrahmen.h"
#include "registeradressen.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int32_t KommandoNeustart = 3;

std::uint32_t Gekuerzt(std::int64_t zahl) {
    constexpr std::int64_t groesste = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::clamp<std::int64_t>(zahl, 0, groesste));
}

} // namespace

bool IstFehler(Austauschergebnis ergebnis) {
    return ergebnis != Austauschergebnis::Beantwortet && ergebnis != Austauschergebnis::Gesendet;
}

Busprotokoll::~Busprotokoll() {
    Beende();
}

void Busprotokoll::StelleUhr(std::chrono::system_clock::time_point jetzt) {
    anfangszeit = jetzt;
    anfangsuhr = DieUmgebung().Uhr();
}

void Busprotokoll::Beginne(std::chrono::system_clock::time_point jetzt) {
    if (eintraege == nullptr) {
        eintraege = std::make_unique_for_overwrite<Eintrag[]>(Hoechstzahl);
        bytespeicher = std::make_unique_for_overwrite<char[]>(Bytevorrat);
    }
    if (anzahl == 0)
        StelleUhr(jetzt);
    if (!std::exchange(laeuft, true))
        optikteil = -1; // nobody listened to what was selected meanwhile
    modMithoeren::MeldeAn(*this);
}

void Busprotokoll::Beende() {
    laeuft = false;
    modMithoeren::MeldeAb(*this);
}

void Busprotokoll::Leere(std::chrono::system_clock::time_point jetzt) {
    anzahl = 0;
    StelleUhr(jetzt);
}

std::chrono::system_clock::time_point Busprotokoll::Uhrzeit(Zeit zeit) const {
    return anfangszeit + (zeit - anfangsuhr);
}

Busaustausch Busprotokoll::Hole(std::uint64_t nummer) const {
    if (!Hat(nummer))
        throw std::out_of_range("Busprotokoll: no such exchange");
    const Eintrag& eintrag = Der(nummer);
    const char* const bytes = bytespeicher.get() + eintrag.anfang % Bytevorrat;
    return {.nummer = nummer,
            .art = eintrag.art,
            .ergebnis = eintrag.ergebnis,
            .optikteil = eintrag.optikteil,
            .anforderung = {bytes, eintrag.anforderung},
            .empfangen = {bytes + eintrag.anforderung, eintrag.empfangen},
            .kamAn = eintrag.kamAn,
            .zeigbar = {eintrag.zeigbareAnforderung, eintrag.zeigbaresEmpfangenes},
            .gesendet = eintrag.gesendet,
            .umlauf = Zeit(eintrag.umlauf)};
}

/// Room for so many bytes in one piece. Whose bytes lie there is forgotten.
std::uint64_t Busprotokoll::Belege(std::size_t bytes) {
    const std::size_t bisEnde = Bytevorrat - geschrieben % Bytevorrat;
    if (bytes > bisEnde)
        geschrieben += bisEnde;
    const std::uint64_t stelle = geschrieben;
    geschrieben += bytes;
    while (anzahl > 0 && Der(Erster()).anfang + Bytevorrat < geschrieben)
        --anzahl;
    return stelle;
}

void Busprotokoll::Lege(std::uint64_t stelle, std::string_view bytes, std::size_t zeigbar) {
    char* const ziel = bytespeicher.get() + stelle % Bytevorrat;
    bytes.copy(ziel, zeigbar);
    std::fill_n(ziel + zeigbar, bytes.size() - zeigbar, '\0');
}

/// The part that the controller has selected, as far as it is known.
void Busprotokoll::MerkeOptikteil(const Mitschnitt& mitschnitt) {
    const auto bezug = RegisterbezugVon(mitschnitt.anforderung);
    if (!bezug || !IstSchreibrahmen(mitschnitt.anforderung) ||
        bezug->bereich != Speicherbereich::GlobaleGeraetedaten || bezug->anzahl != 1)
        return;
    const Werte werte = GeschriebeneWerte(mitschnitt.anforderung);
    const std::int32_t wert = werte.empty() ? -1 : werte[0];
    if (bezug->adresse == global::Kommando && wert == KommandoNeustart)
        optikteil = -1;
    if (bezug->adresse == global::Optikteilauswahl)
        optikteil =
            mitschnitt.ergebnis == Austauschergebnis::Beantwortet && wert < AnzahlOptikteile ? wert : -1;
}

void Busprotokoll::Hoere(const Mitschnitt& mitschnitt) {
    const auto zeigbar = schutz.Pruefe(mitschnitt);
    const std::string_view anforderung = mitschnitt.anforderung.substr(0, HoechstensBytes);
    const std::string_view empfangen = mitschnitt.empfangen.substr(0, HoechstensBytes);
    if (anzahl == Hoechstzahl)
        --anzahl;
    const std::uint64_t stelle = Belege(anforderung.size() + empfangen.size());
    const std::size_t zeigbareAnforderung = std::min(zeigbar.anforderung, anforderung.size());
    const std::size_t zeigbaresEmpfangenes = std::min(zeigbar.empfangen, empfangen.size());
    Lege(stelle, anforderung, zeigbareAnforderung);
    Lege(stelle + anforderung.size(), empfangen, zeigbaresEmpfangenes);
    eintraege[naechster % Hoechstzahl] = {
        .gesendet = mitschnitt.gesendet,
        .anfang = stelle,
        .umlauf =
            mitschnitt.aufgehalten ? 0 : Gekuerzt((mitschnitt.letztesByte - mitschnitt.gesendet).count()),
        .kamAn = Gekuerzt(static_cast<std::int64_t>(mitschnitt.empfangen.size())),
        .anforderung = static_cast<std::uint16_t>(anforderung.size()),
        .empfangen = static_cast<std::uint16_t>(empfangen.size()),
        .zeigbareAnforderung = static_cast<std::uint16_t>(zeigbareAnforderung),
        .zeigbaresEmpfangenes = static_cast<std::uint16_t>(zeigbaresEmpfangenes),
        .art = mitschnitt.art,
        .ergebnis = mitschnitt.ergebnis,
        .optikteil = static_cast<std::int8_t>(optikteil)};
    ++naechster;
    ++anzahl;
    MerkeOptikteil(mitschnitt);
}

} // namespace varnoth
