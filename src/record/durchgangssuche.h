#pragma once

#include "messquelle.h"

#include <optional>

namespace varnoth {

// Passes of a source by time. Nothing where there is none; packets that are damaged are passed over.

/// The pass nearest to a time; of two as near the earlier one.
std::optional<Messdurchgang> DurchgangUm(const Messquelle& quelle, Zeit laufzeit);
/// The last pass before a time.
std::optional<Messdurchgang> DurchgangVor(const Messquelle& quelle, Zeit laufzeit);
/// The first pass after a time.
std::optional<Messdurchgang> DurchgangNach(const Messquelle& quelle, Zeit laufzeit);

/// The time of day of a time of a source.
Systemzeit Uhrzeit(const Messangaben& angaben, Zeit laufzeit);

} // namespace varnoth
