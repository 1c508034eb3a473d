#include "zeichenwandel.h"

#include "utf8.h"
#include "zeichensatz.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace varnoth::ctl {

namespace {

using Codepunkt = std::uint32_t;

constexpr Codepunkt LetztesAscii = 0x7F;
constexpr Codepunkt LetztesLatin1 = 0xFF;

constexpr std::pair<Codepunkt, const char*> Umschreibungen[] = {
    {0xA0, " "},    {0xA9, "(C)"},   {0xAB, "\""},   {0xAE, "(R)"}, {0xB0, "o"},    {0xB1, "+-"},
    {0xB5, "u"},    {0xBB, "\""},    {0xC4, "Ae"},   {0xD6, "Oe"},  {0xD8, "O"},    {0xDC, "Ue"},
    {0xDF, "ss"},   {0xE4, "ae"},    {0xF6, "oe"},   {0xF8, "o"},   {0xFC, "ue"},   {0x2013, "-"},
    {0x2014, "-"},  {0x2018, "'"},   {0x2019, "'"},  {0x201A, "'"}, {0x201C, "\""}, {0x201D, "\""},
    {0x201E, "\""}, {0x2026, "..."}, {0x20AC, "EUR"}};

bool IstFortsetzung(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

std::string_view ErstesZeichen(std::string_view text) {
    std::size_t laenge = 1;
    while (laenge < text.size() && IstFortsetzung(text[laenge]))
        ++laenge;
    return text.substr(0, laenge);
}

Codepunkt PunktVon(std::string_view zeichen) {
    constexpr std::array<unsigned, 5> Masken{0, 0x7F, 0x1F, 0x0F, 0x07};
    Codepunkt punkt = static_cast<unsigned char>(zeichen.front()) & Masken.at(zeichen.size());
    for (const char byte : zeichen.substr(1))
        punkt = (punkt << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
    return punkt;
}

std::string Umschrieben(Codepunkt punkt) {
    const auto* const treffer =
        std::ranges::find(Umschreibungen, punkt, &std::pair<Codepunkt, const char*>::first);
    return treffer == std::end(Umschreibungen) ? "?" : treffer->second;
}

} // namespace

std::string FuerVorrat(std::string_view text, Zeichenvorrat vorrat) {
    if (vorrat == Zeichenvorrat::Utf8 || !IstUtf8(text))
        return std::string(text);
    const Codepunkt letztes = vorrat == Zeichenvorrat::Latin1 ? LetztesLatin1 : LetztesAscii;
    std::string gewandelt;
    while (!text.empty()) {
        const std::string_view zeichen = ErstesZeichen(text);
        const Codepunkt punkt = PunktVon(zeichen);
        gewandelt += punkt <= letztes ? std::string(1, static_cast<char>(punkt)) : Umschrieben(punkt);
        text.remove_prefix(zeichen.size());
    }
    return gewandelt;
}

std::string WortAlsUtf8(std::string_view wort) {
    if (IstUtf8(wort))
        return std::string(wort);
    std::string gewandelt;
    for (const char byte : wort)
        gewandelt += AlsUtf8(static_cast<std::uint8_t>(byte));
    return gewandelt;
}

int Anzeigebreite(std::string_view text) {
    return static_cast<int>(std::ranges::count_if(text, [](char byte) { return !IstFortsetzung(byte); }));
}

std::string_view Gekuerzt(std::string_view text, int breite) {
    std::string_view rest = text;
    for (int i = 0; i < breite && !rest.empty(); ++i)
        rest.remove_prefix(ErstesZeichen(rest).size());
    return text.substr(0, text.size() - rest.size());
}

std::string Aufgefuellt(std::string_view text, int breite) {
    return std::string(text) +
           std::string(static_cast<std::size_t>(std::max(breite - Anzeigebreite(text), 0)), ' ');
}

} // namespace varnoth::ctl
