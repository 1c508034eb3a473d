#pragma once

#include "werte.h"

#include <array>
#include <cstdint>

namespace varnoth {

/// Cycle times in microseconds.
struct Zykluszeiten {
    std::array<std::int32_t, AnzahlOptikteile> zyklus{}; ///< of each optical part; 0 = it has no beams
    std::int32_t gesamt = 0;                             ///< the longest of them

    bool operator==(const Zykluszeiten&) const = default;
};

/// The cycle times that follow from the beam counts of the optical parts (0 = not present). The parts are
/// scanned one after another, so each present part lengthens the cycle of all.
Zykluszeiten ZykluszeitenFuer(const std::array<std::int32_t, AnzahlOptikteile>& strahlenzahlen);

} // namespace varnoth

/// The cycle times in force, 0 until they are computed.
namespace varnoth::modHilfsFunktionen {

/// Recomputes the cycle times from the beam counts in the register image.
void BerechneZykluszeiten();

/// The cycle time of optical part 0..3 in microseconds; 0 for a part without beams or another number.
std::int32_t GetZykluszeit(int optikteil);

/// The longest cycle time in microseconds.
std::int32_t GetGesamtzykluszeit();

} // namespace varnoth::modHilfsFunktionen
