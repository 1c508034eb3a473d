#pragma once

#include "option.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// A register in words: each of its fields, a part of its bits, says one thing.
namespace varnoth {

/// One of the things a field may say.
struct Wahl {
    std::int32_t wert; ///< the bits in their place in the register
    std::string worte; ///< empty where there is nothing to say

    bool operator==(const Wahl&) const = default;
};

/// A part of a register and all it may say.
struct Feld {
    std::int32_t maske;
    std::vector<Wahl> wahlen;
};

/// The fields of a register in the order they are told.
using Felder = std::vector<Feld>;

/// The field of some options in a language.
Feld FeldAus(std::int32_t maske, std::span<const Option> optionen, std::int16_t sprache);

/// The field of a single bit that says something when it is set.
Feld Schalter(std::int32_t bit, const std::string& worte);

/// What the value says, the fields separated by "; ". Nothing when a field cannot have its value, or bits are
/// set that belong to none.
std::optional<std::string> WorteFuer(const Felder& felder, std::int32_t wert);

/// The value of which the words speak; nothing for words that the fields do not say.
std::optional<std::int32_t> WertAus(const Felder& felder, std::string_view worte);

} // namespace varnoth
