#include "leitungsstatistik.h"

#include "minutenzaehler.h"
#include "startzustand.h"

#include <algorithm>
#include <string>

namespace varnoth::modLeitungsstatistik {

namespace {

constexpr std::size_t HoechstensGemerkt = 1024; // bytes of what has come since the request

struct Zustand {
    Stand stand{};
    Minutenzaehler fehlschlaege{};
    std::string gesendet{};
    std::string empfangen{};
};

Zustand zustand;
const Startwert startwert(zustand);

Austauschende Ende(bool gelungen, bool portOffen) {
    if (gelungen)
        return Austauschende::Gelungen;
    if (!portOffen)
        return Austauschende::KeinPort;
    if (zustand.empfangen.empty())
        return Austauschende::Stille;
    const bool echo =
        !zustand.gesendet.empty() && zustand.empfangen.find(zustand.gesendet) != std::string::npos;
    return echo ? Austauschende::Echo : Austauschende::Unverstanden;
}

} // namespace

void NeueReihe() {
    zustand.stand.wartetSeit.reset();
    zustand.stand.letztesEnde.reset();
}

void Beginnt() {
    zustand.stand.unterwegs = true;
    zustand.gesendet.clear();
    zustand.empfangen.clear();
    if (zustand.stand.wartetSeit)
        return;
    zustand.stand.wartetSeit = DieUmgebung().Uhr();
    zustand.stand.aufenthaltDavor = DieUmgebung().GetAufenthalt().gesamt;
}

void Gesendet(std::string_view bytes) {
    zustand.gesendet = bytes;
    zustand.empfangen.clear();
}

void Empfangen(std::string_view bytes) {
    const std::size_t platz = HoechstensGemerkt - zustand.empfangen.size();
    zustand.empfangen += bytes.substr(0, std::min(platz, bytes.size()));
}

void Endet(bool gelungen, bool portOffen) {
    Stand& stand = zustand.stand;
    const Zeit jetzt = DieUmgebung().Uhr();
    const Austauschende ende = Ende(gelungen, portOffen);
    ++stand.anzahl.at(static_cast<std::size_t>(ende));
    stand.unterwegs = false;
    stand.letztesEnde = ende;
    if (!gelungen) {
        zustand.fehlschlaege.Zaehle(jetzt);
        return;
    }
    stand.letzteAntwort = jetzt;
    stand.wartetSeit.reset();
}

const Stand& GetStand() {
    return zustand.stand;
}

std::optional<Zeit> WartetSeit() {
    const Stand& stand = zustand.stand;
    if (!stand.wartetSeit)
        return std::nullopt;
    return *stand.wartetSeit + (DieUmgebung().GetAufenthalt().gesamt - stand.aufenthaltDavor);
}

int FehlschlaegeDerLetztenMinute() {
    return zustand.fehlschlaege.Anzahl(DieUmgebung().Uhr());
}

} // namespace varnoth::modLeitungsstatistik
