#pragma once

#include "datenstand.h"
#include "strahlgeometrie.h"

#include <span>
#include <string>

namespace varnoth {

/// What a beam bar shows, in words of the current language: the number of beams, which are interrupted and
/// which blanked, and the beam at the cursor (index, -1: none) with its position and state. Without values
/// (Ungueltig) no states.
std::string Strahlansage(std::span<const Strahlzustand> zustaende, Datenstand stand, int strahl,
                         int abstandMm);

} // namespace varnoth
