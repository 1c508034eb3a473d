#pragma once

#include "blankingmuster.h"

#include <string>

namespace varnoth {

/// Width and height of the picture in pixels.
inline constexpr int Strahlenbildbreite = 640;
inline constexpr int Strahlenbildhoehe = 44;

/// The beams of an optical part from left to right as an SVG picture, the blanked ones black, with numbers
/// below them. Empty for no beams.
std::string Strahlenbild(const Geblankte& geblankte);

} // namespace varnoth
