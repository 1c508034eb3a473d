#include "werkseinstellung.h"

#include "band.h"

#include <algorithm>

namespace varnoth::simulator {

namespace {

struct Vorgabe {
    int adresse;
    std::uint16_t wert;
};

constexpr Vorgabe GlobaleVorgaben[] = {
    {reg::Geraetetyp, Geraetetyp},
    {reg::Hardwareversion, 0x0102},
    {reg::Softwareversion, 0x0203},
    {reg::Schaltausgang, 0x8020}, // active at a hole, high level
};

constexpr Vorgabe SpezifischeVorgaben[] = {
    {reg::Aufloesung, 5},     {reg::Reichweite, 3}, {reg::Filter, 1},
    {reg::Gruppenzaehler, 1}, {reg::Haltezeit, 1},  {reg::Lochgroesse, 1},
};

constexpr Vorgabe Kommunikationsvorgaben[] = {
    {reg::Bustyp, 0},           {reg::Pausenzeit, 0},       {reg::Autosend, 259},
    {reg::Datenblock, 20},      {reg::Datenblock + 1, 276}, {reg::Datenblock + 2, 258},
    {reg::Datenblock + 3, 259}, {reg::Datenblock + 4, 260}, {reg::Datenblock + 5, 261},
    {reg::Datenblock + 6, 262}, {reg::Datenblock + 7, 263}, {reg::Autosendformat, 783},
};

constexpr int ToleranzJeStrahlen = 16;

void RichteOptikteilEin(Registerspeicher& speicher, int teil, int strahlen) {
    for (const auto& [adresse, wert] : SpezifischeVorgaben)
        speicher.Spezifisch(teil, adresse) = wert;
    const int toleranz = std::clamp(strahlen / ToleranzJeStrahlen, 1, 255);
    speicher.Spezifisch(teil, reg::Mittentoleranz) = static_cast<std::uint16_t>(toleranz);
}

} // namespace

Registerspeicher Werkseinstellung(const Aufbau& aufbau) {
    Registerspeicher speicher;
    for (const auto& [adresse, wert] : GlobaleVorgaben)
        speicher.Global(adresse) = wert;
    SchreibeText(speicher.Block({Bereich::Global, reg::Seriennummer}, 0, 10), "SIM-0001");
    SchreibeText(speicher.Block({Bereich::Global, reg::Herstelldatum}, 0, 4), "20250314");
    for (int teil = 0; teil < Optikteile; ++teil)
        RichteOptikteilEin(speicher, teil, aufbau.strahlen[static_cast<std::size_t>(teil)]);
    for (const auto& [adresse, wert] : Kommunikationsvorgaben)
        speicher.Kommunikation(adresse) = wert;
    speicher.Kommunikation(reg::Leitungsformat) =
        static_cast<std::uint16_t>(Registerwert(aufbau.format.value_or(Zeichenformat{.baud = aufbau.baud})));
    speicher.Kommunikation(reg::Stationsadresse) = static_cast<std::uint16_t>(aufbau.adresse);
    if (aufbau.band)
        aufbau.band->Uebernimm(1, speicher);
    return speicher;
}

void SchreibeText(std::span<std::uint16_t> werte, std::string_view text) {
    const auto zeichen = [text](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : static_cast<unsigned char>(' ');
    };
    for (std::size_t i = 0; i < werte.size(); ++i)
        werte[i] = static_cast<std::uint16_t>(zeichen(2 * i) * 256 + zeichen(2 * i + 1));
}

std::string LiesText(std::span<const std::uint16_t> werte) {
    std::string text;
    for (const std::uint16_t wert : werte) {
        text += static_cast<char>(wert >> 8);
        text += static_cast<char>(wert & 0xFF);
    }
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

} // namespace varnoth::simulator
