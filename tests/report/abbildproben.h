#pragma once

#include "abbild.h"

/// Images of controllers to write about.
namespace varnoth::abbildproben {

/// A controller with four optical parts, every setting of which differs from the default.
Abbild Vierteilig();

/// A random image, the same for a number in each run: of the four kinds by turns, values that lists offer,
/// values around them, whole registers, and all 32 bits of every place.
Abbild Beliebig(unsigned nummer);

} // namespace varnoth::abbildproben
