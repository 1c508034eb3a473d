#pragma once

#include <string_view>

namespace varnoth {

/// Whether a name comes before another where numbers in it count as numbers: "ttyUSB2" before "ttyUSB10".
/// Names that differ in nothing but leading zeros are in the order of their characters.
bool NatuerlichDavor(std::string_view eines, std::string_view anderes);

} // namespace varnoth
