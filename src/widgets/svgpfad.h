#pragma once

#include <QPainterPath>
#include <QStringView>

namespace varnoth {

/// The path that the attribute "d" of an SVG file describes: moves, lines, cubic curves and arcs of ellipses
/// that are not turned, absolute and relative. What follows a place that cannot be read is left out.
QPainterPath LiesSvgPfad(QStringView beschreibung);

} // namespace varnoth
