#pragma once

#include "lesart.h"
#include "werte.h"

#include <optional>
#include <string>
#include <string_view>

namespace varnoth {

/// The blanked beams of a pattern, counted from 1, as ranges: "3-7, 12"; "none" in the language for none.
std::string BlankingAlsWorte(const Werte& muster, const Lesart& lesart);

/// The registers of the pattern that blanks these beams. Nothing where beams beyond the registers are named
/// or a range ends before it begins.
std::optional<Werte> BlankingAusWorten(std::string_view worte, const Lesart& lesart);

} // namespace varnoth
