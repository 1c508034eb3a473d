#pragma once

#include "abbild.h"
#include "boolean.h"

#include <cstdint>
#include <span>
#include <string>

/// The image in use: the configuration that the program reads, shows, changes and writes, one for the whole
/// run. Every room reads and changes it here, one whole parameter at a time (see `Abbild`).
namespace varnoth::modDaten {

/// Start of the module's life: no file name, configuration unchanged. The values stay as they are.
void InitRegisterbeschreibung();

/// All values, to look at or to copy.
[[nodiscard]] const Abbild& DasAbbild();
/// Replaces all values. Leaves the changed mark alone.
void ErsetzeAbbild(const Abbild& neues);
/// All values of a range, as `Abbild::Bereich` gives them.
std::span<const std::int32_t> Bereich(Speicherbereich bereich);
/// Replaces all values of a range; False for a wrong number of them. Leaves the changed mark alone.
Boolean ErsetzeBereich(Speicherbereich bereich, std::span<const std::int32_t> werte);
/// Sets every value of every range to 0. Leaves the changed mark alone.
void LeereAbbild();

/// As the operations of `Abbild`. Storing a parameter marks the configuration as changed.
[[nodiscard]] Werte HoleParameter(Speicherbereich bereich, std::int16_t adresse, int optikteil = 0);
[[nodiscard]] bool SetzeParameter(Speicherbereich bereich, std::int16_t adresse, const Werte& werte,
                                  int optikteil = 0);
[[nodiscard]] std::int32_t HoleRegister(Speicherbereich bereich, std::int16_t adresse, int optikteil = 0);
[[nodiscard]] bool SetzeRegister(Speicherbereich bereich, std::int16_t adresse, std::int32_t wert,
                                 int optikteil = 0);

/// The same for those who name range and count themselves. A count other than the parameter's length is
/// refused. An array that receives values grows to hold them; elements beyond the parameter stay as they are.
Boolean HoleGlobaleDaten(std::int16_t adresse, std::int16_t anzahl, Werte& werte);
Boolean SetzeGlobaleDaten(std::int16_t adresse, std::int16_t anzahl, const Werte& werte);
Boolean HoleSpezifischeDaten(std::int16_t adresse, std::int16_t anzahl, std::int16_t optikteil, Werte& werte);
Boolean SetzeSpezifischeDaten(std::int16_t adresse, std::int16_t anzahl, std::int16_t optikteil,
                              const Werte& werte);
Boolean HoleKommunikationsdaten(std::int16_t adresse, std::int16_t anzahl, Werte& werte);
Boolean SetzeKommunikationsdaten(std::int16_t adresse, std::int16_t anzahl, const Werte& werte);

/// The live beam states of an optical part, as in `Abbild`. They are no part of the configuration: storing
/// them does not mark it as changed.
Boolean HoleStrahlzustaende(std::int16_t anzahl, std::int16_t optikteil, Werte& werte);
Boolean SetzeStrahlzustaende(std::int16_t anzahl, std::int16_t optikteil, const Werte& werte);

/// The beam count of an optical part; 0 for a part that does not exist.
[[nodiscard]] std::int32_t Strahlenzahl(int optikteil);

/// Iterators over the parameters of a range that a whole-configuration read fetches (`Lesbarer`) or a write
/// sends (`Schreibbarer`): first address and length of each, False after the last. Both walk with the same
/// cursor of their range, so a walk of one kind ends where a walk of the other begins; a walk of its own is
/// `ParameterMit`.
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

} // namespace varnoth::modDaten
