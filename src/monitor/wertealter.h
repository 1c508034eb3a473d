#pragma once

#include "umgebung.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace varnoth {

/// How old the values are that a row of passes renews.
class Wertealter {
public:
    /// New values have come.
    void Erneuert(Zeit jetzt);
    /// There are no values any more, and nothing is known of how often they come.
    void Vergiss();
    /// Time since the last values; 0 without any.
    Zeit Alter(Zeit jetzt) const;
    /// The age from which values are old: a second, or three times the usual pass where that is longer. Usual
    /// is the median of the last five.
    Zeit Grenze() const;
    /// Whether there are values that have not been renewed for that long.
    bool IstAlt(Zeit jetzt) const;

private:
    static constexpr std::size_t Gedaechtnis = 5;

    std::optional<Zeit> zuletzt;
    std::array<Zeit, Gedaechtnis> abstaende{};
    std::size_t anzahl = 0; // of intervals since the beginning
};

/// "3 s ago" in the current language; minutes from two minutes on.
std::string Alterstext(Zeit alter);

} // namespace varnoth
