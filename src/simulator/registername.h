#pragma once

#include "registerplan.h"

#include <span>
#include <string>
#include <string_view>

namespace varnoth::simulator {

/// One register as commands and files name it: "global 193", "specific 1 13" (part 0..3 first),
/// "communication 74".
struct Registername {
    Ort ort;
    int teil = 0;
};

/// Takes a register's name off the front of the words.
/// @throws std::invalid_argument with a sentence for the user
Registername LiesRegistername(std::span<const std::string_view>& woerter);

std::string Text(const Registername& name);

} // namespace varnoth::simulator
