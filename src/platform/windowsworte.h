#pragma once

#include <string>

namespace varnoth {

/// What an error number of Windows means that a serial port gives, in the current language (UTF-8); in the
/// system's language and words for a number that people seldom meet.
std::string Windowsfehler(unsigned long fehler);

} // namespace varnoth
