#pragma once

#include "aufbau.h"

#include <bitset>

namespace varnoth::simulator {

/// One bit a beam from index 0: set = free, clear = interrupted.
using Strahlenbild = std::bitset<MaxStrahlen>;

/// Time of one scan; within it nothing moves.
inline constexpr Zeit Abtastzeit{5000};

/// What passes through the curtain: in every optical part a web whose edges wander, with holes in it; from
/// time to time a gap between two webs; one part flickers at the web's upper edge. The picture depends on the
/// seed and the time alone.
class Szene {
public:
    explicit Szene(std::uint64_t zufallsbeginn) : startwert(zufallsbeginn) {}

    /// The beams of a part (0..3) with `anzahl` beams at a time from the start. Beams from `anzahl` on are
    /// clear.
    Strahlenbild Stand(int teil, int anzahl, Zeit zeit) const;

private:
    struct Bahn;
    Bahn BahnVon(int teil, int anzahl, double sekunden) const;
    void StanzeLoch(Strahlenbild& bild, int teil, const Bahn& bahn, double sekunden) const;
    void Flimmere(Strahlenbild& bild, int anzahl, const Bahn& bahn, Zeit zeit) const;
    std::uint64_t Zufall(std::uint64_t was, std::uint64_t wievieltes) const;
    double Phase(int teil, int welle) const;

    std::uint64_t startwert;
};

} // namespace varnoth::simulator
