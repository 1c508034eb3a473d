#pragma once

#include "szene.h"

#include <array>
#include <cstdint>
#include <span>

namespace varnoth::simulator {

/// The six values of one scan, in the order of their registers. Beams count from 1, 0 = there is none.
enum Messwert { TU, HU, ZU, TNU, HNU, ZNU, Messwertzahl };
using Messwerte = std::array<std::uint16_t, Messwertzahl>;

/// Bits of an optical part's status register.
namespace teilstatus {
inline constexpr std::uint16_t AllesFrei = 1 << 0, AllesUnterbrochen = 1 << 1, BahnInMitte = 1 << 2;
inline constexpr std::uint16_t BahnZuHoch = 1 << 3, BahnZuTief = 1 << 4, Loch = 1 << 5, Vorhanden = 1 << 7;
} // namespace teilstatus

/// Which beams take part: those of the part that are not blanked.
Strahlenbild Beteiligte(int anzahl, const Strahlenbild& geblankt);

/// Lowest, highest and number of the interrupted beams, then the same for the beams not interrupted.
Messwerte Miss(const Strahlenbild& frei, const Strahlenbild& beteiligte);

/// How a part's scan is judged.
struct Massstab {
    int anzahl;      ///< beams of the part
    int toleranz;    ///< so many beams may the web's middle be off the part's
    int lochgroesse; ///< so many neighbouring free beams within the web are a hole
};

/// Bits 0..5 of the status register. A web lies between the lowest and the highest interrupted beam.
std::uint16_t Beurteile(const Strahlenbild& frei, const Strahlenbild& beteiligte, const Massstab& massstab);

/// The least and the greatest of each value since the start.
class Extremwerte {
public:
    void Nimm(const Messwerte& werte);
    void Vergiss() { *this = {}; }
    const Messwerte& Kleinste() const { return kleinste; }
    const Messwerte& Groesste() const { return groesste; }

private:
    bool leer = true;
    Messwerte kleinste{};
    Messwerte groesste{};
};

/// Reads a pattern of one bit a beam from registers: beams 0..7 of a register in its high byte.
Strahlenbild LiesMuster(std::span<const std::uint16_t> werte);

/// Writes such a pattern; registers past the last beam become 0.
void SchreibeMuster(std::span<std::uint16_t> werte, const Strahlenbild& bild);

} // namespace varnoth::simulator
