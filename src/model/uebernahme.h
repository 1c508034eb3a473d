#pragma once

#include "vergleich.h"

namespace varnoth {

/// Whether a row can be taken over from one side into the other: it differs, and a write sends it.
bool IstUebernehmbar(const Vergleichszeile& zeile);

/// What comes of taking parameters over into a copy of a configuration.
struct Uebernahme {
    Abbild abbild;              ///< the configuration with the values that were taken over
    Parametermenge unplausible; ///< parameters that do not satisfy their rules; none: `abbild` may be used
};

/// Takes parameters over from `quelle` into a copy of `ziel` and checks the whole of it.
[[nodiscard]] Uebernahme Uebernimm(const Abbild& ziel, const Abbild& quelle, const Parametermenge& stellen);

} // namespace varnoth
