#pragma once

#include "messquelle.h"

#include <chrono>
#include <optional>
#include <string_view>

/// A time that somebody types to find what was then.
namespace varnoth {

/// A time of day, of a day or of any, as exactly as it was typed.
struct Zeiteingabe {
    std::optional<std::chrono::year_month_day> tag{};
    Zeit uhrzeit{};     ///< since midnight
    Zeit genauigkeit{}; ///< a minute where no seconds were typed, else a second or a part of one
};

/// Reads "14:05", "14:05:30" or "14:05:30,5" (comma or point), alone or behind a date "22.11.2026" or
/// "2026-11-22"; blanks around them do not count. Nothing for any other text.
std::optional<Zeiteingabe> LiesZeiteingabe(std::string_view text);

/// The time of a source that is meant, by the local time where it was made: without a date that of the day on
/// which `hier` lies, else of the first day on which the source has it. Where only seconds or minutes were
/// typed, the source may begin within them. Nothing where it has no such time.
std::optional<Zeit> GemeinteLaufzeit(const Zeiteingabe& eingabe, const Messangaben& angaben,
                                     const Zeitspanne& spanne, Zeit hier);

} // namespace varnoth
