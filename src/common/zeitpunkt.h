#pragma once

#include <chrono>
#include <string>

namespace varnoth {

/// What stands before decimals in the current language.
char Dezimaltrenner();

/// Local time to the millisecond, as readers of the language write it: "11:17:23,456".
std::string Uhrzeittext(std::chrono::system_clock::time_point zeit);
/// The same with the date before it, the same in every language: "2026-11-22 11:17:23.456".
std::string Zeitpunkttext(std::chrono::system_clock::time_point zeit);
/// The local date alone: "2026-11-22".
std::string Datumstext(std::chrono::system_clock::time_point zeit);

} // namespace varnoth
