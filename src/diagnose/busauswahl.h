#pragma once

#include "busfilter.h"

#include <cstddef>
#include <cstdint>
#include <deque>

namespace varnoth {

/// The exchanges of a log that a filter lets through, in their order. It is found step by step, so that a
/// full log holds nobody up, and follows the log as it grows and forgets.
class Busauswahl {
public:
    explicit Busauswahl(const Busprotokoll& ausProtokoll) : protokoll(&ausProtokoll) {}

    /// Begins anew with a filter.
    void Setze(const Busfilter& neuer);
    const Busfilter& Filter() const { return filter; }

    /// Looks at so many further exchanges at most. Gives how many were let through.
    std::size_t Weiter(std::size_t hoechstens);
    /// Lets go of those that the log has forgotten. Gives how many those were, from the beginning.
    std::size_t Vergiss();
    /// How many exchanges have not been looked at yet.
    std::size_t Ausstehend() const;

    std::size_t Anzahl() const { return nummern.size(); }
    /// The number of the exchange at a place from 0.
    std::uint64_t Nummer(std::size_t platz) const { return nummern.at(platz); }
    /// The place of the first whose number is not below this one; Anzahl() where there is none.
    std::size_t PlatzAb(std::uint64_t nummer) const;

private:
    const Busprotokoll* protokoll;
    Busfilter filter;
    std::deque<std::uint64_t> nummern;
    std::uint64_t naechste = 0; ///< to be looked at
};

} // namespace varnoth
