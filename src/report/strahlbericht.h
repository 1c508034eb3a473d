#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace varnoth {

/// A section of the report about the beams of a part over a time, in words (UTF-8) of the language in use
/// when it was made.
struct Strahlbericht {
    std::string zeitraum{};              ///< which part, from when to when, for how long measured
    std::vector<std::string> verdacht{}; ///< what is suspected and why
    std::vector<std::string> titel{};    ///< of the table's columns
    std::vector<std::vector<std::string>> zeilen{};
    std::string anmerkung{}; ///< below the table; may be empty

    bool operator==(const Strahlbericht&) const = default;
};

/// The section as HTML, its heading included.
std::string Strahlabschnitt(const Strahlbericht& bericht, std::int16_t sprache);

} // namespace varnoth
