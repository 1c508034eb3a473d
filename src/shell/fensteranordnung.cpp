#include "fensteranordnung.h"

#include <algorithm>

namespace varnoth {

namespace {

/// As many cells as fit beside each other, at least one.
int Passende(int gewuenscht, int laenge, int kleinste) {
    return std::clamp(laenge / std::max(kleinste, 1), 1, gewuenscht);
}

} // namespace

std::vector<QRect> OrdneAn(Anordnung art, int anzahl, QSize flaeche, QSize kleinste) {
    if (anzahl < 1)
        return {};
    const bool inSpalten = art == Anordnung::Nebeneinander;
    const int fest = inSpalten ? Passende(anzahl, flaeche.width(), kleinste.width())
                               : Passende(anzahl, flaeche.height(), kleinste.height());
    const int quer = (anzahl + fest - 1) / fest;
    const QSize raster = inSpalten ? QSize(fest, quer) : QSize(quer, fest);
    std::vector<QRect> plaetze;
    for (int i = 0; i < anzahl; ++i) {
        const QPoint zelle = inSpalten ? QPoint(i % fest, i / fest) : QPoint(i / fest, i % fest);
        const QPoint anfang(zelle.x() * flaeche.width() / raster.width(),
                            zelle.y() * flaeche.height() / raster.height());
        const QPoint ende((zelle.x() + 1) * flaeche.width() / raster.width(),
                          (zelle.y() + 1) * flaeche.height() / raster.height());
        plaetze.emplace_back(anfang, ende - QPoint(1, 1));
    }
    return plaetze;
}

} // namespace varnoth
