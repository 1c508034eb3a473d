#pragma once

#include "option.h"

namespace varnoth {

/// What the lowest bits of an optical part's status say of its beams and the object, bit by bit.
inline constexpr Option Optikteilmerkmale[] = {{1 << 0, 4012}, {1 << 1, 4013}, {1 << 2, 4014},
                                               {1 << 3, 4015}, {1 << 4, 4016}, {1 << 5, 4017}};

} // namespace varnoth
