#include "gruppenzaehler.h"

#include "bitsunddatum.h"

namespace varnoth {

namespace {
constexpr std::int16_t OderBit = 15;
constexpr Option Verknuepfungen[] = {{0, 5214}, {1 << OderBit, 5215}};
} // namespace

std::span<const Option> Gruppenverknuepfungen() {
    return Verknuepfungen;
}

bool GruppenzaehlerOder(std::int32_t registerwert) {
    return modDaten::GetBit(registerwert, OderBit) == True;
}

std::int32_t Gruppenzaehlerwert(std::int32_t anzahl, bool oder) {
    modDaten::SetBit(anzahl, OderBit, AlsBoolean(oder));
    return anzahl;
}

} // namespace varnoth
