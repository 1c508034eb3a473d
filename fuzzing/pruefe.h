#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace varnoth::fuzzing {

/// Ends the run when a property does not hold.
inline void Pruefe(bool gilt, const char* eigenschaft) {
    if (gilt)
        return;
    std::fprintf(stderr, "does not hold: %s\n", eigenschaft);
    std::abort();
}

/// A fuzzer's bytes as text.
inline std::string_view AlsText(const std::uint8_t* daten, std::size_t laenge) {
    return {reinterpret_cast<const char*>(daten), laenge};
}

/// Takes one byte away from the front of the text; 0 when it is empty.
inline std::uint8_t NimmByte(std::string_view& text) {
    if (text.empty())
        return 0;
    const auto byte = static_cast<std::uint8_t>(text.front());
    text.remove_prefix(1);
    return byte;
}

} // namespace varnoth::fuzzing
