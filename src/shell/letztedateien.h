#pragma once

#include <string>
#include <vector>

namespace varnoth {

/// How many files are remembered.
inline constexpr int HoechstensLetzteDateien = 8;

/// The configuration files that were opened or saved last, the newest first, as the settings file remembers
/// them. Paths are UTF-8.
std::vector<std::string> LetzteDateien();

/// Puts a file in front of the remembered ones; the oldest goes when there are too many. A path with a line
/// break, which the settings file cannot hold, is not remembered.
void MerkeDatei(const std::string& pfad);

} // namespace varnoth
