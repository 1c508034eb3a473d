#include "zahlen.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace varnoth {

namespace {

template<class Zahl>
Zahl LiesAnfang(std::string_view text, auto... wie) {
    Zahl zahl{};
    std::from_chars(text.data(), text.data() + text.size(), zahl, wie...);
    return zahl;
}

bool BeginntMitBasis(std::string_view text, char klein) {
    return text.size() >= 2 && text[0] == '&' && (text[1] | 0x20) == klein;
}

} // namespace

double Val(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    if (BeginntMitBasis(text, 'h'))
        return static_cast<double>(LiesAnfang<std::uint32_t>(text.substr(2), 16));
    if (BeginntMitBasis(text, 'o'))
        return static_cast<double>(LiesAnfang<std::uint32_t>(text.substr(2), 8));
    const std::size_t vorzeichen = text.starts_with('+') || text.starts_with('-') ? 1 : 0;
    const bool zahlMoeglich = text.find_first_of("0123456789.") == vorzeichen;
    if (text.starts_with('+'))
        text.remove_prefix(1);
    return zahlMoeglich ? LiesAnfang<double>(text, std::chars_format::general) : 0.0;
}

std::string AlsHex(unsigned wert) {
    char ziffern[16];
    const auto ende = std::to_chars(ziffern, ziffern + sizeof ziffern, wert, 16).ptr;
    std::string text(ziffern, ende);
    for (char& zeichen : text)
        zeichen = static_cast<char>(zeichen >= 'a' ? zeichen - 'a' + 'A' : zeichen);
    return text;
}

} // namespace varnoth
