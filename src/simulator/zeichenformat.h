#pragma once

#include <string_view>

namespace varnoth::simulator {

/// How the characters on the line look.
struct Zeichenformat {
    int baud = 38400;
    char paritaet = 'n'; ///< n, e or o
    int stoppbits = 2;   ///< 1 or 2

    bool operator==(const Zeichenformat&) const = default;
};

/// Reads "9600,e,8,1": a speed that controllers know (1200 to 57600), the parity, 8 data bits, 1 or 2 stop
/// bits.
/// @throws std::invalid_argument with a sentence that begins with `was`
Zeichenformat LiesZeichenformat(std::string_view text, std::string_view was);

/// What communication register 2 says of the format.
unsigned Registerwert(const Zeichenformat& format);

} // namespace varnoth::simulator
