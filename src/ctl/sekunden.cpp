#include "sekunden.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace varnoth::ctl {

std::optional<Zeit> SekundenAus(std::string_view worte, double kleinste, double groesste) {
    std::string text(worte);
    std::ranges::replace(text, ',', '.');
    double sekunden = 0;
    const char* const ende = text.data() + text.size();
    const auto [stelle, fehler] = std::from_chars(text.data(), ende, sekunden, std::chars_format::fixed);
    const bool gelesen = fehler == std::errc() && stelle == ende;
    const bool passt = sekunden >= kleinste && sekunden <= groesste; // what is no number does not
    if (!gelesen || !passt)
        return std::nullopt;
    return std::chrono::duration_cast<Zeit>(std::chrono::duration<double>(sekunden));
}

} // namespace varnoth::ctl
