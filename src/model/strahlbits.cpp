#include "strahlbits.h"

#include <cstddef>

namespace varnoth {

namespace {

constexpr int StrahlenJeRegister = 16;

bool IstErreichbar(const Werte& muster, int strahl) {
    return strahl >= 0 && static_cast<std::size_t>(strahl / StrahlenJeRegister) < muster.size();
}

std::size_t Registerindex(int strahl) {
    return static_cast<std::size_t>(strahl / StrahlenJeRegister);
}

/// The bit of a beam in its register. Exchanging the two bytes turns bit 3 of the bit's number over.
std::int32_t Maske(int strahl) {
    return 1 << ((strahl % StrahlenJeRegister) ^ 8);
}

} // namespace

bool StrahlBit(const Werte& muster, int strahl) {
    return IstErreichbar(muster, strahl) && (muster[Registerindex(strahl)] & Maske(strahl)) != 0;
}

void SetzeStrahlBit(Werte& muster, int strahl, bool zustand) {
    if (!IstErreichbar(muster, strahl))
        return;
    std::int32_t& wert = muster[Registerindex(strahl)];
    wert = zustand ? wert | Maske(strahl) : wert & ~Maske(strahl);
}

} // namespace varnoth
