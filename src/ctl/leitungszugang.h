#pragma once

#include "endecode.h"
#include "geduld.h"
#include "identifikation.h"
#include "json.h"

#include <cstdint>
#include <string>

namespace varnoth::ctl {

struct Lauf;

/// The line to the controller for as long as a command needs it.
class Leitungszugang {
public:
    explicit Leitungszugang(const Lauf& derLauf) : lauf(derLauf) {}
    ~Leitungszugang();
    Leitungszugang(const Leitungszugang&) = delete;
    Leitungszugang& operator=(const Leitungszugang&) = delete;

    /// Opens the port that the options or the settings name, and identifies the controller. What stands in
    /// the way is told.
    Ende Verbinde();
    /// Why a procedure has not come to its end, after it was told so.
    Ende EndeNachAbbruch() const;

private:
    Ende Oeffne();
    Ende Scheitere(Ende ende, std::int16_t text) const;

    const Lauf& lauf;
};

/// Names port and line format for this run, as the options say or else the settings. Tells which of them
/// makes no sense.
Ende WaehleAnschluss(const Lauf& lauf);

/// Texts of the controller that answered last, as UTF-8.
std::string Geraetename();
std::string Geraetecopyright();

/// The same in JSON: name, serial number, address and so on.
Json GeraetAlsJson();
/// What another one has said of itself.
Json GeraetAlsJson(const Identifikation& ident);

} // namespace varnoth::ctl
