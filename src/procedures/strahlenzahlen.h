#pragma once

#include "werte.h"

#include <array>
#include <cstdint>

namespace varnoth {

/// The beam counts of the four optical parts; 0 = no part.
using Strahlenzahlen = std::array<std::int32_t, AnzahlOptikteile>;

/// The fewest beams that can be entered for an optical part: the first always exists.
constexpr int KleinsteStrahlenzahl(int optikteil) {
    return optikteil == 0 ? 1 : 0;
}

/// The beam count behind an entry of an optical part's list. The lists run up to 512 beams.
constexpr int StrahlenzahlZuIndex(int optikteil, int index) {
    return KleinsteStrahlenzahl(optikteil) + index;
}

/// The entry of an optical part's list that stands for a beam count.
constexpr int IndexZuStrahlenzahl(int optikteil, int strahlenzahl) {
    return strahlenzahl - KleinsteStrahlenzahl(optikteil);
}

/// What the lists show at first.
inline constexpr int AnfaenglicheStrahlenzahl = 32;

/// The beams of all optical parts together.
int Strahlensumme(const Strahlenzahlen& strahlenzahlen);

/// Whether the controller can have that many beams together.
constexpr bool IstZulaessigeStrahlensumme(int summe) {
    return summe <= MaxStrahlen;
}

/// Whether an optical part takes part in a configuration of 1..4 parts.
constexpr bool GehoertDazu(int optikteil, int anzahlOptikteile) {
    return optikteil < anzahlOptikteile;
}

/// Makes a new configuration in the register image: the default configuration with the beam counts, marked as
/// changed. False for more than 512 beams together; then the default configuration is loaded all the same,
/// without a beam.
bool ErstelleKonfiguration(const Strahlenzahlen& strahlenzahlen);

} // namespace varnoth
