#pragma once

#include "ereignissuche.h"
#include "wiedergabe.h"

#include <string>

/// A replay in words, in the current language.
namespace varnoth {

/// A time since the beginning: "1:02:03,4"; without hours where there are none.
std::string Laufzeittext(Zeit dauer);
/// Where a replay stands: time of day, time since the beginning, length.
std::string Positionstext(const Messangaben& angaben, const Zeitspanne& spanne, Zeit laufzeit);
/// From when to when there is anything, to the second; the day of the end only where it is another.
std::string Spannentext(const Messangaben& angaben, const Zeitspanne& spanne);
/// What has happened.
std::string Fundtext(const Sprungfund& fund);
/// Why there is nothing to be seen; empty where there is.
std::string Lagetext(Wiedergabelage lage);
/// A speed: "0.5×".
std::string Tempotext(double tempo);

} // namespace varnoth
