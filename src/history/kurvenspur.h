#pragma once

#include "verlaufsblick.h"
#include "verlaufswahl.h"

#include <QRect>

#include <vector>

namespace varnoth {

/// The columns of a picture and what is drawn of them. Places in it are counted in pixels of the device from
/// the upper left corner of the field of curves: a column is one of them wide.
struct Spurfeld {
    const Spaltenspeicher& spalten;
    const std::vector<Spaltensinn>& sinn; ///< of all columns kept
    std::int64_t erste = 0;               ///< the column at the left edge
    int breite = 0;
    int hoehe = 0;
    Wertebereich werte{};
    double dichte = 1; ///< of the device's pixels

    /// What a column, counted from the left edge, means; `Leer` where none is kept.
    Spaltensinn Sinn(int x) const;
    const Messspalte& Spalte(int x) const { return spalten.Spalte(erste + x); }
    /// How far below the upper edge a value lies.
    int Y(double wert) const;
};

/// The rectangles of a curve from column `von` on: in each column from its smallest to its greatest value,
/// and joined to the one before. Where it is level, the pattern of its part leaves gaps; a spike never falls
/// into one.
std::vector<QRect> Kurvenspur(const Spurfeld& feld, const Verlaufswahl& wahl,
                              const Strahlabstaende& abstaende, Messreihe reihe, int von);
/// The rectangles between minimum and maximum registers.
std::vector<QRect> Bandspur(const Spurfeld& feld, const Verlaufswahl& wahl, const Strahlabstaende& abstaende,
                            Messreihe reihe, int von);
/// Where the curve bears its sign: at every so many columns.
std::vector<QPoint> Zeichenspur(const Spurfeld& feld, const Verlaufswahl& wahl,
                                const Strahlabstaende& abstaende, Messreihe reihe, int von);

/// A row below the curves that shows a bit over time.
struct Zustandszeile {
    int teil = -1; ///< the optical part whose status it is; -1: the controller's
    std::uint16_t bit = 0;
    std::int16_t text = 0; ///< id of what it means

    bool operator==(const Zustandszeile&) const = default;
};

/// The rows for what is chosen: the switching output, and the states of each part that has a curve.
std::vector<Zustandszeile> Zustandszeilen(const Verlaufswahl& wahl);

/// When a bit was 1: all the time of a column, or not all of it.
struct Zustandsspur {
    std::vector<QRect> immer;  ///< as high as the row
    std::vector<QRect> einmal; ///< its lower half
};
Zustandsspur SpurDerZeile(const Spurfeld& feld, const Zustandszeile& zeile, int oben, int hoehe, int von);

/// The stretches of which nothing is known, and the columns in which a connection came or went.
std::vector<QRect> Lueckenspur(const Spurfeld& feld, int hoehe, int von);

} // namespace varnoth
