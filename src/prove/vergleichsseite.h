#pragma once

#include "abbild.h"
#include "parameterstelle.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace varnoth {

/// Where a side of a comparison comes from.
enum class Vergleichsquelle { InBearbeitung, ZuletztGelesen, Geraet, Datei, Sicherung, Werksvorgabe };

inline constexpr Vergleichsquelle AlleVergleichsquellen[] = {
    Vergleichsquelle::InBearbeitung, Vergleichsquelle::ZuletztGelesen, Vergleichsquelle::Geraet,
    Vergleichsquelle::Datei,         Vergleichsquelle::Sicherung,      Vergleichsquelle::Werksvorgabe};

/// The name of a source, as a person chooses it.
std::string Quellenname(Vergleichsquelle quelle);

/// Whether choosing the source asks further: for a file, or the controller. What it gave stays as it was
/// then; the others follow what the program knows.
bool FragtNach(Vergleichsquelle quelle);

/// One side of a comparison.
struct Vergleichsseite {
    Vergleichsquelle quelle = Vergleichsquelle::Werksvorgabe;
    std::string einzelheit{}; ///< which one, as UTF-8: a path, a time, a serial number; may be empty
    Abbild abbild{};
    Parametermenge ungelesen{}; ///< what is not known of it

    bool operator==(const Vergleichsseite&) const = default;
};

/// Whether the side's detail is the path of a file.
bool IstVonDatei(const Vergleichsseite& seite);

/// What the side is called in a title: the source, and of a file its name.
std::string Seitenname(const Vergleichsseite& seite);

/// The left and the right side.
enum class Seitenwahl { A, B };

inline constexpr Seitenwahl BeideSeiten[] = {Seitenwahl::A, Seitenwahl::B};

constexpr Seitenwahl Gegenueber(Seitenwahl seite) {
    return seite == Seitenwahl::A ? Seitenwahl::B : Seitenwahl::A;
}

} // namespace varnoth
