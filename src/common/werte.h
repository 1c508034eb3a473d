#pragma once

#include <cstdint>
#include <vector>

namespace varnoth {

/// Register values on their way between link, image and dialogs: element i = register start + i, each a
/// 16-bit register (0..65535) in a signed 32-bit integer.
using Werte = std::vector<std::int32_t>;

/// Optical parts C1..C4 have the index 0..3.
inline constexpr int AnzahlOptikteile = 4;

/// The most beams that all optical parts have together.
inline constexpr int MaxStrahlen = 512;

} // namespace varnoth
