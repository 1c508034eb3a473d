#pragma once

#include <string>
#include <string_view>

namespace varnoth {

/// A text (UTF-8) of a device, a file or the settings as one line that does nothing: control characters, line
/// ends and marks that turn the direction of writing become visible signs; bytes that are no UTF-8 as well.
std::string Einzeilig(std::string_view text);

/// The text without the difference between capital and small letters, ASCII and Latin: what a search
/// compares.
std::string Gefaltet(std::string_view text);

} // namespace varnoth
