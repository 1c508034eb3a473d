#pragma once

#include "strahlfarben.h"
#include "strahlgeometrie.h"

#include <QPixmap>
#include <QRect>

namespace varnoth {

/// The picture of one beam in each state, one below the other, as wide as the beams are long.
struct Musterformat {
    int breite = 0;
    /// Pixel rows a beam; below 3 beams touch and are drawn as areas.
    double teilung = 0;
    double dichte = 1;

    int Hoehe() const;
    /// Where the picture of a state lies; `hoehe` of its pixel rows.
    QRect Stelle(Strahlzustand zustand, int hoehe) const;
};

/// Draws the three pictures. Free is a line from transmitter to receiver, interrupted a line that ends at a
/// block in the middle, blanked a dotted line with a cross: they differ without colour too.
QPixmap Musterbogen(const Musterformat& format, const Strahlfarben& farben);

} // namespace varnoth
