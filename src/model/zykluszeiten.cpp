#include "zykluszeiten.h"

#include "registerabbild.h"
#include "startzustand.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace varnoth {

namespace {

using Strahlenzahlen = std::array<std::int32_t, AnzahlOptikteile>;

/// Each part costs the time of three beams more than it has.
constexpr int Zusatzschritte = 3;
constexpr int SchrittzeitUs = 50;
constexpr int KuerzesterZyklusUs = 1000;
/// More beams than any part can have; the fewest beams are looked for from here down.
constexpr std::int32_t StrahlenObergrenze = 1024;

/// The time of one step. It is stretched so far that the part with the fewest beams has the shortest cycle
/// allowed, and it holds for all parts.
double Schrittzeit(std::int32_t minStrahlen, int anzahl) {
    const int schritte = (minStrahlen + Zusatzschritte) * anzahl;
    if (schritte * SchrittzeitUs < KuerzesterZyklusUs)
        return static_cast<double>(KuerzesterZyklusUs) / schritte;
    return SchrittzeitUs;
}

/// The nearest whole number, halves to the even one.
std::int32_t Gerundet(double zeit) {
    constexpr double groesste = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::min(std::nearbyint(zeit), groesste));
}

} // namespace

Zykluszeiten ZykluszeitenFuer(const Strahlenzahlen& strahlenzahlen) {
    Zykluszeiten zeiten;
    std::int32_t minStrahlen = StrahlenObergrenze;
    int anzahl = 0;
    for (const auto strahlen : strahlenzahlen) {
        if (strahlen <= 0)
            continue;
        ++anzahl;
        minStrahlen = std::min(minStrahlen, strahlen);
    }
    if (anzahl == 0)
        return zeiten;
    const double schrittzeit = Schrittzeit(minStrahlen, anzahl);
    for (std::size_t teil = 0; teil < strahlenzahlen.size(); ++teil) {
        const double schritte = static_cast<double>(strahlenzahlen[teil]) + Zusatzschritte;
        if (strahlenzahlen[teil] > 0)
            zeiten.zyklus[teil] = Gerundet(schritte * schrittzeit * anzahl);
    }
    zeiten.gesamt = std::ranges::max(zeiten.zyklus);
    return zeiten;
}

namespace modHilfsFunktionen {

namespace {
Zykluszeiten dieZeiten;
const Startwert startwert(dieZeiten);
} // namespace

void BerechneZykluszeiten() {
    Strahlenzahlen strahlenzahlen{};
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        strahlenzahlen[static_cast<std::size_t>(teil)] = modDaten::Strahlenzahl(teil);
    dieZeiten = ZykluszeitenFuer(strahlenzahlen);
}

std::int32_t GetZykluszeit(int optikteil) {
    if (optikteil < 0 || optikteil >= AnzahlOptikteile)
        return 0;
    return dieZeiten.zyklus[static_cast<std::size_t>(optikteil)];
}

std::int32_t GetGesamtzykluszeit() {
    return dieZeiten.gesamt;
}

} // namespace modHilfsFunktionen

} // namespace varnoth
