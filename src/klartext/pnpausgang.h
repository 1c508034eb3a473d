#pragma once

#include "option.h"

#include <cstdint>
#include <span>

namespace varnoth {

/// What the switching output does: the selected index in each of its three groups of options.
struct PnpAusgang {
    int funktion = 0;  ///< 0..8, 7 is never chosen
    int optikteil = 0; ///< 0..3: the optical part that drives the output
    int pegel = 1;     ///< 0 = active high, 1 = active low

    bool operator==(const PnpAusgang&) const = default;
};

/// The function that exists in no controller; its option is hidden.
inline constexpr int VerborgenePnpFunktion = 7;

/// What each group of options offers, in the order of its indices; the hidden function is left out.
std::span<const Option> PnpFunktionen();
std::span<const Option> PnpOptikteile();
std::span<const Option> PnpPegel();

/// The options that the register selects. Where it names several functions, the last one in the order of the
/// options counts.
PnpAusgang PnpAusgangAus(std::int32_t registerwert);

/// The register value that the options stand for.
std::int32_t Registerwert(const PnpAusgang& ausgang);

} // namespace varnoth
