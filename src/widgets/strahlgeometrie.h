#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace varnoth {

/// What is shown of a beam. The numbers are the display states by which the rest of the system speaks of
/// them.
enum class Strahlzustand : std::uint8_t { Geblankt = 0, Frei = 1, Unterbrochen = 5 };

/// The zoom window in beams counted from the bottom: beam b fills the positions b to b + 1.
struct Ausschnitt {
    double unten = 0;
    double anzahl = 0;

    bool operator==(const Ausschnitt&) const = default;
};

/// The fewest beams that a zoom window shows.
inline constexpr double MindestAusschnitt = 4;

/// The window that shows all beams.
Ausschnitt GanzerAusschnitt(int strahlen);
/// The nearest window that has an allowed size and lies inside the row of beams.
Ausschnitt Begrenzt(Ausschnitt ausschnitt, int strahlen);
/// The window after zooming by a factor (above 1: fewer beams) while the given position keeps its place.
Ausschnitt Gezoomt(Ausschnitt ausschnitt, int strahlen, double um, double faktor);
/// The window moved upwards by so many beams, as far as there are beams.
Ausschnitt Verschoben(Ausschnitt ausschnitt, int strahlen, double um);
/// The window moved just so far that a beam lies in it whole.
Ausschnitt MitStrahl(Ausschnitt ausschnitt, int strahlen, int strahl);

/// The column of pixels in which the beams lie, beam 0 at the bottom.
struct Strahlfeld {
    int oben = 0;
    int hoehe = 0;
    int strahlen = 0;
    Ausschnitt ausschnitt{};

    /// Pixels a beam.
    double Teilung() const;
    /// The vertical pixel coordinate of a position; that of beam b's middle is Y(b + 0.5).
    double Y(double position) const;
    /// The position at a vertical pixel coordinate, also outside the window.
    double Position(double y) const;
    /// The lowest pixel edge of a beam: its pixels lie above this one.
    int Unterkante(int strahl) const;
    /// The beam that owns a pixel row, -1 when none does.
    int StrahlBei(int y) const;
};

/// Some pixel rows that show one state.
struct Zeile {
    int oben = 0;
    int hoehe = 0;
    Strahlzustand zustand = Strahlzustand::Frei;

    bool operator==(const Zeile&) const = default;
};

/// The rows that draw the visible beams, from bottom to top. Where several beams share a pixel row, an
/// interrupted one is shown before a blanked one, a blanked one before a free one, so that no interrupted
/// beam is ever hidden. `zustaende` holds one element a beam.
std::vector<Zeile> Zeilen(const Strahlfeld& feld, std::span<const Strahlzustand> zustaende);

/// The rows of a field in the order in which they are to be drawn: interrupted ones last and at least
/// `mindestens` pixels high, none beyond the field.
std::vector<Zeile> Uebersichtszeilen(const Strahlfeld& feld, std::span<const Strahlzustand> zustaende,
                                     int mindestens);

/// Distances on a scale: between ticks with a number and between all ticks.
struct Teilstriche {
    int haupt = 1;
    int neben = 1;

    bool operator==(const Teilstriche&) const = default;
};

/// The finest pleasant division (1, 2 or 5 times a power of ten) whose numbers stand at least `zahlen` pixels
/// apart and whose ticks `striche` pixels.
Teilstriche WaehleTeilstriche(double pixelJeEinheit, double zahlen, double striche);

/// The beam numbers (from 1) worth writing beside a field: always the first and the last visible one, between
/// them those that fit with `abstand` pixels from number to number.
std::vector<int> Strahlnummern(const Strahlfeld& feld, double abstand);

} // namespace varnoth
