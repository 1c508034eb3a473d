#include "kurvenstil.h"

#include <QPainter>
#include <QPolygonF>

namespace varnoth {

namespace {

constexpr std::array<Strichmuster, AnzahlOptikteile> DieMuster{
    {{{1, 0, 0, 0}}, {{12, 5, 0, 0}}, {{4, 4, 0, 0}}, {{12, 4, 3, 4}}}};
constexpr double Legendenstrich = 2;

/// The outlines of the signs in the order of the values: triangles that point to the lower and the upper end,
/// a square for a number; upside down and rotated for what is free.
QPolygonF Umriss(int wert, double r) {
    switch (wert) {
    case 0:
        return {{{-r, -r * 0.8}, {r, -r * 0.8}, {0, r}}};
    case 1:
        return {{{-r, r * 0.8}, {r, r * 0.8}, {0, -r}}};
    case 2:
        return {{{-r * 0.8, -r * 0.8}, {r * 0.8, -r * 0.8}, {r * 0.8, r * 0.8}, {-r * 0.8, r * 0.8}}};
    case 3:
        return {{{-r * 0.8, -r}, {-r * 0.8, r}, {r, 0}}};
    case 4:
        return {{{r * 0.8, -r}, {r * 0.8, r}, {-r, 0}}};
    default:
        return {{{0, -r}, {r, 0}, {0, r}, {-r, 0}}};
    }
}

} // namespace

bool Strichmuster::IstGezeichnet(std::int64_t stelle) const {
    std::int64_t laenge = 0;
    for (const int teil : laengen)
        laenge += teil;
    if (laenge == 0)
        return true;
    std::int64_t rest = (stelle % laenge + laenge) % laenge;
    for (std::size_t i = 0; i < laengen.size(); ++i) {
        if (rest < laengen[i])
            return i % 2 == 0;
        rest -= laengen[i];
    }
    return true;
}

const Strichmuster& MusterDesTeils(int teil) {
    return DieMuster[static_cast<std::size_t>(teil)];
}

const QColor& Verlaufsfarben::Reihe(Messreihe reihe) const {
    const int stelle = reihe.teil * AnzahlKurvenwerte + reihe.wert;
    return reihen[static_cast<std::size_t>(stelle % AnzahlReihenfarben)];
}

Verlaufsfarben VerlaufsfarbenAus(const QPalette& palette) {
    Verlaufsfarben farben{.rahmen = KurvenfarbenAus(palette), .reihen = {}};
    for (std::size_t i = 0; i < farben.reihen.size(); ++i)
        farben.reihen[i] = Reihenfarbe(palette, static_cast<int>(i));
    return farben;
}

void ZeichneZeichen(QPainter& maler, QPointF ort, Messreihe reihe, double dichte,
                    const Verlaufsfarben& farben) {
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(QPen(farben.rahmen.grund, dichte));
    maler.setBrush(farben.Reihe(reihe));
    maler.drawPolygon(Umriss(reihe.wert, Zeichenradius * dichte).translated(ort));
    maler.restore();
}

void ZeichneMuster(QPainter& maler, const QRectF& platz, Messreihe reihe, const Verlaufsfarben& farben) {
    const QColor& farbe = farben.Reihe(reihe);
    const double mitte = platz.center().y();
    for (int x = 0; x < static_cast<int>(platz.width()); ++x)
        if (MusterDesTeils(reihe.teil).IstGezeichnet(x))
            maler.fillRect(QRectF(platz.left() + x, mitte - Legendenstrich / 2, 1, Legendenstrich), farbe);
    ZeichneZeichen(maler, platz.center(), reihe, 1, farben);
}

} // namespace varnoth
