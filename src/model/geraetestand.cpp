#include "geraetestand.h"

#include "registeradressen.h"
#include "startzustand.h"

#include <algorithm>
#include <tuple>

namespace varnoth::modGeraetestand {

namespace {

std::optional<Geraetestand> derStand;
std::optional<Teilzustaende> dieZustaende;
const Startwert startwert(derStand, dieZustaende);

/// What is known before a write to a controller.
Geraetestand StandVor(const std::string& seriennummer) {
    if (derStand && derStand->seriennummer == seriennummer)
        return *derStand;
    Geraetestand stand;
    stand.unbekannt = AlleStellen(IstLesbar);
    return stand;
}

Werte WieImGeraet(Werte werte) {
    constexpr std::int32_t Register = 0xFFFF;
    std::ranges::for_each(werte, [](std::int32_t& wert) { wert &= Register; });
    return werte;
}

void Uebernimm(Geraetestand& stand, const Abbild& abbild, const Parametermenge& stellen) {
    for (const auto& [bereich, adresse, teil] : stellen) {
        std::ignore = stand.abbild.SetzeParameter(
            bereich, adresse, WieImGeraet(abbild.HoleParameter(bereich, adresse, teil)), teil);
        stand.unbekannt.erase({bereich, adresse, teil});
    }
}

void Merke(Geraetestand stand, const std::string& seriennummer, bool ganzGelesen) {
    stand.zeit = std::chrono::system_clock::now();
    if (ganzGelesen)
        stand.gelesen = stand.zeit;
    stand.seriennummer = seriennummer;
    stand.ausDieserVerbindung = true;
    derStand = std::move(stand);
}

} // namespace

std::optional<Geraetestand> HoleGeraetestand() {
    return derStand;
}

void MerkeGelesen(const Abbild& abbild, const std::string& seriennummer) {
    Geraetestand stand;
    stand.abbild = abbild;
    Merke(std::move(stand), seriennummer, true);
}

void MerkeGeschrieben(const Abbild& abbild, const Parametermenge& geschriebenes,
                      const std::string& seriennummer) {
    Geraetestand stand = StandVor(seriennummer);
    Uebernimm(stand, abbild, geschriebenes);
    stand.ungeprueft.insert(geschriebenes.begin(), geschriebenes.end());
    Merke(std::move(stand), seriennummer, false);
}

void MerkeZurueckgelesen(const Abbild& abbild, const Parametermenge& gelesenes,
                         const std::string& seriennummer) {
    Geraetestand stand = StandVor(seriennummer);
    Uebernimm(stand, abbild, gelesenes);
    for (const Parameterstelle& stelle : gelesenes)
        stand.ungeprueft.erase(stelle);
    const bool allesGelesen = stand.ungeprueft.empty();
    Merke(std::move(stand), seriennummer, allesGelesen);
}

void Vergiss(const Parametermenge& stellen) {
    if (!derStand)
        return;
    for (const Parameterstelle& stelle : stellen) {
        if (IstLesbar(Beschreibung(stelle.bereich, stelle.adresse)))
            derStand->unbekannt.insert(stelle);
        derStand->ungeprueft.erase(stelle);
    }
}

void Antwortet(const std::string& seriennummer) {
    if (!derStand || derStand->seriennummer == seriennummer)
        return;
    derStand.reset();
    dieZustaende.reset();
}

std::optional<Teilzustaende> HoleTeilzustaende() {
    return dieZustaende;
}

void MerkeTeilzustaende(const Abbild& abbild, int anzahl, std::chrono::system_clock::time_point zeit) {
    dieZustaende = {.status = {}, .zeit = zeit};
    for (int teil = 0; teil < anzahl; ++teil)
        dieZustaende->status.push_back(
            abbild.HoleRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Optikteilstatus, teil));
}

void BeginneVerbindung() {
    dieZustaende.reset();
    if (derStand)
        derStand->ausDieserVerbindung = false;
}

} // namespace varnoth::modGeraetestand
