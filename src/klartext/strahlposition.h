#pragma once

#include <optional>
#include <string>

namespace varnoth {

/// Where a beam lies: its number from 1, the beam spacing in millimetres. Nothing for a number that is no
/// beam's and without a spacing.
std::optional<int> Strahlposition(int nummer, int abstandMm);

/// The millimetres that a number of neighbouring beams takes up; nothing without a spacing.
std::optional<int> Strahlenbreite(int anzahl, int abstandMm);

/// "530 mm"; empty without a position.
std::string Positionstext(std::optional<int> positionMm);

} // namespace varnoth
