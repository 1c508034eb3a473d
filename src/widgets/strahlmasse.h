#pragma once

#include <algorithm>
#include <cmath>

namespace varnoth {

/// Lengths of a beam bar's parts in logical pixels.
namespace Masse {
inline constexpr double Rand = 4;
inline constexpr double Luecke = 3;
inline constexpr double Strich = 6;
inline constexpr double Strichabstand = 4;
inline constexpr double Gehaeuse = 13;
inline constexpr double Ueberstand = 5;
inline constexpr double Leiste = 4;
inline constexpr double Uebersicht = 16;
inline constexpr double Meldung = 3;
inline constexpr double MeldungUnter = 6;
inline constexpr double MindestStrahl = 48;
} // namespace Masse

/// A logical length in device pixels, at least one.
inline int Geraetepixel(double logisch, double dichte) {
    return std::max(1, static_cast<int>(std::lround(logisch * dichte)));
}

} // namespace varnoth
