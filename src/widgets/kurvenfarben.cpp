#include "kurvenfarben.h"

#include "strahlfarben.h"

namespace varnoth {

namespace {

constexpr double Linienkontrast = 3.5;

QColor Gemischt(const QColor& eine, const QColor& andere, float anteil) {
    const auto mische = [anteil](float a, float b) { return a + (b - a) * anteil; };
    return QColor::fromRgbF(mische(eine.redF(), andere.redF()), mische(eine.greenF(), andere.greenF()),
                            mische(eine.blueF(), andere.blueF()));
}

/// The colour, moved towards that of the writing as far as a thin line needs.
QColor AlsLinie(const QColor& farbe, const Strahlfarben& farben) {
    constexpr int Schritte = 20;
    QColor deutlich = farbe;
    for (int i = 1; i <= Schritte && Kontrast(deutlich, farben.grund) < Linienkontrast; ++i)
        deutlich = Gemischt(farbe, farben.schrift, static_cast<float>(i) / Schritte);
    return deutlich;
}

} // namespace

Kurvenfarben KurvenfarbenAus(const QPalette& palette) {
    const Strahlfarben farben = FarbenAus(palette);
    return {.grund = farben.grund,
            .schrift = farben.schrift,
            .achsen = farben.striche,
            .gitter = farben.gehaeuse,
            .objekt = AlsLinie(farben.unterbrochen, farben),
            .loch = AlsLinie(farben.frei, farben),
            .marke = farben.marke};
}

QColor Reihenfarbe(const QPalette& palette, int nummer) {
    constexpr int Vollkreis = 360;
    // Neighbours are as far apart as hues can be for eyes that confuse red and green.
    constexpr int Grade[AnzahlReihenfarben] = {212, 28, 315, 168, 265, 48, 0, 190};
    constexpr float Saettigung = 0.85F;
    constexpr float Helligkeit = 0.5F;
    const QColor grund = palette.color(QPalette::Base);
    if (GetStrahlfarbsatz() == Strahlfarbsatz::Graustufen)
        return Gemischt(palette.color(QPalette::Text), grund, static_cast<float>(nummer % 3) * 0.2F);
    const auto grad = static_cast<float>(Grade[nummer % AnzahlReihenfarben]);
    return Abgehoben(QColor::fromHslF(grad / Vollkreis, Saettigung, Helligkeit), grund,
                     IstHoherKontrast(palette) ? 2 * Linienkontrast : Linienkontrast);
}

} // namespace varnoth
