#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Tables as text for spreadsheets (UTF-8).
namespace varnoth {

/// What a file begins with, by which spreadsheets know UTF-8.
inline constexpr const char* CsvMarke = "\xEF\xBB\xBF";

/// A value as a field of CSV: in quotes where it must be, and with an apostrophe in front where a spreadsheet
/// would take it for a formula.
std::string CsvFeld(std::string_view wert);

/// A line with its end; between the values stands what spreadsheets of the language expect: a comma, in
/// German a semicolon.
std::string Csvzeile(const std::vector<std::string>& werte);

} // namespace varnoth
