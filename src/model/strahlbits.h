#pragma once

#include "werte.h"

namespace varnoth {

/// One bit a beam (0-based) over consecutive registers, 16 beams a register, the first eight in the high
/// byte: beam 0 is bit 8 of the first register, beam 8 its bit 0. Blanking patterns and live beam states come
/// so.

/// The bit of a beam; false for a beam that the registers do not reach.
bool StrahlBit(const Werte& muster, int strahl);

/// Sets the bit of a beam and leaves all others. A beam that the registers do not reach is ignored.
void SetzeStrahlBit(Werte& muster, int strahl, bool zustand);

} // namespace varnoth
