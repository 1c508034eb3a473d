#pragma once

#include "mithoeren.h"

#include <QColor>
#include <QPalette>

namespace varnoth {

/// The colour in which a result is written: that of the palette's text where all is well, else one that
/// stands out from the ground, whether that is light or dark. The text says the same.
QColor Ergebnisfarbe(Austauschergebnis ergebnis, const QPalette& palette);

} // namespace varnoth
