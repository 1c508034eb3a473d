#pragma once

#include <chrono>
#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include <termios.h>

namespace varnoth::pruefung {

/// What this process asks the system to do with one line: the calls are recorded on their way, also those
/// that Qt makes. A pseudo terminal takes bytes at once and cannot show that a frame was cut off; the order
/// of the calls and the time between them can.
class Leitungsmitschrift {
public:
    enum class Aufruf { Schreiben, Leeren, Einstellen, Schliessen };

    struct Eintrag {
        Aufruf aufruf;
        std::size_t bytes; ///< written by the system
        std::chrono::steady_clock::time_point beginn;
        std::chrono::steady_clock::time_point ende;
    };

    /// Records from now on what happens to the line behind this path. One at a time.
    explicit Leitungsmitschrift(const std::string& pfad);
    ~Leitungsmitschrift();
    Leitungsmitschrift(const Leitungsmitschrift&) = delete;
    Leitungsmitschrift& operator=(const Leitungsmitschrift&) = delete;

    std::vector<Eintrag> Eintraege() const;
    /// What the line was set to last; zeros where it was not.
    termios Einstellung() const;
    /// The modem lines (TIOCM_...) that were switched on and not off again.
    int Modemleitungen() const;
};

std::ostream& operator<<(std::ostream& ziel, const Leitungsmitschrift::Eintrag& eintrag);

} // namespace varnoth::pruefung
