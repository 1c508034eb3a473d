#include "strahlfarben.h"

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

// Hues that the common kinds of colour blindness keep apart.
constexpr float TonFrei = 168.F / 360.F;
constexpr float TonUnterbrochen = 14.F / 360.F;
constexpr float TonNeutral = 210.F / 360.F;

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
QColor MitKontrast(const QColor& grund, float ton, float saettigung, double kontrast) {
    constexpr int Schritte = 100;
    const bool dunkler = Leuchtdichte(grund) > HelligkeitsGrenze;
    QColor farbe = grund;
    for (int i = 0; i <= Schritte; ++i) {
        const float stufe = static_cast<float>(i) / Schritte;
        farbe = QColor::fromHslF(ton, saettigung, dunkler ? 1.F - stufe : stufe);
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

QColor AlsFlaeche(const QColor& farbe, const QColor& grund) {
    return Gemischt(grund, farbe, 0.42F);
}

Strahlfarben FarbenAus(const QPalette& palette, Datenstand stand) {
    Strahlfarben farben;
    farben.grund = palette.color(QPalette::Base);
    const bool dunkel = Leuchtdichte(farben.grund) <= HelligkeitsGrenze;
    farben.schrift = palette.color(QPalette::Text);
    farben.striche = Gemischt(farben.grund, farben.schrift, 0.55F);
    farben.gehaeuse = Gemischt(farben.grund, farben.schrift, 0.16F);
    farben.gehaeuserand = Gemischt(farben.grund, farben.schrift, 0.45F);
    farben.frei = MitKontrast(farben.grund, TonFrei, 0.75F, dunkel ? 4.5 : 2.6);
    farben.unterbrochen = MitKontrast(farben.grund, TonUnterbrochen, 0.85F, dunkel ? 6.2 : 5.4);
    farben.geblankt = MitKontrast(farben.grund, TonNeutral, 0.08F, 3.6);
    farben.marke = palette.color(QPalette::Highlight);
    if (stand == Datenstand::Veraltet)
        for (QColor* farbe : {&farben.frei, &farben.unterbrochen, &farben.geblankt})
            *farbe = Gemischt(farben.grund, *farbe, FarbeDesAlten);
    return farben;
}

} // namespace varnoth
