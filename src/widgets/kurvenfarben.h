#pragma once

#include <QColor>
#include <QPalette>

namespace varnoth {

/// The colours of a diagram.
struct Kurvenfarben {
    QColor grund;
    QColor schrift;
    QColor achsen;
    QColor gitter;
    QColor objekt; ///< objects, or what is interrupted
    QColor loch;   ///< holes, or what is free
    QColor marke;  ///< cursor and marks
};

/// Colours that stand out from the palette's base whether that is light or dark. Objects have the colour of
/// interrupted beams, holes that of free ones.
Kurvenfarben KurvenfarbenAus(const QPalette& palette);

/// How many curves of one diagram have colours of their own.
inline constexpr int AnzahlReihenfarben = 8;

/// The colour of the curve 0 .. AnzahlReihenfarben - 1 of a diagram, for thin lines on the palette's base:
/// hues, or greys while beams are shown in greys.
QColor Reihenfarbe(const QPalette& palette, int nummer);

} // namespace varnoth
