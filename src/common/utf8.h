#pragma once

#include <string_view>

namespace varnoth {

/// Whether the bytes are whole characters in UTF-8: no overlong form, no surrogate, nothing beyond the last
/// character there is.
bool IstUtf8(std::string_view bytes);

} // namespace varnoth
