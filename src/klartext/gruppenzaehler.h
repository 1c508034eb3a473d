#pragma once

#include "option.h"

#include <cstdint>
#include <span>

namespace varnoth {

/// The ways to join beams.
std::span<const Option> Gruppenverknuepfungen();

/// Whether the group counter joins its beams by OR rather than AND.
bool GruppenzaehlerOder(std::int32_t registerwert);

/// The group counter's register from its count and how it joins its beams.
std::int32_t Gruppenzaehlerwert(std::int32_t anzahl, bool oder);

} // namespace varnoth
