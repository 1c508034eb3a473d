#pragma once

#include "verlaufswahl.h"

#include <QColor>
#include <QPalette>
#include <QRectF>

class QPainter;

namespace varnoth {

/// How a level line is broken: how many logical pixels are drawn, left out, drawn and left out. Each part has
/// its own, so that parts are told apart without colours.
struct Strichmuster {
    std::array<int, 4> laengen;

    /// Whether the line is drawn at a place along it.
    bool IstGezeichnet(std::int64_t stelle) const;
};
const Strichmuster& MusterDesTeils(int teil);

/// The sign of a curve is so large, in logical pixels; each measured value has its own, so that values are
/// told apart without colours.
inline constexpr double Zeichenradius = 4.5;

QColor FarbeDerReihe(const QPalette& palette, Messreihe reihe);

/// Draws a curve's sign around a place, `dichte` pixels to a logical one.
void ZeichneZeichen(QPainter& maler, QPointF ort, Messreihe reihe, double dichte, const QPalette& palette);
/// Draws a piece of a curve with its sign, as for a legend.
void ZeichneMuster(QPainter& maler, const QRectF& platz, Messreihe reihe, const QPalette& palette);

} // namespace varnoth
