#pragma once

#include <chrono>
#include <ctime>
#include <string>

namespace varnoth {

/// The calendar's view of a moment where this computer stands; decimals of a second are dropped.
std::tm Ortszeit(std::chrono::system_clock::time_point zeit);
/// The same in universal time.
std::tm Weltzeit(std::chrono::system_clock::time_point zeit);

/// How many minutes local time is ahead of universal time at a moment; negative west of Greenwich.
int Zonenminuten(std::chrono::system_clock::time_point zeit);
/// The same as dates name it: "+0100".
std::string Zonentext(std::chrono::system_clock::time_point zeit);

/// A moment of the calendar in the form of strftime, 63 bytes at most. The form must hold nothing that
/// depends on the system: no names of days, months and zones, and no "%z".
std::string InForm(const char* form, const std::tm& kalender);

} // namespace varnoth
