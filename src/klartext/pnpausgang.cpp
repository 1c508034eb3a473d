#include "pnpausgang.h"

#include "bitsunddatum.h"

namespace varnoth {

namespace {

struct Funktionsbit {
    int funktion;
    std::int16_t bit;
};

constexpr Funktionsbit Funktionsbits[] = {{1, 0}, {2, 1}, {3, 2}, {4, 3}, {5, 4}, {6, 5}, {8, 14}};

constexpr std::int16_t OptikteilBit = 8;
constexpr std::int32_t Optikteilbits = 3;
constexpr std::int16_t PegelBit = 15;

Boolean Bit(int zahl, int bit) {
    return AlsBoolean(((zahl >> bit) & 1) != 0);
}

} // namespace

PnpAusgang PnpAusgangAus(std::int32_t registerwert) {
    PnpAusgang ausgang;
    for (const auto& [funktion, bit] : Funktionsbits)
        if (modDaten::GetBit(registerwert, bit) == True)
            ausgang.funktion = funktion;
    ausgang.optikteil = (registerwert >> OptikteilBit) & Optikteilbits;
    ausgang.pegel = modDaten::GetBit(registerwert, PegelBit) == True ? 0 : 1;
    return ausgang;
}

std::int32_t Registerwert(const PnpAusgang& ausgang) {
    std::int32_t wert = 0;
    for (const auto& [funktion, bit] : Funktionsbits)
        modDaten::SetBit(wert, bit, AlsBoolean(funktion == ausgang.funktion));
    modDaten::SetBit(wert, OptikteilBit, Bit(ausgang.optikteil, 0));
    modDaten::SetBit(wert, OptikteilBit + 1, Bit(ausgang.optikteil, 1));
    modDaten::SetBit(wert, PegelBit, AlsBoolean(ausgang.pegel == 0));
    return wert;
}

} // namespace varnoth
