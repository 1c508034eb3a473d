#pragma once

#include "messquelle.h"

#include <cstdint>
#include <string>
#include <vector>

namespace varnoth {

/// The part of a source's time that a picture shows, in columns of pixels: column k goes from k to k + 1
/// column widths. Widths come in steps, so that columns are the same again after zooming there and back.
struct Zeitfenster {
    Zeit breite = std::chrono::milliseconds(100); ///< of a column
    std::int64_t erste = 0;
    int spalten = 1;

    Zeit Von() const { return erste * breite; }
    Zeit Bis() const { return (erste + spalten) * breite; }
    /// The column of a time, be it in the window or not.
    std::int64_t SpalteUm(Zeit zeit) const;
    bool operator==(const Zeitfenster&) const = default;
};

/// The narrowest and the widest column.
inline constexpr Zeit KleinsteSpalte = std::chrono::microseconds(100);
inline constexpr Zeit GroessteSpalte = std::chrono::hours(100);

/// The narrowest width of the steps that is at least so wide, as far as there are widths.
Zeit Spaltenstufe(Zeit mindestens);
/// The width so many steps further: above 0 wider.
Zeit Spaltenstufe(Zeit breite, int schritte);

/// The narrowest window of `spalten` columns that shows all of a time.
Zeitfenster FensterUm(const Zeitspanne& spanne, int spalten);
/// The window so many steps further (above 0: more time), while a time keeps its place in it.
Zeitfenster Gezoomt(const Zeitfenster& fenster, Zeit um, int schritte);
/// The window moved by columns; it keeps some of the time that there is in it.
Zeitfenster Verschoben(const Zeitfenster& fenster, std::int64_t um, const Zeitspanne& alles);
/// The window with as many columns as given, its last one where it was.
Zeitfenster MitSpalten(const Zeitfenster& fenster, int spalten);
/// The window that ends with a time.
Zeitfenster BisZu(const Zeitfenster& fenster, Zeit zeit);

/// A tick of a time axis.
struct Fensterstrich {
    Zeit zeit{};
    std::string text; ///< local time, as fine as the ticks stand
    bool operator==(const Fensterstrich&) const = default;
};

/// The distance of ticks of which at most so many columns of room lie between two: from a pleasant series.
Zeit Strichabstand(const Zeitfenster& fenster, int mindestensSpalten);
/// The ticks of a window, on round local times.
std::vector<Fensterstrich> Fensterstriche(const Zeitfenster& fenster, int mindestensSpalten,
                                          const Messangaben& angaben);

} // namespace varnoth
