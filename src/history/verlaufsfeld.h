#pragma once

#include "verlaufsblick.h"

#include <QFontMetricsF>
#include <QRectF>
#include <QSizeF>

namespace varnoth {

/// So far what slides along reaches over the edges of the curves.
inline constexpr double Randluft = 3;

/// Where what lies in the picture of a trend, in logical pixels: legend and flags of notes at the top, then
/// the field of the curves, below it rows of states, then the time axis; the axis of values at the left.
struct Verlaufsfeld {
    QRectF kurven;
    QRectF zeilen; ///< all rows together; empty without rows
    double zeilenhoehe = 0;
    double dichte = 1; ///< device pixels a logical one
    double zeile = 0;  ///< the height of a line of text

    /// The width of the curves in device pixels, at least 1.
    int Spalten() const;
    /// The height of curves and rows together in device pixels, at least 1.
    int Hoehe() const;
    int Kurvenhoehe() const;
    /// Where the last row ends, or the curves do.
    double UnterkanteDerSpuren() const;
    /// All that is drawn anew when the picture slides: curves and rows, the notes above, the times below. The
    /// rest stands to the left and above.
    QRectF Laufendes(QSizeF groesse) const;
    /// The place of the columns from `von` on, counted from the left edge.
    QRectF Spaltenplatz(int von) const;

    /// Which time a place lies at, and which value.
    Zeit ZeitBei(double x, Zeitspanne spanne) const;
    double XBei(Zeit zeit, Zeitspanne spanne) const;
    double WertBei(double y, const Wertebereich& werte) const;
    double YBei(double wert, const Wertebereich& werte) const;
};

/// What a layout needs to know.
struct Feldangaben {
    QSizeF groesse{};
    double dichte = 1;
    int zeilen = 0;
    double randbreite = 0; ///< of what stands at the left
    double legendenhoehe = 0;
};

/// Lays a picture out. Rows take no more than 40 % of the height, and become lower when there are many.
Verlaufsfeld FeldFuer(const Feldangaben& angaben, const QFontMetricsF& masse);

/// Rows lower than that have no room for their names.
bool HatNamen(const Verlaufsfeld& feld, const QFontMetricsF& masse);

} // namespace varnoth
