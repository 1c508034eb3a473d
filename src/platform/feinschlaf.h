#pragma once

#include "umgebung.h"

namespace varnoth {

/// Lets the sleeps of this thread end when they should, not some tens of microseconds later, where the system
/// must be told.
void WeckePuenktlich();

/// Sleeps for so long, finer than in whole milliseconds, and a little longer: on Linux by tens of
/// microseconds, on Windows by half a millisecond. Serves no events. Nothing for a time below 1 us.
void SchlafeFein(Zeit dauer);

/// By how much a sleep may be found late in the course of things; what is above that is the machine's doing.
Zeit LaengsteWeckdauer();

} // namespace varnoth
