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
            .loch = AlsLinie(farben.frei, farben)};
}

} // namespace varnoth
