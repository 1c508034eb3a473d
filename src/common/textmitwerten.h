#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

namespace varnoth {

/// The text (UTF-8) of a string id in the current language, with %1 to %9 replaced by the values; a mark
/// without a value stays, and what a value holds is never taken for a mark.
std::string LadeTextMit(std::int16_t id, std::initializer_list<std::string> werte);

} // namespace varnoth
