#pragma once

#include "strahlbereiche.h"
#include "strahlgeometrie.h"
#include "werte.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace varnoth {

/// The measured values of a view, in the order of their registers: TU, HU, ZU, TNU, HNU, ZNU.
inline constexpr int AnzahlMesswerte = 6;

/// Where the block of values begins that an option button selects: 0 current, 1 minimum, 2 maximum.
int Blockversatz(int auswahl);

/// The status bits (0..63) in a value of the status register.
std::int16_t Statusbits(std::int32_t statusregister);

/// "Status: " and what the status bits say, in the current language.
std::string Statustext(std::int16_t statusbits);

/// What a value field shows while nothing was measured.
inline constexpr const char* KeinWert = "–";

/// Which beam (index) it is and, unless the spacing is 0, where it lies; empty for -1.
std::string Strahltext(int index, std::int32_t abstandMm);

/// "Beams 189–323 of 512" in the current language.
std::string Ausschnittstext(const Strahlbereich& bereich, int strahlen);

/// Remembers what is drawn of each beam and counts the blanked beams of a scan.
class Strahlanzeige {
public:
    /// The most beams it remembers.
    static constexpr int Hoechstzahl = 1009;

    /// Forgets what is drawn.
    void Vergiss();
    /// Takes a beam's state, `frei` and `geblankt` being true where not 0; beam 0 begins a scan. Gives what
    /// has to be drawn, nothing when it is drawn already. The index must be below Hoechstzahl.
    std::optional<Strahlzustand> Nimm(int index, std::int32_t frei, std::int32_t geblankt);
    /// Blanked beams since beam 0.
    std::int16_t Geblankte() const { return geblankte; }

private:
    std::array<std::optional<Strahlzustand>, Hoechstzahl> gezeichnet{};
    std::int16_t geblankte = 0;
};

} // namespace varnoth
