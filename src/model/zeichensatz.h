#pragma once

#include <cstdint>
#include <string>

namespace varnoth {

/// A character of the Windows-1252 set, in which the controller's texts are written, as UTF-8.
std::string AlsUtf8(std::uint8_t zeichen);

/// The two characters of a register, the high byte first, as UTF-8.
std::string RegisterAlsUtf8(std::int32_t wert);

} // namespace varnoth
