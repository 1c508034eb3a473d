#pragma once

#include "anschluss.h"
#include "umgebung.h"

#include <optional>
#include <string>

namespace varnoth {

/// What keeps the connection from coming about, in words of the current language: built from what the system
/// says of the port and what became of the last exchange.
struct Verbindungsauskunft {
    std::string anschluss;    ///< port, device and line format, one line
    std::string ursache;      ///< the cause, and what helps against it; empty before any exchange
    std::string einzelheiten; ///< all that was looked at, line by line
};

/// Looks at the port and the line now; takes some milliseconds. To be asked after an exchange has failed.
Verbindungsauskunft LiesVerbindungsauskunft();

/// The same where the last exchange has failed; nothing after one that got its reply, and before any.
std::optional<Verbindungsauskunft> AuskunftNachFehlschlag();

/// What stands in the way of a device, in words of the current language; empty where nothing does that the
/// finding tells of. Where the line format is wrong, it is the one in use.
/// @param fehlertext why it could not be opened, as the port says it
std::string Portursache(const std::string& geraet, const Portbefund& befund, const std::string& fehlertext);

/// Says that a settings string is no line format, and what is expected.
std::string KeinLeitungsformat(const std::string& einstellung);

/// A warning with the given text that says why there is no connection.
Meldung MeldungOhneVerbindung(const std::string& text, const std::string& titel);

} // namespace varnoth
