#pragma once

#include "abbild.h"
#include "boolean.h"
#include "parameterstelle.h"

#include <functional>

namespace varnoth {

/// Whether every register of the image, of all four optical parts, satisfies its rules.
bool IstPlausibel(const Abbild& abbild);

/// The parameters that do not satisfy their rules.
Parametermenge UnplausibleStellen(const Abbild& abbild);

/// Sets every beam count above 512 to 0: a part that reports an impossible count is treated as not connected.
/// Gives whether there was one.
bool KorrigiereStrahlenzahlen(Abbild& abbild);

} // namespace varnoth

/// The same for the image in use.
namespace varnoth::modDaten {

bool IstPlausibel();

/// Marks the configuration as changed where it corrects something.
void KorrigiereStrahlenzahlen();

/// Checks the image. An implausible one is not kept: the reaction set below runs, message 3102 is shown, and
/// the default configuration is loaded. True = the image was plausible and stays.
Boolean PruefeKonfiguration();

/// Sets what happens first when an implausible image is found (the connected controller is to stop sending by
/// itself). An empty function takes it out.
void SetzeReaktionAufUnplausiblesAbbild(std::function<void()> reaktion);

} // namespace varnoth::modDaten
