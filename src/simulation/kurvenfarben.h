#pragma once

#include "kurven.h"

#include <QColor>
#include <QPalette>

namespace varnoth {

/// The colours of the diagram.
struct Kurvenfarben {
    QColor grund;
    QColor schrift;
    QColor achsen;
    QColor gitter;
    QColor objekt;
    QColor loch;

    const QColor& Fuer(Kurvenart art) const { return art == Kurvenart::Objekt ? objekt : loch; }
};

/// Colours that stand out from the palette's base whether that is light or dark. Objects have the colour of
/// interrupted beams, holes that of free ones.
Kurvenfarben KurvenfarbenAus(const QPalette& palette);

} // namespace varnoth
