#pragma once

#include "anschlussstand.h"
#include "portangabe.h"

#include <string>
#include <vector>

namespace varnoth {

/// What the connection window asks of the program around it. The search and the line check need the line:
/// they begin once the program comes to them, and report to the window.
class Verbindungsanbieter {
public:
    Verbindungsanbieter() = default;
    Verbindungsanbieter(const Verbindungsanbieter&) = delete;
    Verbindungsanbieter& operator=(const Verbindungsanbieter&) = delete;
    virtual ~Verbindungsanbieter() = default;

    /// The serial ports as they are now. Asked twice a second.
    virtual std::vector<Portangabe> Ports() = 0;
    /// What is in force now.
    virtual Anschlussstand Stand() = 0;
    /// What stands in the way of a device, by its path and rights.
    virtual Portbefund Befund(const std::string& geraet) = 0;
    /// Puts a choice in force and stores it; where it is to, it then connects. `frmVerbindung::Uebernommen`
    /// tells when it is in force.
    virtual void Uebernimm(const Anschlusswahl& wahl, bool verbinde) = 0;
    /// Searches these devices for the controller.
    virtual void Suche(const std::vector<std::string>& geraete) = 0;
    /// Checks the line in use.
    virtual void PruefeLeitung() = 0;
    /// Ends the search or the line check, whichever is under way or asked for.
    virtual void BrichAb() = 0;
    /// Has the adapter of a port hand over at once what it receives. Why it could not, in words; empty where
    /// it could.
    virtual std::string StelleVerzoegerung(const Portangabe& port) = 0;
};

} // namespace varnoth
