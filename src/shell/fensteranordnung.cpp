#include "fensteranordnung.h"

#include <algorithm>

namespace varnoth {

namespace {

/// As many cells as fit beside each other, at least one.
int Passende(int gewuenscht, int laenge, int kleinste) {
    return std::clamp(laenge / std::max(kleinste, 1), 1, gewuenscht);
}

int Aufgerundet(int zaehler, int nenner) {
    return (zaehler + nenner - 1) / nenner;
}

} // namespace

std::vector<QRect> OrdneAn(Anordnung art, int anzahl, QSize flaeche, QSize kleinste) {
    if (anzahl < 1)
        return {};
    const bool inSpalten = art == Anordnung::Nebeneinander;
    const int hoechstens = inSpalten ? Passende(anzahl, flaeche.width(), kleinste.width())
                                     : Passende(anzahl, flaeche.height(), kleinste.height());
    const int quer = Aufgerundet(anzahl, hoechstens);
    const int fest = Aufgerundet(anzahl, quer);
    const QSize raster = inSpalten ? QSize(fest, quer) : QSize(quer, fest);
    const QSize ganze(std::max(flaeche.width(), raster.width() * kleinste.width()),
                      std::max(flaeche.height(), raster.height() * kleinste.height()));
    const auto ecke = [&](int spalte, int zeile) {
        return QPoint(spalte * ganze.width() / raster.width(), zeile * ganze.height() / raster.height());
    };
    std::vector<QRect> plaetze;
    for (int i = 0; i < anzahl; ++i) {
        const int spalte = inSpalten ? i % fest : i / fest;
        const int zeile = inSpalten ? i / fest : i % fest;
        plaetze.emplace_back(ecke(spalte, zeile), ecke(spalte + 1, zeile + 1) - QPoint(1, 1));
    }
    return plaetze;
}

QRect Hineingerueckt(const QRect& fenster, const QRect& flaeche) {
    const QSize groesse = fenster.size().boundedTo(flaeche.size());
    const QPoint letzteEcke = flaeche.bottomRight() - QPoint(groesse.width() - 1, groesse.height() - 1);
    return {{std::clamp(fenster.x(), flaeche.x(), letzteEcke.x()),
             std::clamp(fenster.y(), flaeche.y(), letzteEcke.y())},
            groesse};
}

} // namespace varnoth
