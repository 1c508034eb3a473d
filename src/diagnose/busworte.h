#pragma once

#include "busprotokoll.h"

#include <string>

/// Exchanges in words of the current language (UTF-8, each text one line). Nothing in them is the service
/// password, and nothing of what the controller sent takes effect where it is shown.
namespace varnoth {

/// In which direction the values of an exchange go.
std::string Richtungstext(const Busaustausch& austausch);
/// What was asked for; of bytes that nobody was waiting for that.
std::string Funktionstext(const Busaustausch& austausch);
/// The registers by name; empty where it is about none.
std::string Registerangabe(const Busaustausch& austausch);
/// The values in words: those written, or those that came; of an identification what the controller told.
std::string Wertetext(const Busaustausch& austausch);
/// What was sent (→) and what came (←), byte by byte in hexadecimal.
std::string Bytetext(const Busaustausch& austausch);
/// The bytes of one direction alone.
std::string Anforderungsbytes(const Busaustausch& austausch);
std::string Empfangsbytes(const Busaustausch& austausch);
/// "12.3 ms"; empty when nothing came.
std::string Umlauftext(const Busaustausch& austausch);
/// The number alone, in milliseconds.
std::string Umlaufzahl(const Busaustausch& austausch);
std::string Ergebnistext(const Busaustausch& austausch);

/// All of it, line by line, for whoever looks at one exchange.
std::string Einzelheiten(const Busaustausch& austausch, std::chrono::system_clock::time_point zeit);

} // namespace varnoth
