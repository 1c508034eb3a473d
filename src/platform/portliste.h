#pragma once

#include "portangabe.h"

#include <string>
#include <vector>

namespace varnoth {

/// Where the system keeps what it tells of its devices.
struct Portwurzeln {
    std::string dev = "/dev";
    std::string sys = "/sys";
    std::string proc = "/proc";
    std::string ordner{}; ///< a further folder whose terminals count as ports; empty: none
};

/// The folders of this machine. The further folder is what the environment names in VARNOTH_PORTS.
Portwurzeln WurzelnDesRechners();

/// The serial ports of the machine in natural order (ttyUSB2 before ttyUSB10), each with what stands in its
/// way, as far as that can be told without opening it. Ports of the board without a UART behind them are left
/// out. Of the processes that have a port open only those are named that have locked it, as this program
/// does: ErgaenzeProzesse adds the others. Empty where there is no port. Takes about a tenth of a
/// millisecond for each port.
std::vector<Portangabe> LiesPortliste(const Portwurzeln& wurzeln = WurzelnDesRechners());

/// Whether a path leads to a terminal of the system, which a serial port is, or nowhere yet; not to a file, a
/// folder or another device. It is not opened for that.
bool KannPortSein(const std::string& pfad, const Portwurzeln& wurzeln = WurzelnDesRechners());

/// Adds to each port the other processes that have it open, as far as this user may know. Looks through all
/// processes once, which takes some milliseconds.
void ErgaenzeProzesse(std::vector<Portangabe>& ports, const Portwurzeln& wurzeln = WurzelnDesRechners());

/// Keeps the list of ports up to date for somebody who asks often, such as every 500 ms: processes are looked
/// for when the list has changed, and otherwise at every fourth question.
class Portbeobachter {
public:
    explicit Portbeobachter(Portwurzeln neue = WurzelnDesRechners());

    /// Looks now. True when anything differs from the last look; the first look always does.
    bool Schaue();
    const std::vector<Portangabe>& Ports() const { return ports; }

private:
    Portwurzeln wurzeln;
    std::vector<Portangabe> ports;
    std::vector<Portangabe> ohneProzesse;
    int seitProzessen = -1; ///< looks since processes were looked for; -1: never
};

} // namespace varnoth
