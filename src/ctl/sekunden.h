#pragma once

#include "umgebung.h"

#include <optional>
#include <string_view>

namespace varnoth::ctl {

/// A number of seconds, with a point or a comma before its decimals; nothing for words that are none, and for
/// one outside the limits.
std::optional<Zeit> SekundenAus(std::string_view worte, double kleinste, double groesste);

} // namespace varnoth::ctl
