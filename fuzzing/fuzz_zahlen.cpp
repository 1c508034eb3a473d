// Any text as a typed number: it gives a finite number, which depends on nothing but the number's own
// characters. Any number in hexadecimal digits reads back.

#include "zahlen.h"

#include "pruefe.h"

#include <cmath>
#include <string>

namespace {

using namespace varnoth;
using namespace varnoth::fuzzing;

void PruefeText(const std::string& text) {
    const double wert = Val(text);
    Pruefe(std::isfinite(wert), "a number is finite");
    Pruefe(Val(" \t" + text) == wert, "blanks before it do not count");
    Pruefe(Val(text + "!") == wert, "what does not fit ends it");
    if (text.starts_with('&'))
        Pruefe(wert >= 0 && wert <= 4294967295.0, "hexadecimal and octal numbers have 32 bits");
    if (text.starts_with('-'))
        Pruefe(wert <= 0, "a minus makes it no larger than zero");
    if (text.starts_with('+'))
        Pruefe(wert >= 0, "a plus makes it no smaller than zero");
    if (!text.empty() && std::string_view("+-.&0123456789 \t").find(text[0]) == std::string_view::npos)
        Pruefe(wert == 0, "what does not begin as a number is zero");
}

void PruefeZahl(unsigned zahl) {
    const std::string hex = AlsHex(zahl);
    Pruefe(Val("&H" + hex) == zahl, "hexadecimal digits read back");
    Pruefe(hex == "0" || hex[0] != '0', "there are no leading zeros");
    Pruefe(hex.find_first_not_of("0123456789ABCDEF") == std::string::npos, "digits are upper case");
    Pruefe(Val(std::to_string(zahl)) == zahl, "decimal digits read back");
    Pruefe(Val("-" + std::to_string(zahl)) == -static_cast<double>(zahl), "a minus turns it round");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    std::string_view bytes = AlsText(daten, laenge);
    PruefeText(std::string(bytes));
    unsigned zahl = 0;
    for (int i = 0; i < 4; ++i)
        zahl = zahl << 8U | NimmByte(bytes);
    PruefeZahl(zahl);
    return 0;
}
