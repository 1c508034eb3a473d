#pragma once

#include <chrono>
#include <string>

namespace varnoth {

/// What the program around it knows for the file that goes to support.
struct Supportangaben {
    std::string umfeld{};        ///< versions of program, libraries and system, a line each
    std::string verbindung{};    ///< port, device, line format and what stands in its way
    std::string einstellungen{}; ///< the settings file as it is
};

/// What stands before the log in the file for support (UTF-8): versions, connection, controller, counts of
/// the exchanges, events, and the settings without what is confidential. The service password is not in it.
std::string Supportkopf(const Supportangaben& angaben, std::chrono::system_clock::time_point jetzt);

/// The settings without the values that nobody else should read, and without what is no text.
std::string UnbedenklicheEinstellungen(const std::string& ini);

} // namespace varnoth
