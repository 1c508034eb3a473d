#pragma once

#include "kurvenfarben.h"
#include "verlaufswahl.h"

#include <QColor>
#include <QPalette>
#include <QRectF>

#include <array>

class QPainter;

namespace varnoth {

/// How a level line is broken: how many logical pixels are drawn, left out, drawn and left out. Each part has
/// its own, so that parts are told apart without colours.
struct Strichmuster {
    std::array<int, 4> laengen;

    /// Whether the line is drawn at a place along it. Where all lengths are 0, it is.
    bool IstGezeichnet(std::int64_t stelle) const;
};
const Strichmuster& MusterDesTeils(int teil);

/// The sign of a curve is so large, in logical pixels; each measured value has its own, so that values are
/// told apart without colours.
inline constexpr double Zeichenradius = 4.5;

/// The colours of a trend. What makes them out of a palette takes long beside drawing a few columns: they are
/// for keeping.
struct Verlaufsfarben {
    Kurvenfarben rahmen;
    std::array<QColor, AnzahlReihenfarben> reihen;

    const QColor& Reihe(Messreihe reihe) const;
};
Verlaufsfarben VerlaufsfarbenAus(const QPalette& palette);

/// Draws a curve's sign around a place, `dichte` pixels to a logical one.
void ZeichneZeichen(QPainter& maler, QPointF ort, Messreihe reihe, double dichte,
                    const Verlaufsfarben& farben);
/// Draws a piece of a curve with its sign, as for a legend.
void ZeichneMuster(QPainter& maler, const QRectF& platz, Messreihe reihe, const Verlaufsfarben& farben);

} // namespace varnoth
