#pragma once

#include <chrono>
#include <string>

namespace varnoth::ctl {

/// The time of day, local, to the second: "12:05:31".
std::string Uhrzeit();

/// Date and time, local, to the minute, as readers of the current language write it.
std::string Zeitpunkttext();

/// A moment for programs, in UTC, to the millisecond: "2026-11-22T11:05:31.250Z".
std::string Zeitmarke(std::chrono::system_clock::time_point zeit);

} // namespace varnoth::ctl
