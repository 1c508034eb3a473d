#pragma once

#include "messquelle.h"

#include <string>

/// A time of a source as the local time where it was made, as readers of the current language write it.
namespace varnoth {

/// "22.11.2026", "2026-11-22".
std::string Datumsworte(const Messangaben& angaben, Zeit laufzeit);
/// To the millisecond: "05:30:12,345".
std::string Uhrzeitworte(const Messangaben& angaben, Zeit laufzeit);
/// Both: "22.11.2026 05:30:12,345".
std::string Zeitworte(const Messangaben& angaben, Zeit laufzeit);

} // namespace varnoth
