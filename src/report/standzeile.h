#pragma once

#include "abschnitte.h"

#include <cstdint>
#include <string_view>

/// What writing and reading of a configuration as text share.
namespace varnoth::standzeile {

inline constexpr std::string_view Trenner = " / ";
inline constexpr char Bemerkung = '#';

inline constexpr std::int16_t TextErsteZeile = 9653;
inline constexpr std::int16_t TextSpalten = 9654;
inline constexpr std::int16_t TextRegister = 9655; ///< the name of what belongs to no parameter

/// Whether a text has a line for the parameter whatever its value.
inline bool StehtImmer(const Parameter& parameter) {
    return !IstMomentan(parameter);
}

} // namespace varnoth::standzeile
