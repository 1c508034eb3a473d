#pragma once

#include "vergleich.h"

#include <string>
#include <vector>

/// A comparison in words of the current language.
namespace varnoth {

/// Whose parameter it is: "Global", "Optikteil 1" to "Optikteil 4" or "Kommunikation".
std::string Gruppenname(const Parameterstelle& stelle);

/// The parameter with its group: "Optikteil 2, Auflösung".
std::string Stellenname(const Parameterstelle& stelle);

/// Parameters with the values that an image holds, each after a line break: "\nGlobal, Filter: 5".
std::string Wertzeilen(const Abbild& abbild, const Parametermenge& stellen);

/// One side of a comparison.
struct Vergleichsbild {
    const Abbild& abbild;
    const Parametermenge& ungelesen;
};

/// A row in words. Where a side has no value, its words say why.
struct Vergleichsworte {
    Parameterstelle stelle;
    Vergleichsklasse klasse;
    std::string gruppe;
    std::string name;
    std::string a;
    std::string b;
    std::string registertext;
};

/// Every row, in the order of the comparison. The values of a side are read with its own beam counts and bus
/// type.
std::vector<Vergleichsworte> InWorten(const Vergleichsergebnis& ergebnis, const Vergleichsbild& a,
                                      const Vergleichsbild& b);

/// How many rows are of each class, in one line.
std::string Klassenanzahlen(const Vergleichsergebnis& ergebnis);

/// What comes of the comparison, in a sentence or two: how many differences, what was not compared, which
/// parts neither side has. "No difference" is said only of what was compared.
std::string Vergleichsbefund(const Vergleichsergebnis& ergebnis);

/// The rows as a text for a file: a line for each group, below it each row with the value of both sides.
std::string AlsText(const std::vector<Vergleichsworte>& zeilen, const std::string& nameA,
                    const std::string& nameB);

} // namespace varnoth
