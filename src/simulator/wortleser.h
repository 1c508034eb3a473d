#pragma once

#include <string_view>
#include <vector>

namespace varnoth::simulator {

/// A whole number, decimal or hexadecimal with "0x", within the limits.
/// @throws std::invalid_argument with a sentence that begins with `was`
int LiesZahl(std::string_view text, std::string_view was, int von, int bis);

/// The text cut at every separator; neighbouring separators give empty pieces.
std::vector<std::string_view> Teile(std::string_view text, char trenner);

/// The words between blanks.
std::vector<std::string_view> Woerter(std::string_view zeile);

} // namespace varnoth::simulator
