#pragma once

#include "registerbeschreibung.h"
#include "werte.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace varnoth {

/// Where a register lies in its range: address 0 of parts 0..3, then address 1 of parts 0..3 and so on.
constexpr std::size_t Stelle(Speicherbereich bereich, std::int16_t adresse, int optikteil = 0) {
    return static_cast<std::size_t>(optikteil) +
           static_cast<std::size_t>(Exemplare(bereich)) * static_cast<std::size_t>(adresse);
}

/// Number of values of a range: 256, 4 x 512 or 256.
constexpr std::size_t AnzahlWerte(Speicherbereich bereich) {
    return Stelle(bereich, AnzahlAdressen(bereich));
}

/// The most registers of live beam states that an optical part has.
inline constexpr std::int16_t MaxStrahlregister = 64;

/// A value for every register of a controller, each of which may use all 32 bits; 0 at first.
///
/// Registers are read and stored one whole parameter at a time. `adresse` is where the parameter starts;
/// `optikteil` is 0..3 in the specific range and 0 in the others. What is refused changes nothing.
class Abbild {
public:
    /// The parameter's values; none where no parameter starts.
    [[nodiscard]] Werte HoleParameter(Speicherbereich bereich, std::int16_t adresse, int optikteil = 0) const;
    /// Stores a parameter; values beyond its length are ignored. False where no parameter starts, and for too
    /// few values.
    [[nodiscard]] bool SetzeParameter(Speicherbereich bereich, std::int16_t adresse, const Werte& werte,
                                      int optikteil = 0);

    /// The value of a parameter of one register; 0 where no such parameter starts.
    [[nodiscard]] std::int32_t HoleRegister(Speicherbereich bereich, std::int16_t adresse,
                                            int optikteil = 0) const;
    /// Stores a parameter of one register. False where no such parameter starts.
    [[nodiscard]] bool SetzeRegister(Speicherbereich bereich, std::int16_t adresse, std::int32_t wert,
                                     int optikteil = 0);

    /// The live beam states of an optical part, `anzahl` = 1..64 registers from `spezifisch::Strahlzustaende`
    /// on; none for another number or part.
    [[nodiscard]] Werte HoleStrahlzustaende(std::int16_t anzahl, int optikteil) const;
    /// Stores the first `anzahl` of the values as beam states. False for another number or part, and for too
    /// few values.
    [[nodiscard]] bool SetzeStrahlzustaende(std::int16_t anzahl, int optikteil, const Werte& werte);

    /// All values of a range as they lie in memory and in a configuration file, parameters or not. In the
    /// specific range the optical part varies fastest (see `Stelle`).
    [[nodiscard]] std::span<const std::int32_t> Bereich(Speicherbereich bereich) const;
    [[nodiscard]] std::span<std::int32_t> Bereich(Speicherbereich bereich);

    bool operator==(const Abbild&) const = default;

private:
    struct Block;

    Werte Hole(const Block& block) const;
    bool Setze(const Block& block, const Werte& werte);

    /// The ranges, one after the other.
    std::array<std::int32_t, AnzahlWerte(Speicherbereich::GlobaleGeraetedaten) +
                                 AnzahlWerte(Speicherbereich::SpezifischeGeraetedaten) +
                                 AnzahlWerte(Speicherbereich::Kommunikationsdaten)>
        alleWerte{};
};

} // namespace varnoth
