#pragma once

#include "datenstand.h"
#include "strahlfarben.h"
#include "strahlgeometrie.h"

#include <QFont>
#include <QPixmap>
#include <QRegion>
#include <QSize>

class QPainter;

namespace varnoth {

/// All that decides how a beam bar looks but the states of its beams and the palette. Lengths in device
/// pixels.
struct Bildvorgabe {
    QSize groesse;
    double dichte = 1;
    QFont schrift;
    int strahlen = 0;
    int abstandMm = 0;
    Ausschnitt ausschnitt{};
    Datenstand stand = Datenstand::Gueltig;
    bool beobachtung = false;
    Strahlfarbsatz farbsatz = Strahlfarbsatz::GruenUndRot;

    bool ZeigtUebersicht() const {
        return beobachtung && strahlen > 0 && ausschnitt != GanzerAusschnitt(strahlen);
    }
    bool operator==(const Bildvorgabe&) const = default;
};

/// Where the columns of a beam bar lie: scale, transmitter, beams, receiver, beam numbers, and the strip that
/// shows all beams of a zoomed bar. A column that has no room or no use has the width 0. Lengths in device
/// pixels.
struct Aufteilung {
    Strahlfeld feld;
    int skala = 0;
    int senderLinks = 0;
    int gehaeuse = 0;
    int strahlenLinks = 0;
    int strahlenBreite = 0;
    int nummern = 0;
    int uebersichtLinks = 0;
    int uebersicht = 0;

    int EmpfaengerLinks() const { return strahlenLinks + strahlenBreite; }
};

/// The columns for a size; the scale and the numbers give way before the beams do.
Aufteilung TeileAuf(const Bildvorgabe& vorgabe);

/// What is drawn over the beams: beams under the pointer and the keyboard's cursor (-1: none) and the band
/// that is being dragged (device pixels from top, height 0: none).
struct Marken {
    int zeiger = -1;
    int cursor = -1;
    int bandOben = 0;
    int bandHoehe = 0;
};

/// Device pixel rows that are to be drawn; beams that lie in none of them may be left out.
struct Streifen {
    int oben = 0;
    int unten = 0;
};

/// What of a widget with a beam bar has to be drawn anew when these beams (indices, in any order) have
/// changed, in logical pixels. `plan` is the bar's TeileAuf.
QRegion Strahlgebiet(const Bildvorgabe& vorgabe, const Aufteilung& plan, std::span<const int> strahlen);

/// Draws beam bars. What does not change from scan to scan is kept as pictures.
class Strahlbild {
public:
    /// Draws at the painter's origin; one unit of the painter must be one device pixel.
    void Zeichne(QPainter& maler, const Bildvorgabe& vorgabe, const QPalette& palette,
                 std::span<const Strahlzustand> zustaende, const Marken& marken,
                 std::span<const Streifen> streifen);
    /// TeileAuf, known already when that was drawn last.
    Aufteilung Plan(const Bildvorgabe& gesucht) const;

private:
    void Bereite(const Bildvorgabe& vorgabe, const QPalette& palette);
    void ZeichneStrahlen(QPainter& maler, std::span<const Strahlzustand> zustaende,
                         std::span<const Streifen> streifen) const;
    void MeldeUnterbrochene(QPainter& maler, const std::vector<Zeile>& zeilen) const;
    void ZeichneUebersicht(QPainter& maler, std::span<const Strahlzustand> zustaende) const;
    void ZeichneZeiger(QPainter& maler, int strahl) const;
    void ZeichneMarken(QPainter& maler, const Marken& marken) const;

    Bildvorgabe vorgabe;
    QPalette palette;
    Strahlfarben farben;
    Aufteilung aufteilung;
    QPixmap hintergrund;
    QPixmap muster;
};

} // namespace varnoth
