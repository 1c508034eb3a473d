#pragma once

#include <cstdint>
#include <string_view>

namespace varnoth {

/// CRC-16/MODBUS: reflected polynomial 0xA001, start value 0xFFFF, no final XOR. A value is an unsigned
/// 16-bit number held in 32 bits.
using Crc = std::int32_t;

/// The start value.
Crc CrcInit();

/// The CRC after one more byte.
Crc CrcUpdate(Crc crc, std::uint8_t byte);

/// The CRC of a whole byte string.
Crc CrcVon(std::string_view bytes);

/// Bits 8..15.
constexpr std::uint8_t HiByte(std::int32_t x) {
    return static_cast<std::uint8_t>((x / 256) & 0xFF);
}

/// Bits 0..7.
constexpr std::uint8_t LoByte(std::int32_t x) {
    return static_cast<std::uint8_t>(x & 0xFF);
}

} // namespace varnoth
