#pragma once

#include <optional>
#include <string_view>

namespace varnoth {

enum class Paritaet { Keine, Gerade, Ungerade, Eins, Null };
enum class Stoppbits { Eins, Eineinhalb, Zwei };

/// The parts of a port settings string.
struct Porteinstellungen {
    int baud = 38400;
    Paritaet paritaet = Paritaet::Keine;
    int datenbits = 8;
    Stoppbits stoppbits = Stoppbits::Zwei;

    bool operator==(const Porteinstellungen&) const = default;
};

/// Reads "baud,parity,data bits,stop bits": a baud rate of 1 to 4000000, a parity letter n, e, o, m or s in
/// either case, 5 to 8 data bits, 1, 1.5 or 2 stop bits; blanks around the parts do not count. Nothing for
/// any other text.
std::optional<Porteinstellungen> LiesPorteinstellungen(std::string_view text);

/// Bit times that one character takes on the line, start bit included.
double Bitzeiten(const Porteinstellungen& einstellungen);
/// Microseconds that one character takes on the line.
double Zeichendauer(const Porteinstellungen& einstellungen);

} // namespace varnoth
