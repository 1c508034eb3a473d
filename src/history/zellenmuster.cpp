#include "zellenmuster.h"

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

constexpr int Musterseite = 8; // logical pixels after which every pattern repeats

/// Whether a pixel of a pattern, 0..Musterseite - 1 each way, is drawn in its second colour.
using Muster = bool (*)(int x, int y);

struct Zeichnung {
    QColor grund;
    QColor zeichen;
    Muster muster;
};

bool Nirgends(int /*x*/, int /*y*/) {
    return false;
}
bool FallendeStriche(int x, int y) {
    return (Musterseite + x - y) % Musterseite == 0;
}
bool SteigendeStriche(int x, int y) {
    return (x + y) % (Musterseite / 2) == 0;
}
bool Punkte(int x, int y) {
    return x % 2 == 0 && y % (Musterseite / 2) == x % (Musterseite / 2);
}
bool Karos(int x, int y) {
    return (x / 2 + y / 2) % 2 == 0;
}

/// The one of some colours that can be told best from both a free cell and an interrupted one.
QColor Zweitfarbe(const Strahlfarben& farben) {
    const auto abstand = [&](const QColor& farbe) {
        return std::min(Kontrast(farbe, AlsFlaeche(farben.frei, farben.grund)),
                        Kontrast(farbe, farben.unterbrochen));
    };
    const QColor farbenZurWahl[] = {AlsFlaeche(farben.unterbrochen, farben.grund), farben.grund,
                                    farben.schrift};
    return *std::ranges::max_element(farbenZurWahl, {}, abstand);
}

/// What was interrupted at some time keeps a strong colour in every pixel: a cell of one pixel must not look
/// free.
Zeichnung ZeichnungFuer(Zellenart art, const Strahlfarben& farben) {
    const auto flaeche = [&](const QColor& farbe) { return AlsFlaeche(farbe, farben.grund); };
    switch (art) {
    case Zellenart::Leer:
        break;
    case Zellenart::Luecke:
        return {farben.grund, farben.striche, FallendeStriche};
    case Zellenart::NichtGemessen:
        return {farben.gehaeuse, farben.striche, Punkte};
    case Zellenart::Frei:
        return {flaeche(farben.frei), {}, Nirgends};
    case Zellenart::Geblankt:
        return {flaeche(farben.geblankt), farben.geblankt, SteigendeStriche};
    case Zellenart::Zeitweise:
        return {Zweitfarbe(farben), farben.unterbrochen, Karos};
    case Zellenart::Unterbrochen:
        return {farben.unterbrochen, {}, Nirgends};
    }
    return {farben.grund, {}, Nirgends};
}

} // namespace

Zellenmuster::Zellenmuster(const Strahlfarben& farben, double dichte) {
    const int pixel = std::max(1, static_cast<int>(std::lround(dichte)));
    seite = Musterseite * pixel;
    for (std::size_t art = 0; art < bilder.size(); ++art) {
        const Zeichnung zeichnung = ZeichnungFuer(static_cast<Zellenart>(art), farben);
        std::vector<QRgb>& bild = bilder.at(art);
        bild.reserve(static_cast<std::size_t>(seite) * static_cast<std::size_t>(seite));
        for (int y = 0; y < seite; ++y)
            for (int x = 0; x < seite; ++x)
                bild.push_back(zeichnung.muster(x / pixel, y / pixel) ? zeichnung.zeichen.rgb()
                                                                      : zeichnung.grund.rgb());
    }
}

} // namespace varnoth
