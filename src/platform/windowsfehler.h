#pragma once

#include "anschluss.h"

namespace varnoth {

/// What the failure to open a serial port of Windows, by the system's number, tells of the port; 0 stands for
/// no failure. The system opens a port for one program alone and says "access denied" to any other.
Hindernis HindernisNachOeffnen(unsigned long fehler);

/// Whether an error number says that the device itself fails or does not obey.
bool IstGeraetefehler(unsigned long fehler);

} // namespace varnoth
