#pragma once

#include <cstdint>

namespace varnoth {

/// The autosend baud rate in the low byte of communication register 126; 0 for an unknown code.
std::int32_t AutosendBaudrate(std::int32_t autosendformat);

/// The number of bytes that autosend can transmit in one cycle of `tzl` ms, the longest of all parts; below 0
/// where there is no time for any.
std::int32_t UebertragbareBytes(double tzl, std::int32_t baudrate);

} // namespace varnoth
