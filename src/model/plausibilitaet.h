#pragma once

#include "boolean.h"

#include <functional>

namespace varnoth::modDaten {

/// Whether every register of the image, of all four optical parts, satisfies its rules.
bool IstPlausibel();

/// Checks the image. An implausible one is not kept: the reaction set below runs, message 3102 is shown, and
/// the default configuration is loaded. True = the image was plausible and stays.
Boolean PruefeKonfiguration();

/// Sets what happens first when an implausible image is found (the connected controller is to stop sending by
/// itself). An empty function takes it out.
void SetzeReaktionAufUnplausiblesAbbild(std::function<void()> reaktion);

/// Sets every beam count above 512 to 0: a part that reports an impossible count is treated as not connected.
void KorrigiereStrahlenzahlen();

} // namespace varnoth::modDaten
