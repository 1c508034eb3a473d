#pragma once

#include "abbild.h"
#include "parameterstelle.h"

#include <array>
#include <vector>

namespace varnoth {

/// What comes of comparing a parameter.
enum class Vergleichsklasse {
    Gleich,
    Verschieden,
    NurInA,      ///< its optical part is there in A alone
    NurInB,      ///< its optical part is there in B alone
    NichtLesbar, ///< it was not read on one side at least: nothing is known of it
};

inline constexpr Vergleichsklasse AlleVergleichsklassen[] = {
    Vergleichsklasse::Gleich, Vergleichsklasse::Verschieden, Vergleichsklasse::NurInA,
    Vergleichsklasse::NurInB, Vergleichsklasse::NichtLesbar};

/// What is compared.
enum class Vergleichsumfang {
    /// What a person calls the configuration: every parameter that belongs to it, and what its meaning hangs
    /// on, which are the beam counts and the bus type. Measured values, states and what tells one controller
    /// from another take no part. A part without beams is not there: it has no parameters.
    Konfiguration,
    /// What a write sends: every writable parameter of all four parts, connected or not, with the 16 bits
    /// that travel.
    Geschriebenes,
};

/// A parameter and what both sides have. The values of a side where it was not read or its part is not there
/// are those of the image, and mean nothing.
struct Vergleichszeile {
    Parameterstelle stelle;
    Vergleichsklasse klasse;
    Werte a;
    Werte b;

    /// Whether side A (B) has a value to be told.
    bool HatA(const Parametermenge& ungelesen) const;
    bool HatB(const Parametermenge& ungelesen) const;

    bool operator==(const Vergleichszeile&) const = default;
};

/// What was not read of each side.
struct Ungelesenes {
    Parametermenge inA{};
    Parametermenge inB{};
};

/// What comes of comparing two images: every parameter that took part, equal or not, in the order of
/// `Parameterstelle`.
struct Vergleichsergebnis {
    std::vector<Vergleichszeile> zeilen{};
    /// The parts 0..3 that are there on neither side; their parameters took no part.
    std::vector<int> nirgends{};

    /// How many rows are of a class.
    [[nodiscard]] int Anzahl(Vergleichsklasse klasse) const { return anzahlen[Platz(klasse)]; }
    /// How many rows differ: values, or a part on one side alone. What was not read does not count.
    [[nodiscard]] int Unterschiede() const;
    /// Whether everything was compared and is equal.
    [[nodiscard]] bool IstGleich() const;

    void Fuege(Vergleichszeile zeile);

private:
    static constexpr std::size_t Platz(Vergleichsklasse klasse) { return static_cast<std::size_t>(klasse); }

    std::array<int, std::size(AlleVergleichsklassen)> anzahlen{};
};

/// Compares two images. Whether a part is there is not known where its beam count was not read; it then is
/// compared like one that is.
Vergleichsergebnis Vergleiche(const Abbild& a, const Abbild& b, const Ungelesenes& ungelesen = {},
                              Vergleichsumfang umfang = Vergleichsumfang::Konfiguration);

} // namespace varnoth
