#pragma once

#include "menuebefehle.h"

namespace varnoth {

/// Whether a command leaves a replay before it runs. Commands that need the line, or the configuration in
/// use, do, for what they show and change is not what was recorded; the others go on beside it.
bool VerlaesstWiedergabe(Befehl befehl);

} // namespace varnoth
