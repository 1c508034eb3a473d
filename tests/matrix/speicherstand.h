#pragma once

#include <cstddef>

namespace varnoth::pruefung {

/// What this process holds of the machine.
struct Speicherstand {
    std::size_t belegtKb;     ///< resident memory
    std::size_t benutztKb;    ///< of it, what was allocated and not given back
    std::size_t deskriptoren; ///< open file descriptors
};

Speicherstand LiesSpeicherstand();

} // namespace varnoth::pruefung
