#pragma once

#include "ablaufanzeige.h"
#include "werte.h"

#include <string>
#include <string_view>

namespace varnoth {

/// The factory data as typed, one byte (Latin-1) a character.
struct Werksdaten {
    std::string seriennummer{}; ///< at most 20 characters are written
    std::string jahr{};         ///< at most 4
    std::string monat{};        ///< at most 2
    std::string tag{};          ///< at most 2
    std::string hauptversion{}; ///< the number it begins with
    std::string unterversion{}; ///< the number it begins with
};

/// Where the settings keep the factory data that were written last; the texts there are UTF-8.
namespace werksdatenablage {
inline constexpr const char* Abschnitt = "frmInitHardware";
inline constexpr const char* Seriennummer = "Seriennummer";
inline constexpr const char* Hauptversion = "Hauptversion";
inline constexpr const char* Unterversion = "Unterversion";
} // namespace werksdatenablage

/// Two characters a register, the first in the high byte. The text has an even number of characters.
Werte PackeZeichen(std::string_view text);
/// The 10 registers of the serial number, filled up with blanks.
Werte PackeSeriennummer(const Werksdaten& daten);
/// The 4 registers of the date of manufacture: year, year, month, day. Missing characters are blanks.
Werte PackeHerstelldatum(const Werksdaten& daten);
/// The register of the hardware version: main version x 256 + sub version.
Werte PackeHardwareversion(const Werksdaten& daten);

/// Whoever shows the writing of the factory data.
class Initialisierungsanzeige : public Ablaufanzeige {
public:
    /// The step (UTF-8) that begins.
    virtual void ZeigeSchritt(const std::string& text) = 0;
    /// The attempt of the step that begins, from 1.
    virtual void ZeigeVersuch(int versuch) = 0;
};

/// Writes the factory data to the controller, each group after the service password, and has them stored;
/// every write is retried without limit. The settings keep what was written. False when the user cancelled:
/// the controller then has the groups written till then, unstored. False also, with nothing sent, when the
/// service password has not just 16 characters.
bool InitialisiereHardware(Initialisierungsanzeige& anzeige, const Werksdaten& daten);

} // namespace varnoth
