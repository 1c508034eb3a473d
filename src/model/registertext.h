#pragma once

#include "speicherbereich.h"

#include <string>

namespace varnoth {

/// How a register is shown: "12", "2000H + 12" or "4000H + 12".
std::string Registertext(Speicherbereich bereich, std::int16_t adresse);

} // namespace varnoth
