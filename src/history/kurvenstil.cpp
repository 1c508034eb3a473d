#include "kurvenstil.h"

#include "kurvenfarben.h"

#include <QPainter>
#include <QPolygonF>

namespace varnoth {

namespace {

constexpr std::array<Strichmuster, AnzahlOptikteile> DieMuster{
    {{{1, 0, 0, 0}}, {{12, 5, 0, 0}}, {{4, 4, 0, 0}}, {{12, 4, 3, 4}}}};
constexpr double Strichstaerke = 2;

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

QColor FarbeDerReihe(const QPalette& palette, Messreihe reihe) {
    return Reihenfarbe(palette, (reihe.teil * AnzahlKurvenwerte + reihe.wert) % AnzahlReihenfarben);
}

void ZeichneZeichen(QPainter& maler, QPointF ort, Messreihe reihe, double dichte, const QPalette& palette) {
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(QPen(palette.color(QPalette::Base), dichte));
    maler.setBrush(FarbeDerReihe(palette, reihe));
    maler.drawPolygon(Umriss(reihe.wert, Zeichenradius * dichte).translated(ort));
    maler.restore();
}

void ZeichneMuster(QPainter& maler, const QRectF& platz, Messreihe reihe, const QPalette& palette) {
    const QColor farbe = FarbeDerReihe(palette, reihe);
    const double mitte = platz.center().y();
    for (int x = 0; x < static_cast<int>(platz.width()); ++x)
        if (MusterDesTeils(reihe.teil).IstGezeichnet(x))
            maler.fillRect(QRectF(platz.left() + x, mitte - Strichstaerke / 2, 1, Strichstaerke), farbe);
    ZeichneZeichen(maler, platz.center(), reihe, 1, palette);
}

} // namespace varnoth
