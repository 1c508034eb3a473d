#pragma once

#include "geraetestand.h"
#include "vergleichsseite.h"

#include <chrono>
#include <string>

namespace varnoth {

/// Whether there is something to compare with: the controller, for example, was never read in this run. Of
/// sources that ask further: false.
bool IstBekannt(Vergleichsquelle quelle);

/// A side as the program knows it now. For sources that do not ask further; a side of zeros where nothing is
/// known.
Vergleichsseite SeiteJetzt(Vergleichsquelle quelle);

/// A moment in local time: "2026-11-22 14:03:22".
std::string Zeitpunkt(std::chrono::system_clock::time_point zeit);

/// "Read 2026-11-22 14:03:22, serial number 4711".
std::string Lesezeile(std::chrono::system_clock::time_point zeit, const std::string& seriennummer);

/// The line of a read, and what has become of it since: written, not read back; older than this connection.
std::string Standzeile(const Geraetestand& stand);

} // namespace varnoth
