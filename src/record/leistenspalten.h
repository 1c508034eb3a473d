#pragma once

#include "messquelle.h"

#include <cstdint>
#include <vector>

namespace varnoth {

class Uebersicht;

/// What a column of a time line shows.
struct Leistenspalte {
    bool luecke = false;  ///< live data did not run, or the controller did not answer
    bool wechsel = false; ///< a status has changed

    bool operator==(const Leistenspalte&) const = default;
};

/// A span of time in so many columns, told from the overview alone.
std::vector<Leistenspalte> Leistenspalten(const Uebersicht& uebersicht, const Zeitspanne& spanne, int anzahl);

/// The time in the middle of a column, 0 .. anzahl - 1; the first and the last one are the ends of the span.
Zeit ZeitDerSpalte(const Zeitspanne& spanne, int anzahl, int spalte);
/// The column of a time, 0 .. anzahl - 1.
int SpalteDerZeit(const Zeitspanne& spanne, int anzahl, Zeit laufzeit);

} // namespace varnoth
