#pragma once

#include "kurvenspur.h"
#include "kurvenstil.h"
#include "verlaufsfeld.h"
#include "zeitachse.h"

#include <QString>

#include <optional>
#include <span>

class QPainter;

namespace varnoth {

/// What the picture of a trend shows.
struct Verlaufsblatt {
    Messangaben angaben{};
    Zeitspanne spanne{}; ///< in view: exactly the columns from `ersteSpalte` on
    std::int64_t ersteSpalte = 0;
    Wertebereich werte{};
    Verlaufswahl wahl{};
    Strahlabstaende abstaende{};
    std::vector<Messereignis> notizen; ///< in order of time
    std::optional<Zeit> zeiger{};
    std::optional<Zeit> markeA{};
    std::optional<Zeit> markeB{};
    std::optional<Zeit> jetzt{}; ///< where a replay stands
    QString hinweis{};           ///< in the middle of a picture that shows nothing
};

/// The room that numbers and names at the left of a picture need.
double Randbreite(const Verlaufsblatt& blatt, const QFontMetricsF& masse);
/// The height of the legend in a picture of that width.
double Legendenhoehe(const Verlaufsblatt& blatt, const QFontMetricsF& masse, double breite);
/// Where everything lies in a picture of that size.
Verlaufsfeld FeldFuer(const Verlaufsblatt& blatt, const QFontMetricsF& masse, QSizeF groesse, double dichte);

/// How many columns to both sides what belongs to a column reaches over: signs, the width of a step.
int Reichweite(double dichte);

/// Draws curves, bands, rows and gaps from column `von` on into a picture of device pixels, whose upper left
/// corner is that of the field of the curves. What was drawn there before is replaced.
void ZeichneSpuren(QPainter& maler, const Spaltenspeicher& spalten, const std::vector<Spaltensinn>& sinn,
                   const Verlaufsblatt& blatt, const Verlaufsfeld& feld, const Verlaufsfarben& farben,
                   int von);

/// Draws everything around the curves, and what lies over them: axes, legend, notes, marks, cursor.
class Verlaufszeichner {
public:
    Verlaufszeichner(QPainter& maler, const Verlaufsblatt& blatt, const Verlaufsfeld& feld,
                     const Verlaufsfarben& farben);

    /// What of it lies in a rectangle, at least.
    void ZeichneRahmen(const QRectF& platz) const;
    void ZeichneDarueber() const;

private:
    void ZeichneWertzahlen() const;
    void ZeichneAchsen() const;
    void ZeichneZeitachse() const;
    void ZeichneZeilennamen() const;
    void ZeichneLegende() const;
    void ZeichneNotizen() const;
    void ZeichneFahne(double x, double rechts, const QString& text) const;
    void ZeichneSenkrechte(Zeit zeit, const QColor& farbe, Qt::PenStyle stil, const QString& name) const;

    QPainter& maler;
    const Verlaufsblatt& blatt;
    const Verlaufsfeld& feld;
    const Verlaufsfarben& alleFarben;
    const Kurvenfarben& farben;
    QFontMetricsF masse;
};

/// What the values on the axis are: beams, millimetres.
QString Wertachsenname(const Verlaufswahl& wahl);

} // namespace varnoth
