#pragma once

#include "ablaufanzeige.h"
#include "boolean.h"

#include <functional>

namespace varnoth {

/// Tries a transaction until it succeeds; there is no limit. Before each attempt `zeige` hears its number,
/// from 1; after each attempt pending events run. False when the user cancelled: then even the result of an
/// attempt that succeeded does not count.
bool VersucheBisErfolg(Ablaufanzeige& anzeige, const std::function<void(int versuch)>& zeige,
                       const std::function<Boolean()>& transaktion);

} // namespace varnoth
