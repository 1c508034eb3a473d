#pragma once

#include "aufbau.h"

#include <span>
#include <string>

namespace varnoth::simulator {

/// What the program's command line says.
struct Optionen {
    Aufbau aufbau{};
    std::string wiedergabe{};   ///< path of the record to replay, empty = none
    std::string verknuepfung{}; ///< path of the symbolic link to the terminal, empty = none
    std::string protokoll{};    ///< path of the log, "-" = standard output, empty = none
    std::string steuerkanal{};  ///< path of the control socket, empty = none
    bool echo = false;          ///< the adapter hears what it sends
    bool endetMitEltern = false;
    bool hilfe = false;
    bool version = false;
};

/// Reads the words after the program's name.
/// @throws std::invalid_argument with a sentence for the user
Optionen LiesOptionen(std::span<const char* const> worte);

/// The text of --help.
std::string Hilfetext();

} // namespace varnoth::simulator
