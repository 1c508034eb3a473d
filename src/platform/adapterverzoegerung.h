#pragma once

#include "portangabe.h"

#include <string>

namespace varnoth {

/// Sets the latency timer of an adapter to 1 ms, until it is unplugged. Gives why that was not possible and
/// what helps, in the current language; empty when it is done.
std::string VerkuerzeVerzoegerung(const Portangabe& port);

} // namespace varnoth
