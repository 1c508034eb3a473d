#pragma once

#include "busprotokoll.h"

#include <string>

/// The log as a file (UTF-8).
namespace varnoth {

/// Text for reading, or values for a spreadsheet. What stands between values, and before decimals, is what
/// spreadsheets of the language expect: comma and point, in German semicolon and comma.
enum class Busformat { Text, Csv };

/// What the file begins with: what its columns are.
std::string Schriftkopf(Busformat format);
/// One exchange, with its line end.
std::string Schriftzeile(Busformat format, const Busaustausch& austausch,
                         std::chrono::system_clock::time_point zeit);

} // namespace varnoth
