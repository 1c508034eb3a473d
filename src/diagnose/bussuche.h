#pragma once

#include "busprotokoll.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace varnoth {

/// Whether the exchange holds the text in what is shown of it, in words or in bytes; capital and small
/// letters are the same, and bytes may be written together. Nothing holds an empty text.
bool Enthaelt(const Busaustausch& austausch, const std::string& text);

/// A search through rows that goes on step by step, from one row in a direction and around the end until it
/// has come back to where it began.
class Bussuche {
public:
    /// Begins behind row `ab` (in front of it when going up, -1: before the first row) of so many rows.
    void Beginne(std::size_t zeilen, std::ptrdiff_t ab, bool aufwaerts);
    void Ende() { offen = 0; }
    bool Sucht() const { return offen > 0; }

    /// Looks at so many rows at most. Gives the row that `trifft` holds for, or nothing when there was none
    /// so far; the search has ended then if `Sucht` says so.
    std::optional<std::size_t> Weiter(std::size_t hoechstens,
                                      const std::function<bool(std::size_t zeile)>& trifft);

    /// The first rows have gone: the others have moved up by so many.
    void Verschiebe(std::size_t entfernte);

private:
    std::size_t anzahl = 0;
    std::size_t naechste = 0;
    std::size_t offen = 0; ///< rows that are still to be looked at
    bool rueckwaerts = false;
};

} // namespace varnoth
