#pragma once

#include "strahlfarben.h"
#include "strahlreduktion.h"
#include "wasserfallplan.h"
#include "zeitfenster.h"
#include "zellenmuster.h"

#include <QImage>

#include <optional>
#include <vector>

class QPainter;

namespace varnoth {

/// A place in the past of a part: a time and a beam (index).
struct Strahlstelle {
    Zeit zeit{};
    int strahl = 0;

    bool operator==(const Strahlstelle&) const = default;
};

/// What is drawn over the cells.
struct Wasserfallmarken {
    std::optional<Strahlstelle> stelle{}; ///< under the pointer or the keyboard's cursor
    std::optional<Zeitspanne> gewaehlt{};
    std::optional<Zeit> wiedergabe{}; ///< where a replay stands
    QRect band{};                     ///< that is being dragged
};

/// What is to be drawn: the columns and how.
struct Wasserfallinhalt {
    const Strahlreduktion& spalten;
    Zeitfenster fenster;
    Ausschnitt ausschnitt{};
    Messangaben angaben{};
};

/// Draws waterfalls. The cells are kept until one of them changes.
class Wasserfallzeichner {
public:
    /// Draws at the painter's origin; one unit of the painter must be one device pixel.
    void Zeichne(QPainter& maler, const Wasserfallvorgabe& vorgabe, const QPalette& palette,
                 const Wasserfallinhalt& inhalt, const Wasserfallmarken& marken);

private:
    /// What makes it draw all cells anew, besides the palette.
    struct Stand {
        Wasserfallvorgabe vorgabe{};
        Zeit spaltenbreite{};
        int spalten = 0;
        Ausschnitt ausschnitt{};
        Strahlfarbsatz satz{};
        int teil = -1;

        bool operator==(const Stand&) const = default;
    };

    void Bereite();
    void BaueZellen(const Wasserfallinhalt& inhalt);
    void Verschiebe(std::int64_t spalten);
    void Faerbe(const std::vector<int>& spalten);
    void ZeichneNummern(QPainter& maler, const Strahlfeld& feld) const;
    void ZeichneSkala(QPainter& maler, const Strahlfeld& feld) const;
    void ZeichneZeiten(QPainter& maler, const Wasserfallinhalt& inhalt) const;
    void ZeichneLuecken(QPainter& maler, const Wasserfallinhalt& inhalt) const;
    void ZeichneMarken(QPainter& maler, const Wasserfallinhalt& inhalt, const Strahlfeld& feld,
                       const Wasserfallmarken& marken) const;
    int X(const Zeitfenster& fenster, Zeit zeit) const;

    Wasserfallvorgabe vorgabe;
    QPalette palette;
    Strahlfarben farben;
    Wasserfallplan plan;
    Zellenmuster muster;
    Stand gebaut;
    std::vector<Strahlreihe> reihen;
    std::int64_t ersteSpalte = 0;
    std::vector<std::optional<Strahlspalte>> gezeichnete; ///< what each column of the picture shows
    QImage bild;
};

} // namespace varnoth
