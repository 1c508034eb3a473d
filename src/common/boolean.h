#pragma once

#include <cstdint>

namespace varnoth {

/// The system's Boolean: 16 bits, all set for true. It is stored in flags and register fields as it stands,
/// so a value that is neither of the two constants counts as neither where a rule says so.
using Boolean = std::int16_t;

inline constexpr Boolean True = -1;
inline constexpr Boolean False = 0;

/// The Boolean of a condition.
constexpr Boolean AlsBoolean(bool bedingung) {
    return bedingung ? True : False;
}

} // namespace varnoth
