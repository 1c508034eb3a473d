#include "strahlfarben.h"

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

/// A hue, and how far it is to stand out from a light ground, a dark one and that of high contrast.
struct Farbton {
    float grad;
    float saettigung;
    double aufHell;
    double aufDunkel;
    double aufSchwarz;
};

struct Farbsatz {
    Farbton frei;
    Farbton unterbrochen;
    Farbton geblankt;
};

/// In the order of the sets.
constexpr Farbsatz DieSaetze[] = {
    {{168, 0.75F, 2.6, 4.5, 8}, {14, 0.85F, 5.4, 6.2, 6.2}, {210, 0.08F, 3.6, 3.6, 3.6}},
    {{212, 0.85F, 3.8, 4.5, 7}, {28, 1, 4.6, 8, 11}, {210, 0, 8.5, 3.2, 3.6}},
    {{150, 0.8F, 2.4, 8, 12}, {315, 0.75F, 6, 5, 7}, {210, 0.05F, 3.8, 3.4, 4}},
    {{0, 0, 1.9, 2.6, 3.2}, {0, 0, 15, 14, 19}, {0, 0, 4.6, 5.4, 7.5}},
};

constexpr double HelligkeitsGrenze = 0.18;
constexpr float FarbeDesAlten = 0.35F; // the rest is ground

double Linear(float anteil) {
    const auto wert = static_cast<double>(anteil);
    return wert <= 0.04045 ? wert / 12.92 : std::pow((wert + 0.055) / 1.055, 2.4);
}

double Leuchtdichte(const QColor& farbe) {
    return 0.2126 * Linear(farbe.redF()) + 0.7152 * Linear(farbe.greenF()) + 0.0722 * Linear(farbe.blueF());
}

QColor Gemischt(const QColor& eine, const QColor& andere, float anteilDerAnderen) {
    const auto mische = [anteilDerAnderen](float a, float b) { return a + (b - a) * anteilDerAnderen; };
    return QColor::fromRgbF(mische(eine.redF(), andere.redF()), mische(eine.greenF(), andere.greenF()),
                            mische(eine.blueF(), andere.blueF()));
}

// The colour of a hue that is just as far from the ground as asked for: darker on a light one, else lighter.
QColor MitKontrast(const QColor& grund, const Farbton& ton, bool hoch) {
    constexpr int Schritte = 100;
    constexpr float Vollkreis = 360;
    const bool dunkler = Leuchtdichte(grund) > HelligkeitsGrenze;
    const double kontrast = hoch ? ton.aufSchwarz : dunkler ? ton.aufHell : ton.aufDunkel;
    QColor farbe = grund;
    for (int i = 0; i <= Schritte; ++i) {
        const float stufe = static_cast<float>(i) / Schritte;
        farbe = QColor::fromHslF(ton.grad / Vollkreis, ton.saettigung, dunkler ? 1.F - stufe : stufe);
        if (Kontrast(farbe, grund) >= kontrast)
            break;
    }
    return farbe;
}

} // namespace

double Kontrast(const QColor& eine, const QColor& andere) {
    const double a = Leuchtdichte(eine) + 0.05;
    const double b = Leuchtdichte(andere) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QColor Abgehoben(const QColor& farbe, const QColor& grund, double kontrast) {
    constexpr int Schritte = 20;
    const QColor ziel(Leuchtdichte(grund) > HelligkeitsGrenze ? Qt::black : Qt::white);
    QColor deutlich = farbe;
    for (int i = 1; i <= Schritte && Kontrast(deutlich, grund) < kontrast; ++i)
        deutlich = Gemischt(farbe, ziel, static_cast<float>(i) / Schritte);
    return deutlich;
}

QColor AlsFlaeche(const QColor& farbe, const QColor& grund) {
    return Gemischt(grund, farbe, 0.42F);
}

Strahlfarben FarbenAus(const QPalette& palette, Datenstand stand, Strahlfarbsatz satz) {
    const Farbsatz& toene = DieSaetze[static_cast<std::size_t>(satz)];
    const bool hoch = IstHoherKontrast(palette);
    Strahlfarben farben;
    farben.grund = palette.color(QPalette::Base);
    farben.schrift = palette.color(QPalette::Text);
    farben.striche = Gemischt(farben.grund, farben.schrift, 0.55F);
    farben.gehaeuse = Gemischt(farben.grund, farben.schrift, 0.16F);
    farben.gehaeuserand = Gemischt(farben.grund, farben.schrift, hoch ? 1.F : 0.45F);
    farben.frei = MitKontrast(farben.grund, toene.frei, hoch);
    farben.unterbrochen = MitKontrast(farben.grund, toene.unterbrochen, hoch);
    farben.geblankt = MitKontrast(farben.grund, toene.geblankt, hoch);
    farben.marke = palette.color(hoch ? QPalette::Link : QPalette::Highlight);
    if (stand == Datenstand::Veraltet)
        for (QColor* farbe : {&farben.frei, &farben.unterbrochen, &farben.geblankt})
            *farbe = Gemischt(farben.grund, *farbe, FarbeDesAlten);
    return farben;
}

} // namespace varnoth
