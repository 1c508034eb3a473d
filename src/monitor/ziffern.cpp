#include "ziffern.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr double Vergroesserung = 1.35;
constexpr int Ziffernzeilen = 7;       // six measured values and the blanked beams
constexpr double HoeheJeZiffer = 1.25; // of a digit's size
constexpr double Anteil = 0.46;        // of the view's width that the numbers may take
constexpr double Zahlbreite = 5.6;     // of caption and widest number, in digit's sizes
constexpr double Positionsbreite = 2.4;
constexpr double Raender = 3.7; // beside the numbers, in sizes of the font
constexpr double Beschriftung = 0.45;
constexpr int PositionenAb = 32; // times the font's size

} // namespace

int Zifferngroesse(const Ziffernplatz& platz) {
    const double nachHoehe = platz.hoehe / (Ziffernzeilen * HoeheJeZiffer);
    const double breite = platz.breite * Anteil - Raender * platz.schrift;
    const double nachBreite = breite / (Zahlbreite + (platz.mitPosition ? Positionsbreite : 0));
    return static_cast<int>(std::max(platz.schrift * Vergroesserung, std::min(nachHoehe, nachBreite)));
}

int Beschriftungsgroesse(int ziffern, int schrift) {
    return std::max(schrift, static_cast<int>(ziffern * Beschriftung));
}

bool HatPlatzFuerPositionen(int breite, int schrift) {
    return breite >= PositionenAb * schrift;
}

} // namespace varnoth
