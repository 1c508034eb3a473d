#pragma once

#include "option.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// The format of the line between master and slave, communication register 2.
namespace varnoth {

/// The baud rates, by the codes from `ErsterBaudcode` on.
inline constexpr std::string_view Baudtexte[] = {"1,2 KB",  "2,4 KB",  "4,8 KB", "9,6 KB",
                                                 "19,2 KB", "38,4 KB", "57,6 KB"};
inline constexpr std::int32_t ErsterBaudcode = 10;

/// The numbers of stop bits, by the code in their bits.
inline constexpr std::string_view Stopbittexte[] = {"0", "1", "1,5", "2"};

/// The bits of the register.
namespace leitungsbits {
inline constexpr std::int32_t Baud = 0xFF;
inline constexpr std::int32_t Stop = 0x300;
inline constexpr int Stopversatz = 8;
inline constexpr std::int32_t Paritaet = 0xC00;
} // namespace leitungsbits

/// The parities that a register can say.
std::span<const Option> Paritaeten();

/// What the editor shows of the format, in the current language: baud rate, stop bits and parity. What is not
/// recognised, odd parity among it, is shown as "?, ".
std::string Formattext(std::int32_t format);

} // namespace varnoth
