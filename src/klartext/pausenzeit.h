#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace varnoth {

/// What the field of the pause time shows once the user leaves it: at most 65535, everything else as typed.
std::string PausenzeitBeimVerlassen(const std::string& text);

/// The number in the field, rounded; a number outside 32 bits gives the nearest one inside.
std::int32_t Pausenzeitwert(std::string_view text);

} // namespace varnoth
