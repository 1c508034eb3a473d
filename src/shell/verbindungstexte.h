#pragma once

#include "verbindungsregel.h"

#include <QDateTime>

#include <string>

namespace varnoth {

/// What is known of the line and the controller at its end.
struct Verbindungsgegenstand {
    std::string port;           ///< "COM1"
    std::string geraet;         ///< the system's name of it; empty for the built-in controller
    std::string format;         ///< "38400,n,8,2"
    std::string bezeichnung{};  ///< what the controller calls itself (UTF-8); empty while it has not said
    std::string seriennummer{}; ///< the same of its serial number
    std::string aufzeichnung{}; ///< path of the record that is replayed (UTF-8)

    bool operator==(const Verbindungsgegenstand&) const = default;
};

/// The state in words. `jetzt` decides whether a time of day is enough.
std::string Zustandstext(const Verbindungsbild& bild, const QDateTime& jetzt);
/// Passes a second and failures a minute, each where it means something; may be empty.
std::string Zahlentext(const Verbindungsbild& bild);
/// All that is known, line by line. Its first line is the program's own words, so that nothing that a
/// controller or a settings file says makes it rich text.
std::string Verbindungshinweis(const Verbindungsbild& bild, const Verbindungsgegenstand& gegenstand,
                               const QDateTime& jetzt);

} // namespace varnoth
