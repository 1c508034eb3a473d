#include "gruppenzaehler.h"

#include "bitsunddatum.h"

namespace varnoth {

namespace {
constexpr std::int16_t OderBit = 15;
}

bool GruppenzaehlerOder(std::int32_t registerwert) {
    return modDaten::GetBit(registerwert, OderBit) == True;
}

std::int32_t Gruppenzaehlerwert(std::int32_t anzahl, bool oder) {
    modDaten::SetBit(anzahl, OderBit, AlsBoolean(oder));
    return anzahl;
}

} // namespace varnoth
