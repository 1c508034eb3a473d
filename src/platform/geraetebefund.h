#pragma once

#include "anschluss.h"

#include <string>

namespace varnoth {

/// What stands in the way of opening a device, as far as its path and its rights tell: it is not there, or
/// this user may not open it, with who may. It is not opened for that.
Portbefund BefundDesGeraets(const std::string& pfad);

} // namespace varnoth
