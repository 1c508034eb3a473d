#pragma once

#include "darstellung.h"
#include "datenstand.h"

#include <QColor>
#include <QPalette>

namespace varnoth {

/// The colours of a beam bar.
struct Strahlfarben {
    QColor grund;
    QColor schrift;
    QColor striche;
    QColor gehaeuse;
    QColor gehaeuserand;
    QColor frei;
    QColor unterbrochen;
    QColor geblankt;
    /// Pointer, cursor and zoom.
    QColor marke;
};

/// Colours that stand out from the palette's base whether that is light or dark: interrupted beams most. What
/// is old is pale.
Strahlfarben FarbenAus(const QPalette& palette, Datenstand stand = Datenstand::Gueltig,
                       Strahlfarbsatz satz = GetStrahlfarbsatz());

/// The colour, made lighter or darker as far as it has to stand out from the ground.
/// @param kontrast from 1 to 21, as `Kontrast` counts
QColor Abgehoben(const QColor& farbe, const QColor& grund, double kontrast);

/// A colour for an area rather than a line: nearer to the ground.
QColor AlsFlaeche(const QColor& farbe, const QColor& grund);

/// How much two colours differ in luminance: 1 (not at all) to 21 (black and white).
double Kontrast(const QColor& eine, const QColor& andere);

} // namespace varnoth
