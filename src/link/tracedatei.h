#pragma once

#include <cstdio>
#include <filesystem>

namespace varnoth {

/// Makes a file that is not there yet, to be written without a buffer, and from its first moment for this
/// user alone: whatever the umask on Linux, by the rights of its folder on Windows. No stream, with the
/// reason in errno, when something stands there, even a link, or nothing can be made. The caller closes it.
std::FILE* LegePrivateDateiAn(const std::filesystem::path& pfad);

} // namespace varnoth
