#pragma once

#include "werte.h"

#include <cstdint>

namespace varnoth {

/// The three memory ranges of the controller.
enum class Speicherbereich { GlobaleGeraetedaten, SpezifischeGeraetedaten, Kommunikationsdaten };

inline constexpr auto Global = Speicherbereich::GlobaleGeraetedaten;
inline constexpr auto Spezifisch = Speicherbereich::SpezifischeGeraetedaten;
inline constexpr auto Kommunikation = Speicherbereich::Kommunikationsdaten;

inline constexpr Speicherbereich AlleSpeicherbereiche[] = {Speicherbereich::GlobaleGeraetedaten,
                                                           Speicherbereich::SpezifischeGeraetedaten,
                                                           Speicherbereich::Kommunikationsdaten};

/// Number of addresses of a range: 256, the specific range 512.
constexpr std::int16_t AnzahlAdressen(Speicherbereich bereich) {
    return bereich == Speicherbereich::SpezifischeGeraetedaten ? 512 : 256;
}

/// How many times a range exists: the specific range once for each optical part, the others once.
constexpr int Exemplare(Speicherbereich bereich) {
    return bereich == Speicherbereich::SpezifischeGeraetedaten ? AnzahlOptikteile : 1;
}

/// The device address of a range's first register.
constexpr std::uint16_t Bereichsanfang(Speicherbereich bereich) {
    constexpr std::uint16_t Anfaenge[] = {0x0000, 0x2000, 0x4000};
    return Anfaenge[static_cast<int>(bereich)];
}

/// The device address of a register; in the specific range that of the optical part selected there.
constexpr std::uint16_t Geraeteadresse(Speicherbereich bereich, std::int16_t adresse) {
    return static_cast<std::uint16_t>(Bereichsanfang(bereich) + adresse);
}

} // namespace varnoth
