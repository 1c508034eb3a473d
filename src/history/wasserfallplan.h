#pragma once

#include "strahlgeometrie.h"

#include <QFont>
#include <QRect>

namespace varnoth {

/// What decides where the parts of a waterfall lie. Lengths in device pixels.
struct Wasserfallvorgabe {
    QSize groesse;
    double dichte = 1;
    QFont schrift;
    int strahlen = 0;
    int abstandMm = 0; ///< 0: no scale

    bool operator==(const Wasserfallvorgabe&) const = default;
};

/// Where the parts lie: the cells, beam numbers on their left, the scale in millimetres on their right, below
/// them a strip that marks gaps, and times. Lengths in device pixels.
struct Wasserfallplan {
    QRect flaeche;
    QRect luecken;
    QRect zeiten;
    int nummernLinks = 0;
    int skalaRechts = 0; ///< 0: none

    /// The rows of the cells for a zoom window.
    Strahlfeld Feld(int strahlen, const Ausschnitt& ausschnitt) const {
        return {flaeche.top(), flaeche.height(), strahlen, ausschnitt};
    }
    bool IstUeberZeiten(const QPointF& stelle) const { return stelle.y() > flaeche.bottom(); }
    bool IstUeberNummern(const QPointF& stelle) const {
        return !IstUeberZeiten(stelle) && (stelle.x() < flaeche.left() || stelle.x() > flaeche.right());
    }
};

Wasserfallplan TeileAuf(const Wasserfallvorgabe& vorgabe);

} // namespace varnoth
