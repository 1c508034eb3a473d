#pragma once

#include "anschlussstand.h"
#include "portangabe.h"

#include <string>
#include <vector>

namespace varnoth {

/// A port in words of the current language.
struct Portzeile {
    std::string geraet;
    std::string was;        ///< what it is: product and serial number
    std::string zustand;    ///< free, in use, no right, ...
    std::string com;        ///< which of COM1 to COM4 mean it
    std::string abhilfe;    ///< what stands in the way and what helps; empty where nothing does
    std::string tipp;       ///< all of its names
    bool benutzbar = false; ///< nothing stands in the way, or only this program itself

    bool operator==(const Portzeile&) const = default;
};

/// The row of a port.
Portzeile Zeile(const Portangabe& port, const Anschlussstand& stand);

/// The port that is in use in this run; nullptr where it is not among them.
const Portangabe* BenutzterPort(const std::vector<Portangabe>& ports, const Anschlussstand& stand);

/// Which COM numbers mean a port, 1 to 4.
std::vector<int> ComZu(const Portangabe& port, const Anschlussstand& stand);

/// The name of a port that is best kept: one that stays the same over plugging, where there is one.
std::string BesterName(const Portangabe& port);

/// Every name by which the ports can be had, the best of each first.
std::vector<std::string> AlleNamen(const std::vector<Portangabe>& ports);

/// The ports and, behind them, the devices that the settings name, that are there and that the system does
/// not list.
std::vector<Portangabe> MitEingetragenen(std::vector<Portangabe> ports, const Anschlussstand& stand);

/// What a name leads to that a COM number is given, in words: its state and what it is. `befund` counts
/// where no port has that name.
std::string Comtext(const std::string& name, const Portbefund& befund, const std::vector<Portangabe>& ports,
                    const Anschlussstand& stand);

} // namespace varnoth
