#include "strahlworte.h"

#include "texte.h"
#include "textmitwerten.h"
#include "zeitworte.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace varnoth {

namespace {

constexpr std::int16_t TextStrahl = 6417, TextStrahlen = 6418, TextGeblankt = 6413;
constexpr std::int16_t Zellentexte[] = {6416, 6415, 6414, 6410,
                                        6413, 6412, 6411}; // in the order of Zellenart
constexpr std::int16_t Spaltentexte[AnzahlStrahlspalten] = {6420, 6421, 6422, 6423, 6424, 6425, 6426};

struct Verdachtstexte {
    std::int16_t frage;
    std::int16_t grund;
    Zeit Strahlwerte::*allein;
    Zeit Strahlwerte::*von;
};

/// In the order of Verdachtsart.
constexpr Verdachtstexte DieVerdachtstexte[] = {
    {6430, 6434, &Strahlwerte::alleinUnterbrochen, &Strahlwerte::umFrei},
    {6431, 6435, &Strahlwerte::alleinFrei, &Strahlwerte::umUnterbrochen},
    {6432, 6436, &Strahlwerte::alleinUnterbrochen, &Strahlwerte::gemessen},
    {6433, 6437, &Strahlwerte::alleinUnterbrochen, &Strahlwerte::umFrei},
};

const Verdachtstexte& TexteFuer(Verdachtsart art) {
    return DieVerdachtstexte[static_cast<std::size_t>(art)];
}

bool IstEnglisch() {
    return GetSprachoffset() == Englisch;
}

template<class... Werte>
std::string Gesetzt(const char* muster, Werte... werte) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), muster, werte...);
    return text.data();
}

std::string Dezimal(double zahl) {
    std::string text = Gesetzt("%.1f", zahl);
    if (!IstEnglisch())
        std::ranges::replace(text, '.', ',');
    return text;
}

} // namespace

std::string Dauerworte(Zeit dauer) {
    const auto ms = std::chrono::round<std::chrono::milliseconds>(dauer).count();
    if (ms < 1000)
        return std::to_string(ms) + " ms";
    if (ms < 59'950)
        return Dezimal(static_cast<double>(ms) / 1000) + " s";
    const auto s = static_cast<int>(std::chrono::round<std::chrono::seconds>(dauer).count());
    if (s < 3600)
        return Gesetzt("%d min %02d s", s / 60, s % 60);
    return Gesetzt("%d h %02d min", s / 3600, s % 3600 / 60);
}

std::string Anteilworte(double anteil) {
    if (anteil <= 0 || anteil >= 1)
        return anteil <= 0 ? "0 %" : "100 %";
    return Dezimal(std::clamp(std::round(anteil * 1000) / 10, 0.1, 99.9)) + " %";
}

std::string Zellenworte(Zellenart art) {
    return LadeText(Zellentexte[static_cast<std::size_t>(art)]);
}

std::string Strahlname(int von, int bis) {
    if (von == bis)
        return LadeTextMit(TextStrahl, {std::to_string(von + 1)});
    return LadeTextMit(TextStrahlen, {std::to_string(von + 1), std::to_string(bis + 1)});
}

std::string Strahlplatz(int strahl, int abstandMm) {
    return abstandMm > 0 ? std::to_string(strahl * abstandMm) + " mm" : std::string();
}

std::string Verdachtsfrage(const Strahlverdacht& verdacht) {
    return LadeTextMit(TexteFuer(verdacht.art).frage, {Strahlname(verdacht.von, verdacht.bis)});
}

std::string Verdachtsgrund(const Strahlverdacht& verdacht) {
    const Verdachtstexte& texte = TexteFuer(verdacht.art);
    const Zeit allein = verdacht.werte.*texte.allein;
    const Zeit von = verdacht.werte.*texte.von;
    const double anteil =
        von > Zeit{} ? static_cast<double>(allein.count()) / static_cast<double>(von.count()) : 0;
    return LadeTextMit(texte.grund,
                       {Anteilworte(anteil), Dauerworte(von), std::to_string(verdacht.werte.alleinWechsel),
                        std::to_string(verdacht.werte.wechsel)});
}

const Strahlverdacht* VerdachtVon(std::span<const Strahlverdacht> verdaechte, int strahl) {
    const auto da = std::ranges::find_if(verdaechte, [strahl](const Strahlverdacht& verdacht) {
        return verdacht.von <= strahl && strahl <= verdacht.bis;
    });
    return da == verdaechte.end() ? nullptr : &*da;
}

std::string Spaltentitel(Strahlspaltenart spalte) {
    return LadeText(Spaltentexte[static_cast<std::size_t>(spalte)]);
}

std::string Spaltenworte(Strahlspaltenart spalte, const Strahlwerte& werte, int strahl, int abstandMm,
                         const Messangaben& angaben, std::span<const Strahlverdacht> verdaechte) {
    using enum Strahlspaltenart;
    const bool gemessen = werte.gemessen > Zeit{};
    switch (spalte) {
    case Nummer:
        return std::to_string(strahl + 1);
    case Platz:
        return Strahlplatz(strahl, abstandMm);
    case Anteil:
        return gemessen ? Anteilworte(werte.Anteil()) : werte.geblankt > Zeit{} ? LadeText(TextGeblankt) : "";
    case Wechsel:
        return gemessen ? std::to_string(werte.wechsel) : "";
    case Laengste:
        return werte.unterbrochen > Zeit{} ? Dauerworte(werte.laengste) : "";
    case LetzterWechsel:
        return werte.letzterWechsel ? Zeitworte(angaben, *werte.letzterWechsel) : "";
    case Verdacht:
        const Strahlverdacht* const verdacht = VerdachtVon(verdaechte, strahl);
        return verdacht != nullptr ? Verdachtsfrage(*verdacht) : "";
    }
    return {};
}

} // namespace varnoth
