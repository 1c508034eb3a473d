#pragma once

#include "kurven.h"
#include "kurvenfarben.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QSize>

class QPainter;

namespace varnoth {

/// The rectangle for the curves in a picture of that size: around it there is room for the numbers, the units
/// and the legend.
Kurvenfeld FeldFuer(const Diagramm& diagramm, const QSize& groesse, const QFontMetricsF& masse,
                    const QLocale& gebiet);

/// The width that a legend of both curves needs.
double Legendenbreite(const QFontMetricsF& masse);

/// Draws a diagram.
class Kurvenzeichner {
public:
    Kurvenzeichner(QPainter& maler, const Diagramm& diagramm, const Kurvenfeld& feld,
                   const Kurvenfarben& farben, const QLocale& gebiet);

    void Zeichne() const;

private:
    void ZeichneSenkrechte(double x, const QColor& farbe) const;
    void ZeichneWaagrechte(double y, const QColor& farbe) const;
    void ZeichneSpalten() const;
    void ZeichneZeilen() const;
    void ZeichneKurve(const std::vector<Strecke>& kurve, Kurvenart art) const;
    void ZeichneHilfslinien(const Marke& marke) const;
    void ZeichneMarke(const Marke& marke) const;
    void ZeichneLegende() const;
    double ZeichneEintrag(double rechts, Kurvenart art) const;
    /// The pixel edge that is nearest to a coordinate.
    double Gerastet(double stelle) const;
    /// The width of a thin line: whole pixels.
    double Strichbreite() const;

    QPainter& maler;
    const Diagramm& diagramm;
    const Kurvenfeld& feld;
    const Kurvenfarben& farben;
    const QLocale& gebiet;
    double dichte;
    QFontMetricsF masse;
};

} // namespace varnoth
