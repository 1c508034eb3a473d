#pragma once

#include "registerbeschreibung.h"
#include "werte.h"

#include <cstdint>

namespace varnoth {

/// A parameter of one register in the image; `optikteil` counts in the specific range only. 0 where no such
/// parameter starts.
std::int32_t LiesRegister(Speicherbereich bereich, std::int16_t adresse, int optikteil = 0);

/// Stores a parameter of one register. False when no such parameter starts there.
bool SchreibeRegister(Speicherbereich bereich, std::int16_t adresse, std::int32_t wert, int optikteil = 0);

} // namespace varnoth
