#pragma once

#include "verlaufswahl.h"

#include <cstdint>
#include <string>

namespace varnoth {

/// Writes the passes of a stretch of time as a table (CSV, UTF-8) step by step: when each one ended, and of
/// the curves chosen the value with its minimum and maximum; the states of their parts and the switching
/// output. In German semicolon and decimal comma behind a byte order mark, as spreadsheets of that language
/// want it; in English comma and point. Values are as they are shown: beams or millimetres.
class Verlaufsschreiber {
public:
    /// So many passes at most: a file of more than this could not be opened anywhere.
    static constexpr std::uint64_t MeisteZeilen = 2'000'000;

    /// In the language that is in use now.
    Verlaufsschreiber(const Verlaufswahl& wahl, const Strahlabstaende& abstaende, Zeitspanne spanne);

    /// Goes on, reading `pakete` packets at most.
    void Weiter(const Messquelle& quelle, int pakete);
    bool IstFertig() const { return fertig; }
    /// Whether there were more passes than it writes.
    bool IstGekuerzt() const { return gekuerzt; }
    std::uint64_t Zeilen() const { return zeilen; }
    /// How far it has come, 0 to 100.
    int Prozent(const Messquelle& quelle) const;
    const std::string& Text() const { return text; }

private:
    void SchreibKopf();
    void SchreibZeile(const Messangaben& angaben, const Messdurchgang& durchgang);
    void SchreibWerte(const Messdurchgang& durchgang, Messreihe reihe);
    std::string Zelle(Messreihe reihe, int wert) const;

    Verlaufswahl wahl;
    Strahlabstaende abstaende;
    Zeitspanne spanne;
    bool deutsch;
    std::string text;
    std::uint64_t zeilen = 0;
    std::optional<std::uint64_t> naechstes; ///< packet
    bool fertig = false;
    bool gekuerzt = false;
};

/// "2026-11-22T14:03:05.250+01:00", with a comma when asked for.
std::string Zeitstempel(const Messangaben& angaben, Zeit laufzeit, char dezimal);

} // namespace varnoth
