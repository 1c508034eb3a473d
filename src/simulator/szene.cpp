#include "szene.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace varnoth::simulator {

namespace {

constexpr double Lochabstand = 5.0, Lochdauer = 1.5; // seconds
constexpr double Bahnlaenge = 30.0, Bahnluecke = 1.5;
constexpr int Bandteiler = 16; // holes and flicker reach over a sixteenth of the part

std::uint64_t Mische(std::uint64_t x) {
    x += 0x9E3779B97F4A7C15U;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9U;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBU;
    return x ^ (x >> 31);
}

double Welle(double sekunden, double periode, double phase) {
    return std::sin(2 * std::numbers::pi * (sekunden / periode + phase));
}

int Bandbreite(int anzahl) {
    return std::max(1, anzahl / Bandteiler);
}

} // namespace

/// The web's lowest beam and the first beam above it, and the part's beams.
struct Szene::Bahn {
    int unten;
    int oben;
    int anzahl;
};

std::uint64_t Szene::Zufall(std::uint64_t was, std::uint64_t wievieltes) const {
    return Mische(Mische(startwert + was) + wievieltes);
}

double Szene::Phase(int teil, int welle) const {
    constexpr double Stufen = 1024;
    return static_cast<double>(Zufall(static_cast<std::uint64_t>(teil), static_cast<std::uint64_t>(welle)) %
                               1024) /
           Stufen;
}

Szene::Bahn Szene::BahnVon(int teil, int anzahl, double sekunden) const {
    const double mitte =
        0.5 + 0.12 * Welle(sekunden, 17, Phase(teil, 0)) + 0.05 * Welle(sekunden, 3.7, Phase(teil, 1));
    const double halb = 0.20 + 0.06 * Welle(sekunden, 7.3, Phase(teil, 2));
    const auto strahl = [anzahl](double anteil) {
        return std::clamp(static_cast<int>(std::lround(anteil * anzahl)), 0, anzahl);
    };
    return {strahl(mitte - halb), strahl(mitte + halb), anzahl};
}

void Szene::StanzeLoch(Strahlenbild& bild, int teil, const Bahn& bahn, double sekunden) const {
    const double nummer = std::floor(sekunden / Lochabstand);
    const double alter = sekunden - nummer * Lochabstand;
    const int breite = bahn.oben - bahn.unten;
    if (alter > Lochdauer || breite < 3)
        return;
    const auto zufall = Zufall(100U + static_cast<unsigned>(teil), static_cast<std::uint64_t>(nummer));
    const int groesse = 1 + static_cast<int>(zufall % static_cast<unsigned>(Bandbreite(bahn.anzahl)));
    const double weg = 0.2 + 0.6 * alter / Lochdauer;
    const int anfang = bahn.unten + 1 + static_cast<int>(weg * (breite - 2));
    for (int strahl = anfang; strahl < std::min(anfang + groesse, bahn.oben - 1); ++strahl)
        bild.set(static_cast<std::size_t>(strahl));
}

void Szene::Flimmere(Strahlenbild& bild, int anzahl, const Bahn& bahn, Zeit zeit) const {
    const int band = Bandbreite(anzahl);
    const auto muster = Zufall(200, static_cast<std::uint64_t>(zeit / Abtastzeit));
    for (int strahl = std::max(0, bahn.oben - band); strahl < std::min(anzahl, bahn.oben + band); ++strahl)
        if (Mische(muster + static_cast<unsigned>(strahl)) % 4 == 0)
            bild.flip(static_cast<std::size_t>(strahl));
}

Strahlenbild Szene::Stand(int teil, int anzahl, Zeit zeit) const {
    const double sekunden = std::chrono::duration<double>(zeit).count();
    Strahlenbild bild = ~Strahlenbild{} >> static_cast<std::size_t>(MaxStrahlen - anzahl);
    if (std::fmod(sekunden / Bahnlaenge + Phase(teil, 3), 1.0) * Bahnlaenge < Bahnluecke)
        return bild;
    const Bahn bahn = BahnVon(teil, anzahl, sekunden);
    for (int strahl = bahn.unten; strahl < bahn.oben; ++strahl)
        bild.reset(static_cast<std::size_t>(strahl));
    StanzeLoch(bild, teil, bahn, sekunden);
    if (static_cast<std::uint64_t>(teil) == startwert % Optikteile)
        Flimmere(bild, anzahl, bahn, zeit);
    return bild;
}

} // namespace varnoth::simulator
