#pragma once

#include "strahlreduktion.h"
#include "strahlverdacht.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// What the beams' past tells, in words of the current language (UTF-8).
namespace varnoth {

/// "412 ms", "12,3 s", "4 min 12 s", "3 h 05 min".
std::string Dauerworte(Zeit dauer);
/// A share of 0 to 1: "12,3 %". What is not all is not called 100, and what is not nothing not 0.
std::string Anteilworte(double anteil);
/// What a cell of the waterfall shows.
std::string Zellenworte(Zellenart art);
/// "Strahl 113", "Strahlen 113–114", by index.
std::string Strahlname(int von, int bis);
/// Where a beam (index) lies; empty where the distance of beams (mm) is not known.
std::string Strahlplatz(int strahl, int abstandMm);

/// What is suspected, as a question: "Strahl 113: verschmutzt oder verstellt?".
std::string Verdachtsfrage(const Strahlverdacht& verdacht);
/// The reason with its numbers, a sentence.
std::string Verdachtsgrund(const Strahlverdacht& verdacht);
/// The suspicion that a beam (index) is part of; nullptr for none.
const Strahlverdacht* VerdachtVon(std::span<const Strahlverdacht> verdaechte, int strahl);

/// The columns of the statistics.
inline constexpr int AnzahlStrahlspalten = 7;
enum class Strahlspaltenart : std::uint8_t {
    Nummer,
    Platz,
    Anteil,
    Wechsel,
    Laengste,
    LetzterWechsel,
    Verdacht,
};
std::string Spaltentitel(Strahlspaltenart spalte);
/// What stands in a column of a beam (index); empty where there is nothing to tell.
std::string Spaltenworte(Strahlspaltenart spalte, const Strahlwerte& werte, int strahl, int abstandMm,
                         const Messangaben& angaben, std::span<const Strahlverdacht> verdaechte);

} // namespace varnoth
