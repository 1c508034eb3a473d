#pragma once

#include <sys/sysmacros.h>
#include <sys/types.h>

namespace varnoth {

/// Whether a device number is that of a pseudo terminal's near end.
inline bool IstPseudoterminal(dev_t geraet) {
    constexpr unsigned Erstes = 136, Letztes = 143; // major numbers
    return major(geraet) >= Erstes && major(geraet) <= Letztes;
}

} // namespace varnoth
