#pragma once

#include <string>
#include <vector>

namespace varnoth {

/// What a port number leads to.
struct Anschluss {
    std::string geraet{};   ///< the system's name of the device (UTF-8); empty where there is none
    bool simuliert = false; ///< the built-in controller answers
};

/// A port by its number and by its device, "COM1, /dev/ttyS0"; once where the system calls the device so too.
inline std::string Portname(const std::string& nummer, const std::string& geraet) {
    return geraet == nummer ? nummer : nummer + ", " + geraet;
}

/// What stands in the way of a port, as far as the system tells.
enum class Hindernis {
    Keines,
    Einstellung,  ///< the settings string is no line format
    Fehlt,        ///< there is no such device
    KeinRecht,    ///< this user may not open it
    Belegt,       ///< another process has it open
    Systemfehler, ///< something else; the port's error text tells
};

struct Portbefund {
    Hindernis hindernis = Hindernis::Keines;
    std::string eigentuemer{};            ///< of the device
    std::string gruppe{};                 ///< members of this group may open it; empty where no group may
    bool gruppeErstNachAnmeldung = false; ///< the user is a member by now, but was not when he logged in
    std::string nutzer{};                 ///< who runs the program
    std::vector<std::string> prozesse{};  ///< who has it open: "name (number)"
    bool benutzungUnbekannt = false;      ///< the system does not tell whether anybody has it open

    bool operator==(const Portbefund&) const = default;
};

} // namespace varnoth
