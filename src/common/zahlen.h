#pragma once

#include <string>
#include <string_view>

namespace varnoth {

/// The number a text begins with: leading blanks are skipped, then as much is read as makes a number (decimal
/// with point and exponent, "&H" hexadecimal, "&O" octal). A text that begins otherwise gives 0.
double Val(std::string_view text);

/// Upper-case hexadecimal digits without leading zeros ("0" for 0).
std::string AlsHex(unsigned wert);

} // namespace varnoth
