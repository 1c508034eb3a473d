#include "durchgangsbild.h"

#include "registeradressen.h"

#include <tuple>

namespace varnoth {

namespace {

void SetzeTeil(Abbild& abbild, int teil, const Teilmessung& messung) {
    const Werte strahlen(messung.strahlregister.begin(), messung.strahlregister.end());
    const Werte werte(messung.werte.begin(), messung.werte.end());
    std::ignore = abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, messung.strahlen, teil);
    std::ignore = abbild.SetzeRegister(Spezifisch, spezifisch::Optikteilstatus, messung.status, teil);
    std::ignore = abbild.SetzeParameter(Spezifisch, spezifisch::Messwerte, werte, teil);
    std::ignore = abbild.SetzeStrahlzustaende(MaxStrahlregister, teil, strahlen);
}

} // namespace

Abbild AlsAbbild(const Abbild& konfiguration, const Messdurchgang& durchgang) {
    Abbild abbild = konfiguration;
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTeil(abbild, teil, durchgang.teile.at(static_cast<std::size_t>(teil)));
    std::ignore = abbild.SetzeRegister(Global, global::Geraetestatus, durchgang.geraetestatus);
    return abbild;
}

} // namespace varnoth
