#pragma once

#include <cstdint>

namespace varnoth {

/// One of the values that a part of a register may have, and the id of the text that says what it means.
struct Option {
    std::int32_t wert; ///< the bits in their place in the register
    std::int16_t text;

    bool operator==(const Option&) const = default;
};

} // namespace varnoth
