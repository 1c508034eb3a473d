#pragma once

#include <string_view>

namespace varnoth {

/// The string table's file as it stands in the source tree: a line an entry (id, German, English, separated
/// by tabs; "\n" stands for a line break), lines that begin with "#" are comments.
std::string_view TexteDatei();

} // namespace varnoth
