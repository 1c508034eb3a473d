#pragma once

#include "registeradressen.h"
#include "texte.h"
#include "werte.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

/// The autosend data block: which values the controller sends, and in which order. An entry is a word: bits
/// 0-7 say which value (0 ends the list), bits 8-11 where it comes from.
namespace varnoth {

/// The registers that hold the data block, and the most entries it takes: one place stays 0 as its end.
using kommunikation::Datenblockregister;
inline constexpr int MaxEintraege = 29;

/// Where a value comes from; the numbers are those of the entry word.
enum class Quelle { Geraet, K1, K2, K3, K4 };
enum class Wertart { Aktuell, Min, Max };
enum class Sendewert { Strahlendaten, TU, HU, ZU, TNU, HNU, ZNU, Status };

inline constexpr int AnzahlQuellen = 5;
inline constexpr int AnzahlWertarten = 3;
inline constexpr int AnzahlSendewerte = 8;

/// What a person chooses of an entry.
struct Eintragswahl {
    Quelle quelle = Quelle::Geraet;
    Wertart art = Wertart::Aktuell;
    Sendewert wert = Sendewert::Status;

    bool operator==(const Eintragswahl&) const = default;
};

/// Whether a choice makes sense. Beam data and status have no minimum and maximum. Beam data and measured
/// values are made by an optical part, each its own; only a status is there for the device as a whole too.
bool IstErlaubt(const Eintragswahl& wahl);
/// The choice itself where it makes sense, otherwise the one next to it: the source stays; the device then
/// gives its status, and a value without minimum and maximum its current one.
Eintragswahl Passend(Eintragswahl wahl);

/// The entry word of a choice; 0 for the minimum or maximum of a value that has none.
std::int16_t Eintragswort(const Eintragswahl& wahl);
/// The choice behind an entry word; nothing where value or source are unknown. Bits 12-15 do not count.
std::optional<Eintragswahl> WahlAus(std::int16_t eintrag);
/// The line of an entry in the list, value and source: "TUMin:K1". UTF-8, in the given language.
std::string Eintragstext(std::int16_t eintrag, std::int16_t sprache = GetSprachoffset());

/// The entries in the order they are sent; the first 0 ends the list and only 0 follows it.
using Eintragsliste = std::array<std::int16_t, Datenblockregister>;

/// The list in the 30 registers; of a register its lower 16 bits. What stands behind the first 0 is dropped.
Eintragsliste ListeAus(const Werte& datenblock);
/// The 30 registers of a list, each 0..65535.
Werte DatenblockAus(const Eintragsliste& liste);

int AnzahlEintraege(const Eintragsliste& liste);
/// Inserts an entry before the one at `stelle`; a place beyond the last entry appends it. False, and nothing
/// changed, when the list is full.
bool FuegeEin(Eintragsliste& liste, int stelle, std::int16_t eintrag);
/// Removes an entry; those behind it move up. A place outside the 30 changes nothing.
void Loesche(Eintragsliste& liste, int stelle);
/// Whether an entry has bit 15, which no entry word uses.
bool HatUngueltigenEintrag(const Eintragsliste& liste);

/// What the user is told when the list is full.
std::string GrenzeText();

} // namespace varnoth
