#pragma once

#include "messquelle.h"

#include <string>
#include <vector>

namespace varnoth {

/// A round time of day on a time axis.
struct Zeitstrich {
    Zeit laufzeit{};  ///< of the source
    std::string text; ///< as much of the time of day as the steps need; at midnight the date

    bool operator==(const Zeitstrich&) const = default;
};

/// How far apart the marks of a time axis are: the smallest round step (1 ms to some weeks) not below a time.
Zeit RunderZeitschritt(Zeit mindestens);

/// The round local times between two times of a source that are at least so far apart, in the language in
/// use.
std::vector<Zeitstrich> Zeitstriche(const Messangaben& angaben, Zeitspanne spanne, Zeit mindestabstand);

/// The widest text that `Zeitstriche` writes at steps of that size.
std::string BreitesterZeittext(Zeit schritt);

/// "250 ms", "12,345 s", "1:02:03": how long something takes; "-" before it when it is below 0.
std::string Abstandstext(Zeit dauer);

} // namespace varnoth
