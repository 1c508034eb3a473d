#pragma once

#include "anschluss.h"

namespace varnoth {

/// What an error number of Windows is called elsewhere (a POSIX number, for Systemfehler); 0 for one that
/// people seldom meet.
int AlsFehlernummer(unsigned long windowsnummer);

/// What the failure to open a serial port tells of it; 0 stands for no failure. Windows opens a port for one
/// program alone and says "access denied" to any other.
Hindernis HindernisNachOeffnen(unsigned long windowsnummer);

} // namespace varnoth
