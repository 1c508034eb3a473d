#pragma once

#include <cstdint>
#include <string_view>

namespace varnoth {

/// CRC-32 as archives use it (polynomial 0x04C11DB7, reflected): 0xCBF43926 for "123456789".
std::uint32_t Crc32(std::string_view bytes);

} // namespace varnoth
