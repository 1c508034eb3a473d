#pragma once

#include "geraetestand.h"
#include "ruecklesung.h"
#include "schreibvorgang.h"

#include <optional>
#include <string>
#include <vector>

namespace varnoth {

/// A parameter in words (UTF-8, one line each).
struct Registerzeile {
    Parameterstelle stelle;
    std::string bereich; ///< global, which optical part, communication
    std::string name;    ///< of the parameter
    std::string links;   ///< value or state in the third column
    std::string rechts;  ///< in the fourth
    std::string ort;     ///< where it lies: "2000H + 14"

    bool operator==(const Registerzeile&) const = default;
};

/// A finding about parameters, in the current language.
struct Registerbefund {
    std::string titel;
    std::string text;   ///< what is found, in sentences
    std::string links;  ///< heading of the third column
    std::string rechts; ///< of the fourth
    std::vector<Registerzeile> zeilen{};
    std::string weiter{}; ///< caption of what can be done about it; empty: nothing
};

/// What a write will change in the controller, against what is known of it; `wann` is the time of that in
/// words. Where nothing or not all is known, something was only written and not read back, or it is older
/// than this connection, the text says so.
Registerbefund BefundVorDemSchreiben(const Schreibauftrag& auftrag, const std::optional<Geraetestand>& stand,
                                     const std::string& wann);

/// What reading back has found: the rows that are others than meant, and those that were not compared.
Registerbefund BefundDerPruefung(const Schreibauftrag& auftrag, const Pruefergebnis& ergebnis,
                                 const Ruecklesung& ruecklesung);

/// Which parameters a write that did not reach its end has written, and which not.
/// @param zurueckschreibbar whether what the controller held before can be written back
Registerbefund BefundDesAbbruchs(const Schreibauftrag& auftrag, const Schreibspur& spur,
                                 bool zurueckschreibbar);

/// "191 of 191 read back equal."
std::string Pruefsatz(const Pruefergebnis& ergebnis);

} // namespace varnoth
