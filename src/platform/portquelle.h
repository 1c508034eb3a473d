#pragma once

#include "portliste.h"

namespace varnoth {

/// The serial ports that the system tells of, in natural order, without what stands in their way. Each system
/// has its own source.
std::vector<Portangabe> PortsOhneBefund(const Portwurzeln& wurzeln);

} // namespace varnoth
