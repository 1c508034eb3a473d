#pragma once

#include "ereignis.h"

#include <cstddef>
#include <deque>

namespace varnoth {

/// Events in the order in which they began, numbered through; there are never more than it may hold, and the
/// oldest go.
class Ereignisspeicher {
public:
    static constexpr std::size_t Hoechstzahl = 10'000;
    /// Bytes of all texts together.
    static constexpr std::size_t HoechsteTextmenge = std::size_t{2} << 20U;
    /// Bytes of one text; a longer one ends with "…".
    static constexpr std::size_t LaengsterText = 600;

    explicit Ereignisspeicher(std::size_t hoechstens = Hoechstzahl) : hoechstzahl(hoechstens) {}

    /// Keeps an event, its text as one line that does nothing. Gives its number.
    std::uint64_t Merke(Ereignis ereignis);
    /// Puts in place of the values of an event what they have become; its text stays. Nothing happens where
    /// it has gone.
    void Aendere(std::uint64_t nummer, const Ereignis& neues);

    /// The number of the oldest event.
    std::uint64_t Erstes() const { return erstes; }
    /// One more than the number of the newest.
    std::uint64_t Ende() const { return erstes + ereignisse.size(); }
    /// `nummer` is one of those there are.
    const Ereignis& Hole(std::uint64_t nummer) const { return ereignisse[nummer - erstes]; }
    /// Counts what was kept and changed so far.
    std::uint64_t Aenderungen() const { return aenderungen; }

private:
    void Vergiss();

    std::size_t hoechstzahl;
    std::deque<Ereignis> ereignisse;
    std::uint64_t erstes = 0;
    std::uint64_t aenderungen = 0;
    std::size_t textmenge = 0;
};

} // namespace varnoth
