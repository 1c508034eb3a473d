#include "wortlaut.h"

#include <algorithm>
#include <charconv>

namespace varnoth {

namespace {

constexpr std::string_view Leerraum = " \t\r\n";

char Gleichgestellt(char zeichen) {
    if (zeichen >= 'A' && zeichen <= 'Z')
        return static_cast<char>(zeichen - 'A' + 'a');
    return zeichen == ',' ? '.' : zeichen;
}

} // namespace

std::string Wortkern(std::string_view worte) {
    std::string kern;
    for (const char zeichen : worte)
        if (Leerraum.find(zeichen) == std::string_view::npos)
            kern += Gleichgestellt(zeichen);
    return kern;
}

std::string_view OhneRand(std::string_view text) {
    const auto anfang = text.find_first_not_of(Leerraum);
    if (anfang == std::string_view::npos)
        return {};
    return text.substr(anfang, text.find_last_not_of(Leerraum) - anfang + 1);
}

std::vector<std::string_view> Zerlege(std::string_view text, char trenner) {
    std::vector<std::string_view> teile;
    for (;;) {
        const auto ende = text.find(trenner);
        teile.push_back(OhneRand(text.substr(0, ende)));
        if (ende == std::string_view::npos)
            return teile;
        text.remove_prefix(ende + 1);
    }
}

std::optional<std::int32_t> ZahlAus(std::string_view text, std::int32_t groesste) {
    std::int32_t zahl = 0;
    const char* const ende = text.data() + text.size();
    const auto [stelle, fehler] = std::from_chars(text.data(), ende, zahl);
    if (fehler != std::errc() || stelle != ende || text.starts_with('-') || zahl > groesste)
        return std::nullopt;
    return zahl;
}

} // namespace varnoth
