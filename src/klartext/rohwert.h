#pragma once

#include "werte.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Values for which there are no words, as numbers.
namespace varnoth {

/// A register's value in decimal and hexadecimal: "99 (0x63)".
std::string Rohtext(std::int32_t wert);
/// The value of such a text, or of its hexadecimal half alone ("0x63", at most 0xFFFF). Nothing where the two
/// halves contradict each other.
std::optional<std::int32_t> RohwertAus(std::string_view text);

/// Several registers, in hexadecimal: "0x41 0x42". A value outside 16 bits is told in decimal. A single one
/// is told as `Rohtext`.
std::string Rohtexte(const Werte& werte);
/// The values of such a text.
std::optional<Werte> RohwerteAus(std::string_view text);

} // namespace varnoth
