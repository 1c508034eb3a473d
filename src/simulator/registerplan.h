#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace varnoth::simulator {

/// The controller's three register ranges.
enum class Bereich { Global, Spezifisch, Kommunikation };

/// Registers the controller itself acts on.
namespace reg {
inline constexpr int Geraetetyp = 0, Seriennummer = 9, Herstelldatum = 20, Hardwareversion = 24,
                     Softwareversion = 25;
inline constexpr int Passwort = 178, Passwortregister = 8, Kommando = 189, Schaltausgang = 193,
                     Geraetestatus = 196;
inline constexpr int Optikteilauswahl = 212, Kanalauswahl = 213;
inline constexpr int Strahlenzahl = 12, Aufloesung = 13, Reichweite = 14, Filter = 19, Gruppenzaehler = 24;
inline constexpr int Haltezeit = 25, Lochgroesse = 26, Mittentoleranz = 27, Teilstatus = 44;
inline constexpr int Blanking = 52, Blankingregister = 32;
inline constexpr int Messwerte = 335, Messwertregister = 18, Strahlen = 353, Strahlenregister = 64;
inline constexpr int Bustyp = 0, Leitungsformat = 2, Stationsadresse = 4, Pausenzeit = 8, Autosend = 74;
inline constexpr int Datenblock = 75, Datenblockregister = 30, Autosendformat = 126, Steuerwert = 132;
} // namespace reg

/// A register within its range.
struct Ort {
    Bereich bereich;
    int adresse;
};

/// Where a block of registers asked for on the line lies; nothing when it does not lie wholly within one
/// range.
std::optional<Ort> FindeOrt(int geraeteadresse, int anzahl);

/// Number of registers in a range.
int Groesse(Bereich bereich);

/// "global", "specific" or "communication".
std::string Name(Bereich bereich);

/// A block as the log names it: "global 193", "specific[1] 52..83".
std::string Name(Ort ort, int teil, int anzahl);

/// What a writable register is for.
enum class Art {
    Konfiguration, ///< kept by the command to store the configuration
    Werksdaten,    ///< needs the password, kept by the command to store the factory data
    Steuerung,     ///< acts at once and is not kept
};

struct Eintrag {
    Bereich bereich;
    int adresse;
    int anzahl;
    Art art;
    bool (*gilt)(std::uint16_t wert) = nullptr; ///< which values are taken; nullptr = all
};

/// All that can be written, in order of range and address.
std::span<const Eintrag> Schreibbare();

/// The entry a register belongs to, nullptr when it can only be read.
const Eintrag* FindeSchreibbar(Ort ort);

/// Whether a register shows the scene, so that its value holds only for a moment.
bool IstLebend(Ort ort);

} // namespace varnoth::simulator
