#pragma once

#include <cstdint>

namespace varnoth {

/// The smallest and the greatest of some values; none while `kleinster` is above `groesster`.
struct Wertspanne {
    std::uint16_t kleinster = 0xFFFF;
    std::uint16_t groesster = 0;

    bool IstLeer() const { return kleinster > groesster; }
    void Nimm(std::uint16_t wert) {
        kleinster = kleinster < wert ? kleinster : wert;
        groesster = groesster > wert ? groesster : wert;
    }
    void Nimm(const Wertspanne& andere) {
        kleinster = kleinster < andere.kleinster ? kleinster : andere.kleinster;
        groesster = groesster > andere.groesster ? groesster : andere.groesster;
    }
    bool operator==(const Wertspanne&) const = default;
};

/// Bits that were 1 at least once, and those that were never 0.
struct Bitspanne {
    std::uint16_t einmal = 0;
    std::uint16_t immer = 0xFFFF;

    void Nimm(std::uint16_t wert) { einmal |= wert, immer &= wert; }
    void Nimm(const Bitspanne& andere) { einmal |= andere.einmal, immer &= andere.immer; }
    bool operator==(const Bitspanne&) const = default;
};

} // namespace varnoth
