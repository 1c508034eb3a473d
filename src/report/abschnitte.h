#pragma once

#include "registerbeschreibung.h"

#include <cstdint>
#include <span>
#include <string>

namespace varnoth {

/// A range as a person counts them: the specific one once for each optical part.
struct Abschnitt {
    Speicherbereich bereich;
    int optikteil; ///< 0..3 in the specific range, 0 in the others
};

/// Global, optical parts 1 to 4, communication.
std::span<const Abschnitt> AlleAbschnitte();

/// "Global", "Optikteil 2", "Kommunikation", in the given language (UTF-8).
std::string Abschnittsname(const Abschnitt& abschnitt, std::int16_t sprache);

/// Whether the parameter tells what is measured or reported at the moment: it is no part of what a
/// configuration says of itself.
bool IstMomentan(const Parameter& parameter);

/// Whether the register is one of those of a parameter.
bool GehoertZuParameter(Speicherbereich bereich, std::int16_t adresse);

} // namespace varnoth
