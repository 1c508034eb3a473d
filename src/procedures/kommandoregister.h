#pragma once

#include "boolean.h"

#include <cstdint>

namespace varnoth {

/// What the controller can be told to do at once.
enum class Kommando : std::int32_t {
    SpeichereKonfiguration = 1, ///< keep the configuration permanently
    SpeichereWerksdaten = 2,    ///< keep the factory data permanently
    StarteNeu = 3,              ///< start as at power-up
};

/// Sends a command. True when the controller has confirmed it.
Boolean SendeKommando(Kommando kommando);

} // namespace varnoth
