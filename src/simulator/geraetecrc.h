#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace varnoth::simulator {

using Bytes = std::vector<std::uint8_t>;

inline constexpr std::uint16_t CrcStart = 0xFFFF;

/// Carries the checksum on over one more byte. Over a whole frame with its own checksum the result is 0.
std::uint16_t CrcWeiter(std::uint16_t crc, std::uint8_t zeichen);

/// The checksum of some bytes.
std::uint16_t Crc(std::span<const std::uint8_t> zeichen);

/// Appends the checksum of what is there, low byte first.
void HaengeCrcAn(Bytes& rahmen);

} // namespace varnoth::simulator
