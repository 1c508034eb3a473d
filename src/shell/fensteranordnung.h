#pragma once

#include <QRect>
#include <QSize>

#include <vector>

namespace varnoth {

enum class Anordnung { Nebeneinander, Untereinander };

/// Where `anzahl` windows go in an area so that they fill it without overlapping: in one row or one column,
/// or in as many rows or columns as leave each window its least size, if that is possible at all.
std::vector<QRect> OrdneAn(Anordnung art, int anzahl, QSize flaeche, QSize kleinste);

/// A window's place, no larger than an area and moved so far that it lies inside.
QRect Hineingerueckt(const QRect& fenster, const QRect& flaeche);

} // namespace varnoth
