#pragma once

#include "registeradressen.h"
#include "werte.h"

#include <cstdint>
#include <string>
#include <vector>

namespace varnoth {

/// The registers that hold the blanking pattern of an optical part, 16 beams each.
using spezifisch::Blankingregister;

/// Beam by beam (0-based) whether it is blanked.
using Geblankte = std::vector<bool>;

/// The beams that the pattern's registers blank, for `strahlen` beams. Beams that the registers do not reach
/// are not blanked; a negative number counts as 0.
Geblankte GeblankteAusMuster(const Werte& muster, int strahlen);

/// The 32 registers of a pattern. Bits beyond the last beam are 0; beams beyond the registers are left out.
Werte MusterAus(const Geblankte& geblankte);

/// How many beams are blanked.
int AnzahlGeblankter(const Geblankte& geblankte);

/// Which beam (index) is under the pointer and, unless the resolution is 0, where it lies: "Strahl: 11,
/// 200mm". Empty for no beam (65535 or a negative index). UTF-8, in the current language.
std::string TextUnterMaus(int strahl, std::int32_t aufloesungMm);

} // namespace varnoth
