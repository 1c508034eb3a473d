#pragma once

#include "lesart.h"
#include "werte.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Registers whose value is a plain number.
namespace varnoth {

/// The numbers, separated by ", ".
std::optional<std::string> ZahlenAlsWorte(const Werte& werte, const Lesart& lesart);
/// So many numbers of 0..`groesste`, separated by commas.
std::optional<Werte> ZahlenAusWorten(std::string_view worte, std::size_t anzahl,
                                     std::int32_t groesste = 0xFFFF);

/// The pause time with its unit: "125 * 0,8µs".
std::optional<std::string> PauseAlsWorte(const Werte& werte, const Lesart& lesart);
/// A pause time of 0..65535, with or without its unit.
std::optional<Werte> PauseAusWorten(std::string_view worte, const Lesart& lesart);

} // namespace varnoth
