#pragma once

#include <span>
#include <string>
#include <vector>

namespace varnoth::pruefung {

/// What a fault does to the exchanges of a place.
enum class Wirkung {
    Keine,          ///< they succeed all the same
    Anhaltend,      ///< they fail until the fault ends
    Voruebergehend, ///< some fail, then the fault ends by itself
    Reihum,         ///< single ones fail, in many portions
};

/// What a place can bear and how long its replies are.
struct Belastung {
    const char* nur = "";     ///< the function that faults are limited to, such as "@17"; empty = every one
    int lesen = 0;            ///< bytes of its longest reply to a read request, 0 = there is none
    int schreiben = 0;        ///< of its reply to a write request
    int kennung = 0;          ///< of the identification
    int amStueck = 1;         ///< failing replies that it bears in one go
    bool abwechselnd = false; ///< faults in one go reach one exchange after another instead of the same again
    bool vonVorn = false;     ///< must be prepared anew for each portion
    int austausche = 1;       ///< how many exchanges, from its first on, get a fault of their own in turn
};

using Befehle = std::vector<std::string>;

/// A way for the line to go wrong: a row of the matrix.
struct Stoerfall {
    const char* name;
    Wirkung wirkung;
    Befehle beginn; ///< commands for the simulated controller
    Befehle ende;
    std::vector<Befehle> (*portionen)(const Belastung&) =
        nullptr; ///< instead of `beginn` for Wirkung::Reihum
};

std::span<const Stoerfall> AlleStoerfaelle();

} // namespace varnoth::pruefung
