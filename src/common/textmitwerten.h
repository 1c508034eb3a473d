#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace varnoth {

/// The text (UTF-8) of a string id in the current language, with %1 to %9 replaced by the values; a mark
/// without a value stays, and what a value holds is never taken for a mark.
std::string LadeTextMit(std::int16_t id, std::initializer_list<std::string> werte);

/// The text for a number of things: that of `einzahl` where there is one, else that of `mehrzahl`. %1 is the
/// number, %2 to %9 are the other values.
std::string LadeAnzahltext(std::int16_t einzahl, std::int16_t mehrzahl, int anzahl,
                           const std::vector<std::string>& weitere = {});

} // namespace varnoth
