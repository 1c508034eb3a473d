#pragma once

#include "strahlstatistik.h"

#include <span>
#include <vector>

namespace varnoth {

/// What may be wrong with a beam.
enum class Verdachtsart : std::uint8_t {
    NieFrei,         ///< interrupted whenever those around it are free
    NieUnterbrochen, ///< free whenever those around it are interrupted
    Flackert,        ///< changes again and again while those around it do not
    OftAllein,       ///< interrupted alone for a good part of the time
};

/// Beams (index, both included) side by side of which the same is suspected.
struct Strahlverdacht {
    Verdachtsart art{};
    int von = 0;
    int bis = 0;
    Strahlwerte werte{}; ///< of the first of them

    bool operator==(const Strahlverdacht&) const = default;
};

/// What the numbers of all beams of a part make suspicious, from the lowest beam on. Each beam is in one at
/// most.
std::vector<Strahlverdacht> Strahlverdaechte(std::span<const Strahlwerte> strahlen);

} // namespace varnoth
