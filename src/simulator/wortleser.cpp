#include "wortleser.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string>

namespace varnoth::simulator {

int LiesZahl(std::string_view text, std::string_view was, int von, int bis) {
    const bool hex = text.starts_with("0x");
    const std::string_view ziffern = hex ? text.substr(2) : text;
    int zahl = 0;
    const char* ende = ziffern.data() + ziffern.size();
    const auto [halt, fehler] = std::from_chars(ziffern.data(), ende, zahl, hex ? 16 : 10);
    if (fehler != std::errc{} || halt != ende || zahl < von || zahl > bis)
        throw std::invalid_argument(std::string(was) + ": \"" + std::string(text) +
                                    "\" is not a number from " + std::to_string(von) + " to " +
                                    std::to_string(bis));
    return zahl;
}

std::vector<std::string_view> Teile(std::string_view text, char trenner) {
    std::vector<std::string_view> teile;
    for (std::size_t anfang = 0; anfang <= text.size();) {
        const std::size_t ende = std::min(text.find(trenner, anfang), text.size());
        teile.push_back(text.substr(anfang, ende - anfang));
        anfang = ende + 1;
    }
    return teile;
}

std::vector<std::string_view> Woerter(std::string_view zeile) {
    std::vector<std::string_view> woerter;
    for (const std::string_view wort : Teile(zeile, ' '))
        if (!wort.empty())
            woerter.push_back(wort);
    return woerter;
}

} // namespace varnoth::simulator
