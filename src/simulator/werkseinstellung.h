#pragma once

#include "registerspeicher.h"

#include <string>
#include <string_view>

namespace varnoth::simulator {

/// Value of global register 0 and second byte of the identification.
inline constexpr int Geraetetyp = 50;

/// The registers of a controller as it leaves the factory, with the station address and line format of the
/// bench.
Registerspeicher Werkseinstellung(const Aufbau& aufbau);

/// Writes characters into registers, two a register, the first in the high byte; the rest is filled with
/// blanks.
void SchreibeText(std::span<std::uint16_t> werte, std::string_view text);

/// The characters registers hold, without blanks at the end.
std::string LiesText(std::span<const std::uint16_t> werte);

} // namespace varnoth::simulator
