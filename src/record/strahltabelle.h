#pragma once

#include "strahlworte.h"

#include <span>
#include <string>

namespace varnoth {

/// What belongs to a part's statistics besides the numbers of its beams.
struct Strahlbezug {
    int teil = 0; ///< 0..3
    int abstandMm = 0;
    Messangaben angaben{};
    Zeitspanne zeitraum{};
    Zeit gemessen{};
};

/// The statistics as a file for a spreadsheet: UTF-8 with its mark, a line a beam, ended by CR LF. Numbers
/// stand without units, shares in percent, times in seconds; what stands between fields and before decimals
/// is what spreadsheets of the language in use expect.
std::string Strahltabelle(std::span<const Strahlwerte> strahlen, std::span<const Strahlverdacht> verdaechte,
                          const Strahlbezug& bezug);

} // namespace varnoth
