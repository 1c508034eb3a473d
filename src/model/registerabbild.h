#pragma once

#include "boolean.h"
#include "registerbeschreibung.h"
#include "werte.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

/// The image of the controller's registers. Every room reads and changes the device's configuration here, one
/// whole parameter at a time: an address where no parameter starts, or a count other than the parameter's
/// length, is refused. A refused operation gives False and changes nothing.
///
/// In the arrays element i belongs to address `adresse` + i. An array that receives values grows to hold
/// them; elements beyond the parameter stay as they are. An array that is too short to be stored is refused.
namespace varnoth::modDaten {

/// Start of the module's life: no file name, configuration unchanged. The values stay as they are.
void InitRegisterbeschreibung();

/// The module as the program starts with it: every value 0, iterators at the beginning, no file name,
/// configuration unchanged.
void Zuruecksetzen();

Boolean HoleGlobaleDaten(std::int16_t adresse, std::int16_t anzahl, Werte& werte);
/// Storing marks the configuration as changed, here and in the two other ranges.
Boolean SetzeGlobaleDaten(std::int16_t adresse, std::int16_t anzahl, const Werte& werte);

/// `optikteil` is 0..3.
Boolean HoleSpezifischeDaten(std::int16_t adresse, std::int16_t anzahl, std::int16_t optikteil, Werte& werte);
Boolean SetzeSpezifischeDaten(std::int16_t adresse, std::int16_t anzahl, std::int16_t optikteil,
                              const Werte& werte);

Boolean HoleKommunikationsdaten(std::int16_t adresse, std::int16_t anzahl, Werte& werte);
Boolean SetzeKommunikationsdaten(std::int16_t adresse, std::int16_t anzahl, const Werte& werte);

/// The most registers of live beam states that an optical part has.
inline constexpr std::int16_t MaxStrahlregister = 64;

/// The live beam states of an optical part, `anzahl` = 1..64 registers from specific 353 on. They are no part
/// of the configuration: storing them does not mark it as changed.
Boolean HoleStrahlzustaende(std::int16_t anzahl, std::int16_t optikteil, Werte& werte);
Boolean SetzeStrahlzustaende(std::int16_t anzahl, std::int16_t optikteil, const Werte& werte);

/// The beam count of an optical part; 0 for a part that does not exist.
std::int32_t Strahlenzahl(int optikteil);

/// Iterators over the parameters of a range that a whole-configuration read fetches (`Lesbarer`) or a write
/// sends (`Schreibbarer`): first address and length of each, False after the last. Both walk with the same
/// cursor of their range, so a walk of one kind ends where a walk of the other begins.
Boolean ErsterLesbarerEintrag(Speicherbereich bereich, std::int16_t& adresse, std::int16_t& anzahl);
Boolean NaechsterLesbarerEintrag(Speicherbereich bereich, std::int16_t& adresse, std::int16_t& anzahl);
Boolean ErsterSchreibbarerEintrag(Speicherbereich bereich, std::int16_t& adresse, std::int16_t& anzahl);
Boolean NaechsterSchreibbarerEintrag(Speicherbereich bereich, std::int16_t& adresse, std::int16_t& anzahl);

/// `KonfigurationGeaendert`: the configuration was changed and not saved.
void SetzeGeaendert();
void LoescheGeaendert();
Boolean IstGeaendert();

/// `Konfigurationsdateiname`: the file (UTF-8 path) the configuration was last loaded from, empty at start.
void SetDateiname(const std::string& name);
std::string GetDateiname();

/// All values of a range as they lie in memory and in a configuration file: 256, 4 x 512 or 256. In the
/// specific range the optical part varies fastest (see `Stelle`).
std::span<const std::int32_t> Bereich(Speicherbereich bereich);
/// Replaces all values of a range; False for a wrong number of them. Leaves the changed mark alone.
Boolean ErsetzeBereich(Speicherbereich bereich, std::span<const std::int32_t> werte);
/// Sets every value of every range to 0. Leaves the changed mark alone.
void LeereAbbild();

/// Where a register lies in its range: address 0 of parts 0..3, then address 1 of parts 0..3 and so on.
constexpr std::size_t Stelle(Speicherbereich bereich, std::int16_t adresse, int optikteil = 0) {
    return static_cast<std::size_t>(optikteil) +
           static_cast<std::size_t>(Exemplare(bereich)) * static_cast<std::size_t>(adresse);
}

} // namespace varnoth::modDaten
