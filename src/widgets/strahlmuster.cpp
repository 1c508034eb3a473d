#include "strahlmuster.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

constexpr double FlaecheUnter = 3;
constexpr double ZierAb = 8;

int Gerundet(double wert) {
    return static_cast<int>(std::lround(wert));
}

// One beam's picture while it is drawn.
struct Feld {
    QPainter& maler;
    const Strahlfarben& farben;
    int breite;
    int hoehe;
    double teilung;
    double dichte;

    bool Flaeche() const { return teilung < FlaecheUnter; }
    bool Zier() const { return teilung >= ZierAb * dichte; }
    int Dicke() const {
        return Flaeche() ? hoehe : std::clamp(Gerundet(teilung / 6), 1, std::max(1, Gerundet(2 * dichte)));
    }
    int Mitte() const { return (hoehe - Dicke()) / 2; }
    void Linie(int von, int bis, const QColor& farbe) const {
        maler.fillRect(von, Mitte(), bis - von, Dicke(), Flaeche() ? AlsFlaeche(farbe, farben.grund) : farbe);
    }
};

// A small triangle that touches the receiver: the light arrives.
void Spitze(const Feld& feld) {
    const double halb = std::min(4 * feld.dichte, feld.teilung / 2 - 1);
    const double y = feld.Mitte() + feld.Dicke() / 2.0;
    QPainterPath pfad;
    pfad.moveTo(feld.breite, y);
    pfad.lineTo(feld.breite - 1.6 * halb, y - halb);
    pfad.lineTo(feld.breite - 1.6 * halb, y + halb);
    feld.maler.setRenderHint(QPainter::Antialiasing);
    feld.maler.fillPath(pfad, feld.farben.frei);
    feld.maler.setRenderHint(QPainter::Antialiasing, false);
}

void ZeichneFrei(const Feld& feld) {
    feld.Linie(0, feld.breite, feld.farben.frei);
    if (feld.Zier())
        Spitze(feld);
}

void ZeichneUnterbrochen(const Feld& feld) {
    constexpr double BlockVon = 0.38;
    constexpr double BlockBis = 0.62;
    const int von = Gerundet(feld.breite * BlockVon);
    const int bis = std::max(von + 2, Gerundet(feld.breite * BlockBis));
    const int luecke =
        feld.teilung >= 4 ? std::max(1, Gerundet(std::min(feld.teilung / 8, 2 * feld.dichte))) : 0;
    const int hoehe = std::min(feld.hoehe - luecke, std::max(1, Gerundet(18 * feld.dichte)));
    feld.Linie(0, von, feld.farben.unterbrochen);
    const int oben = std::max(luecke, feld.Mitte() + feld.Dicke() / 2 - hoehe / 2);
    feld.maler.fillRect(von, oben, bis - von, hoehe, feld.farben.unterbrochen);
}

void Kreuz(const Feld& feld) {
    const double halb = std::min(4.5 * feld.dichte, feld.teilung / 2 - 1.5 * feld.dichte);
    const QPointF mitte(feld.breite / 2.0, feld.Mitte() + feld.Dicke() / 2.0);
    const int rand = Gerundet(halb + 3 * feld.dichte);
    feld.maler.fillRect(Gerundet(mitte.x()) - rand, 0, 2 * rand, feld.hoehe, feld.farben.grund);
    feld.maler.setRenderHint(QPainter::Antialiasing);
    feld.maler.setPen(QPen(feld.farben.geblankt, 1.6 * feld.dichte, Qt::SolidLine, Qt::RoundCap));
    feld.maler.drawLine(mitte + QPointF(-halb, -halb), mitte + QPointF(halb, halb));
    feld.maler.drawLine(mitte + QPointF(-halb, halb), mitte + QPointF(halb, -halb));
    feld.maler.setRenderHint(QPainter::Antialiasing, false);
}

void ZeichneGeblankt(const Feld& feld) {
    const int punkt = std::max(1, Gerundet(2 * feld.dichte));
    for (int x = punkt; x < feld.breite; x += 3 * punkt)
        feld.Linie(x, x + punkt, feld.farben.geblankt);
    if (feld.Zier())
        Kreuz(feld);
}

using Zeichner = void (*)(const Feld&);
constexpr Zeichner DieZeichner[] = {ZeichneGeblankt, ZeichneFrei, ZeichneUnterbrochen};

int Platz(Strahlzustand zustand) {
    return zustand == Strahlzustand::Unterbrochen ? 2 : static_cast<int>(zustand);
}

} // namespace

int Musterformat::Hoehe() const {
    return std::max(1, static_cast<int>(std::ceil(teilung)));
}

QRect Musterformat::Stelle(Strahlzustand zustand, int hoehe) const {
    return {0, Platz(zustand) * Hoehe(), breite, std::min(hoehe, Hoehe())};
}

QPixmap Musterbogen(const Musterformat& format, const Strahlfarben& farben) {
    const int hoehe = format.Hoehe();
    QPixmap bogen(std::max(1, format.breite), hoehe * static_cast<int>(std::size(DieZeichner)));
    bogen.fill(farben.grund);
    QPainter maler(&bogen);
    for (const Zeichner zeichne : DieZeichner) {
        zeichne({maler, farben, format.breite, hoehe, format.teilung, format.dichte});
        maler.translate(0, hoehe);
    }
    return bogen;
}

} // namespace varnoth
