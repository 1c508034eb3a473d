#include "strahlverdacht.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace varnoth {

namespace {

// Below these nothing is said: chance could have done it.
constexpr Zeit Mindestzeit = std::chrono::seconds(10);
constexpr double Mindestanteil = 0.01; // of the time in which the beam was measured
constexpr std::uint32_t MindestensGeflackert = 20;
constexpr std::uint32_t MindestensGewechselt = 4; // what comes and goes once changes twice

constexpr double SoGutWieImmer = 0.95;
constexpr double GuterTeil = 0.10;
constexpr std::uint32_t MehrAlsUmher = 5; // times

// The beams with which one is compared: those so far away, but not the very next, which may share its fault.
constexpr std::size_t Umkreis = 8;
constexpr std::size_t Hof = 2;

double Anteil(Zeit teil, Zeit ganzes) {
    return ganzes > Zeit{} ? static_cast<double>(teil.count()) / static_cast<double>(ganzes.count()) : 0;
}

bool Genuegt(Zeit zeit, const Strahlwerte& strahl) {
    return zeit >= Mindestzeit && Anteil(zeit, strahl.gemessen) >= Mindestanteil;
}

/// What is usual around a beam.
struct Nachbarschaft {
    std::uint32_t wechsel = 0;
    double alleinUnterbrochen = 0;
};

template<class Wert>
Wert Mittlerer(std::vector<Wert> werte) {
    if (werte.empty())
        return {};
    const auto mitte = werte.begin() + static_cast<std::ptrdiff_t>(werte.size() / 2);
    std::ranges::nth_element(werte, mitte);
    return *mitte;
}

Nachbarschaft NachbarschaftVon(std::span<const Strahlwerte> strahlen, std::size_t strahl) {
    std::vector<std::uint32_t> wechsel;
    std::vector<double> anteile;
    const std::size_t von = strahl > Umkreis ? strahl - Umkreis : 0;
    for (std::size_t i = von; i <= std::min(strahl + Umkreis, strahlen.size() - 1); ++i) {
        if (i + Hof >= strahl && i <= strahl + Hof)
            continue;
        wechsel.push_back(strahlen[i].alleinWechsel);
        anteile.push_back(Anteil(strahlen[i].alleinUnterbrochen, strahlen[i].umFrei));
    }
    return {.wechsel = Mittlerer(wechsel), .alleinUnterbrochen = Mittlerer(anteile)};
}

struct Verdachtsregel {
    Verdachtsart art;
    bool (*trifftZu)(const Strahlwerte& strahl, const Nachbarschaft& umher);
};

/// The first one that applies tells.
constexpr Verdachtsregel DieRegeln[] = {
    {Verdachtsart::NieFrei,
     [](const Strahlwerte& s, const Nachbarschaft& umher) {
         return Genuegt(s.umFrei, s) && Anteil(s.alleinUnterbrochen, s.umFrei) >= SoGutWieImmer &&
                umher.alleinUnterbrochen < GuterTeil;
     }},
    {Verdachtsart::NieUnterbrochen,
     [](const Strahlwerte& s, const Nachbarschaft&) {
         return Genuegt(s.umUnterbrochen, s) && Anteil(s.alleinFrei, s.umUnterbrochen) >= SoGutWieImmer;
     }},
    {Verdachtsart::Flackert,
     [](const Strahlwerte& s, const Nachbarschaft& umher) {
         return s.alleinWechsel >= MindestensGeflackert &&
                s.alleinWechsel >= MehrAlsUmher * std::max(umher.wechsel, 1U);
     }},
    {Verdachtsart::OftAllein,
     [](const Strahlwerte& s, const Nachbarschaft& umher) {
         const double anteil = Anteil(s.alleinUnterbrochen, s.umFrei);
         return Genuegt(s.umFrei, s) && anteil >= GuterTeil && s.alleinWechsel >= MindestensGewechselt &&
                anteil >= MehrAlsUmher * umher.alleinUnterbrochen;
     }},
};

std::optional<Verdachtsart> ArtVon(std::span<const Strahlwerte> strahlen, std::size_t i) {
    const Nachbarschaft umher = NachbarschaftVon(strahlen, i);
    const auto* const regel = std::ranges::find_if(
        DieRegeln, [&](const Verdachtsregel& zeile) { return zeile.trifftZu(strahlen[i], umher); });
    return regel == std::ranges::end(DieRegeln) ? std::nullopt : std::optional(regel->art);
}

} // namespace

std::vector<Strahlverdacht> Strahlverdaechte(std::span<const Strahlwerte> strahlen) {
    std::vector<Strahlverdacht> alle;
    for (std::size_t i = 0; i < strahlen.size(); ++i) {
        const auto art = ArtVon(strahlen, i);
        const int strahl = static_cast<int>(i);
        if (!art)
            continue;
        if (!alle.empty() && alle.back().art == *art && alle.back().bis == strahl - 1)
            alle.back().bis = strahl;
        else
            alle.push_back({.art = *art, .von = strahl, .bis = strahl, .werte = strahlen[i]});
    }
    return alle;
}

} // namespace varnoth
