#include "pnpausgang.h"

#include <array>
#include <cstddef>

namespace varnoth {

namespace {

constexpr auto Funktionen = std::to_array<Option>({{0, 5119},
                                                   {1 << 0, 5120},
                                                   {1 << 1, 5121},
                                                   {1 << 2, 5122},
                                                   {1 << 3, 5123},
                                                   {1 << 4, 5124},
                                                   {1 << 5, 5125},
                                                   {1 << 14, 5127}});
constexpr auto Optikteile =
    std::to_array<Option>({{0x000, 5200}, {0x100, 5201}, {0x200, 5202}, {0x300, 5203}});
constexpr auto Pegel = std::to_array<Option>({{0x8000, 5110}, {0x0000, 5111}});

constexpr int OptikteilBit = 8;
constexpr int Optikteilbits = 3;
constexpr std::int32_t PegelBit = 0x8000;

/// The hidden function has an index and no row.
int Funktionsindex(std::size_t zeile) {
    const auto index = static_cast<int>(zeile);
    return index < VerborgenePnpFunktion ? index : index + 1;
}

} // namespace

std::span<const Option> PnpFunktionen() {
    return Funktionen;
}

std::span<const Option> PnpOptikteile() {
    return Optikteile;
}

std::span<const Option> PnpPegel() {
    return Pegel;
}

PnpAusgang PnpAusgangAus(std::int32_t registerwert) {
    PnpAusgang ausgang;
    for (std::size_t zeile = 0; zeile < Funktionen.size(); ++zeile)
        if ((registerwert & Funktionen.at(zeile).wert) != 0)
            ausgang.funktion = Funktionsindex(zeile);
    ausgang.optikteil = (registerwert >> OptikteilBit) & Optikteilbits;
    ausgang.pegel = (registerwert & PegelBit) != 0 ? 0 : 1;
    return ausgang;
}

std::int32_t Registerwert(const PnpAusgang& ausgang) {
    std::int32_t wert = (ausgang.optikteil & Optikteilbits) << OptikteilBit;
    for (std::size_t zeile = 0; zeile < Funktionen.size(); ++zeile)
        if (Funktionsindex(zeile) == ausgang.funktion)
            wert |= Funktionen.at(zeile).wert;
    return ausgang.pegel == 0 ? wert | PegelBit : wert;
}

} // namespace varnoth
