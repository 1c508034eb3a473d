#include "messung.h"

#include <algorithm>
#include <cstdlib>

namespace varnoth::simulator {

namespace {

constexpr std::size_t RegisterBits = 16;

/// Bit of a register that holds its k-th beam: the two bytes are swapped.
constexpr std::size_t Bitstelle(std::size_t strahl) {
    return (strahl % RegisterBits) ^ 8U;
}

void Zaehle(Messwerte& werte, std::size_t tiefster, int strahl) {
    const auto nummer = static_cast<std::uint16_t>(strahl);
    if (werte[tiefster] == 0)
        werte[tiefster] = nummer;
    werte[tiefster + 1] = nummer;
    ++werte[tiefster + 2];
}

bool HatLoch(const Strahlenbild& frei, const Strahlenbild& beteiligte, const Messwerte& werte,
             int lochgroesse) {
    int laenge = 0;
    for (std::size_t i = werte[TU]; i < werte[HU]; ++i) {
        if (!beteiligte[i])
            continue;
        laenge = frei[i] ? laenge + 1 : 0;
        if (laenge >= std::max(lochgroesse, 1))
            return true;
    }
    return false;
}

std::uint16_t Lage(const Messwerte& werte, const Massstab& massstab) {
    const int doppelteAbweichung = werte[TU] + werte[HU] - (massstab.anzahl + 1);
    if (std::abs(doppelteAbweichung) <= 2 * massstab.toleranz)
        return teilstatus::BahnInMitte;
    return doppelteAbweichung > 0 ? teilstatus::BahnZuHoch : teilstatus::BahnZuTief;
}

} // namespace

Strahlenbild Beteiligte(int anzahl, const Strahlenbild& geblankt) {
    return (~Strahlenbild{} >> static_cast<std::size_t>(MaxStrahlen - anzahl)) & ~geblankt;
}

Messwerte Miss(const Strahlenbild& frei, const Strahlenbild& beteiligte) {
    Messwerte werte{};
    for (std::size_t i = 0; i < beteiligte.size(); ++i)
        if (beteiligte[i])
            Zaehle(werte, frei[i] ? TNU : TU, static_cast<int>(i) + 1);
    return werte;
}

std::uint16_t Beurteile(const Strahlenbild& frei, const Strahlenbild& beteiligte, const Massstab& massstab) {
    const Messwerte werte = Miss(frei, beteiligte);
    if (werte[ZU] == 0)
        return teilstatus::AllesFrei;
    unsigned status = Lage(werte, massstab);
    if (werte[ZNU] == 0)
        status |= teilstatus::AllesUnterbrochen;
    if (HatLoch(frei, beteiligte, werte, massstab.lochgroesse))
        status |= teilstatus::Loch;
    return static_cast<std::uint16_t>(status);
}

void Extremwerte::Nimm(const Messwerte& werte) {
    for (std::size_t i = 0; i < werte.size(); ++i) {
        kleinste[i] = leer ? werte[i] : std::min(kleinste[i], werte[i]);
        groesste[i] = leer ? werte[i] : std::max(groesste[i], werte[i]);
    }
    leer = false;
}

Strahlenbild LiesMuster(std::span<const std::uint16_t> werte) {
    Strahlenbild bild;
    for (std::size_t i = 0; i < std::min(bild.size(), werte.size() * RegisterBits); ++i)
        bild[i] = (werte[i / RegisterBits] >> Bitstelle(i) & 1) != 0;
    return bild;
}

void SchreibeMuster(std::span<std::uint16_t> werte, const Strahlenbild& bild) {
    std::ranges::fill(werte, std::uint16_t{0});
    for (std::size_t i = 0; i < std::min(bild.size(), werte.size() * RegisterBits); ++i)
        if (bild[i])
            werte[i / RegisterBits] |= static_cast<std::uint16_t>(1U << Bitstelle(i));
}

} // namespace varnoth::simulator
