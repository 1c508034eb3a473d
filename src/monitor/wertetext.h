#pragma once

#include <span>
#include <string>

namespace varnoth {

/// A value as it goes into a table: its caption, its text, and what stands beside it (may be empty).
struct Wertzeile {
    std::string name;
    std::string wert;
    std::string daneben;
};

/// A table of values for other programs: the headings and the values a line each, what stands side by side
/// separated by tabs.
std::string Wertetabelle(std::span<const std::string> ueberschriften, std::span<const Wertzeile> zeilen);

} // namespace varnoth
