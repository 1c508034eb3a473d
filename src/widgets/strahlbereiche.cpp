#include "strahlbereiche.h"

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

// Less of a beam than this is a rounding error.
constexpr double Spiel = 1e-9;

} // namespace

Strahlbereich SichtbareStrahlen(const Ausschnitt& ausschnitt, int strahlen) {
    const int von = static_cast<int>(std::floor(ausschnitt.unten + Spiel)) + 1;
    const int bis = static_cast<int>(std::ceil(ausschnitt.unten + ausschnitt.anzahl - Spiel));
    if (strahlen <= 0 || bis < von)
        return {};
    return {std::clamp(von, 1, strahlen), std::clamp(bis, 1, strahlen)};
}

std::vector<Strahlbereich> Bereiche(std::span<const Strahlzustand> zustaende, Strahlzustand zustand) {
    std::vector<Strahlbereich> bereiche;
    for (std::size_t strahl = 0; strahl < zustaende.size(); ++strahl) {
        if (zustaende[strahl] != zustand)
            continue;
        const auto nummer = static_cast<int>(strahl) + 1;
        if (!bereiche.empty() && bereiche.back().bis == nummer - 1)
            bereiche.back().bis = nummer;
        else
            bereiche.push_back({nummer, nummer});
    }
    return bereiche;
}

std::string Bereichstext(std::span<const Strahlbereich> bereiche) {
    std::string text;
    for (const auto& [von, bis] : bereiche) {
        text += (text.empty() ? "" : ", ") + std::to_string(von);
        if (bis > von)
            text += "–" + std::to_string(bis);
    }
    return text;
}

} // namespace varnoth
