#pragma once

#include "ereignis.h"

#include <string>

/// Events in words of the current language (UTF-8, each text one line).
namespace varnoth {

/// What the kinds of a group are called.
std::string Gruppentext(Ereignisgruppe gruppe);
/// What has happened.
std::string Ereignistext(const Ereignis& ereignis);
/// "12.3 s", "2 min 05 s", "1 h 02 min"; empty for none.
std::string Dauertext(Zeit dauer);
/// How often, and how often a second or minute: "12 (1.5/s)"; empty for what happened once.
std::string Haeufigkeitstext(const Ereignis& ereignis);
/// All of it but the time: "PNP output active [12 (1.5/s), 7.3 s]".
std::string Ereignissatz(const Ereignis& ereignis);

/// What a file of events begins with, as CSV.
std::string Ereigniskopf();
/// An event as a line of CSV, with its end.
std::string EreignisAlsCsv(const Ereignis& ereignis);
/// An event as a line for reading, with its end.
std::string EreignisAlsText(const Ereignis& ereignis);

} // namespace varnoth
