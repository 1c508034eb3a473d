#pragma once

#include "abbild.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace varnoth {

/// CRC-32 as archives use it (polynomial 0x04C11DB7, reflected): 0xCBF43926 for "123456789".
std::uint32_t Crc32(std::string_view bytes);

/// The checksum of a configuration: the same for two images exactly when nothing that stays in a controller
/// differs between them, up to chance. Eight hexadecimal digits.
std::string Konfigurationspruefsumme(const Abbild& abbild);

} // namespace varnoth
