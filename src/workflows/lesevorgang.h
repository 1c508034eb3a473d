#pragma once

#include "konfigurationstransfer.h"

#include <cstdint>

namespace varnoth {

/// Reads every readable parameter of the controller into the register image, each retried without limit. A
/// beam count above 512 becomes 0: that part counts as not connected. False when the user cancelled; the
/// image then keeps what was read till then.
bool LiesKonfiguration(Transferanzeige& anzeige);

/// Whether autosend can be started, by communication register 74 (its low 7 bits are 1 or 3).
bool AutosendWaehlbar(std::int32_t register74);

} // namespace varnoth
