#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varnoth {

/// A single register of the controller, the way a user names it.
struct Einzelregister {
    int optikteil = 0;             ///< 0..3; it is selected for every access, whatever the range
    std::int32_t adressOffset = 0; ///< device address of the range's first register
    std::string adresse{};         ///< the address within the range, as typed
};

/// The device address of a memory range's first register: 0 = global, 1 = specific, 2 = communication data.
/// Any other range counts as the global one.
std::int32_t BereichsOffset(int bereich);

/// The device address of the register; nothing when it lies outside 0..0xFFFF. An address without a number
/// is that of the range's first register.
std::optional<std::uint16_t> Registeradresse(const Einzelregister& wahl);

/// The value that the typed text stands for, -32768..65535; nothing for any other. A text without a number is
/// 0.
std::optional<std::int32_t> Registerwert(std::string_view inhalt);

/// Reads the register from the controller, past the register image. Gives the text to show: the value as
/// "&H1F", or "???" when the controller did not answer. Nothing is sent to an address that cannot be.
std::string LiesEinzelwert(const Einzelregister& wahl);

/// Writes the typed value into the register, past the register image. Gives the text to show: "OK", or "???"
/// when the controller did not confirm it. Nothing is sent to an address, and no value, that cannot be.
std::string SchreibeEinzelwert(const Einzelregister& wahl, std::string_view inhalt);

} // namespace varnoth
