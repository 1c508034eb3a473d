#pragma once

#include <string>
#include <string_view>

namespace varnoth {

/// UTF-8 in the system's characters, and back. What is no UTF-8 comes as the character for that.
std::wstring AlsUtf16(std::string_view utf8);
std::string AlsUtf8(std::wstring_view utf16);

/// A path (UTF-8) as the system takes it whatever its length: absolute, behind "\\?\". A name that stands for
/// a device in every folder ("CON", "nul.txt", "COM1") comes as "\\.\NAME".
std::wstring Systempfad(std::string_view utf8);

/// Whether such a path can lead to a file or folder: no device, no pipe.
bool KannDateiSein(std::wstring_view systempfad);

} // namespace varnoth
