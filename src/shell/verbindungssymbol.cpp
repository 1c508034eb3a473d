#include "verbindungssymbol.h"

#include "strahlfarben.h"

#include <QPainter>

namespace varnoth {

namespace {

using enum Verbindungszustand;

constexpr double Deutlich = 2.9; // contrast of the sign with its ground

void MalePunkte(QPainter& maler) {
    for (const double x : {-0.7, 0.0, 0.7})
        maler.drawEllipse(QPointF(x, 0), 0.22, 0.22);
}

void MaleUhr(QPainter& maler) {
    maler.setBrush(Qt::NoBrush);
    maler.drawEllipse(QPointF(0, 0), 0.85, 0.85);
    maler.drawLine(QPointF(0, 0), QPointF(0, -0.5));
    maler.drawLine(QPointF(0, 0), QPointF(0.4, 0));
}

void MaleBalken(QPainter& maler) {
    maler.drawRect(QRectF(-0.6, -0.7, 0.35, 1.4));
    maler.drawRect(QRectF(0.25, -0.7, 0.35, 1.4));
}

void MaleRing(QPainter& maler) {
    maler.setBrush(Qt::NoBrush);
    maler.drawEllipse(QPointF(0, 0), 0.8, 0.8);
}

void MaleKreuz(QPainter& maler) {
    maler.drawLine(QPointF(-0.6, -0.6), QPointF(0.6, 0.6));
    maler.drawLine(QPointF(-0.6, 0.6), QPointF(0.6, -0.6));
}

void MaleScheibe(QPainter& maler) {
    maler.drawEllipse(QPointF(0, 0), 0.85, 0.85);
}

void MaleRaute(QPainter& maler) {
    maler.drawPolygon(QPolygonF({QPointF(0, -0.9), QPointF(0.9, 0), QPointF(0, 0.9), QPointF(-0.9, 0)}));
}

void MaleDreieck(QPainter& maler) {
    maler.drawPolygon(QPolygonF({QPointF(-0.6, -0.8), QPointF(0.8, 0), QPointF(-0.6, 0.8)}));
}

void Male(QPainter& maler, Verbindungszustand zustand, bool simuliert) {
    switch (zustand) {
    case Verbindet:
        return MalePunkte(maler);
    case Live:
        return simuliert ? MaleRaute(maler) : MaleScheibe(maler);
    case Wartet:
        return MaleUhr(maler);
    case Pausiert:
    case Angehalten:
        return MaleBalken(maler);
    case PortOffen:
        return MaleRing(maler);
    case Offline:
        return MaleKreuz(maler);
    case Wiedergabe:
        return MaleDreieck(maler);
    }
}

} // namespace

QColor Verbindungsfarbe(Verbindungszustand zustand, bool simuliert) {
    switch (zustand) {
    case Live:
        return simuliert ? QColor(0x3d, 0x7e, 0xd6) : QColor(0x2b, 0x9a, 0x44);
    case Verbindet:
    case PortOffen:
        return {0x3d, 0x7e, 0xd6};
    case Wartet:
    case Pausiert:
    case Angehalten:
        return {0xc9, 0x7a, 0x00};
    case Wiedergabe:
        return {0x8e, 0x44, 0xad};
    case Offline:
        break;
    }
    return {0xd0, 0x3b, 0x3b};
}

Verbindungssymbol::Verbindungssymbol(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Verbindungssymbol::Zeige(Verbindungszustand neuer, bool neuSimuliert) {
    if (zustand == neuer && simuliert == neuSimuliert)
        return;
    zustand = neuer;
    simuliert = neuSimuliert;
    update();
}

QSize Verbindungssymbol::sizeHint() const {
    const int kante = fontMetrics().ascent();
    return {kante, kante};
}

void Verbindungssymbol::paintEvent(QPaintEvent* /*ereignis*/) {
    const QColor farbe =
        Abgehoben(Verbindungsfarbe(zustand, simuliert), palette().color(QPalette::Window), Deutlich);
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.translate(width() / 2.0, height() / 2.0);
    maler.scale(width() / 2.0, height() / 2.0);
    maler.setPen(QPen(farbe, 0.25, Qt::SolidLine, Qt::RoundCap));
    maler.setBrush(farbe);
    Male(maler, zustand, simuliert);
}

} // namespace varnoth
