#pragma once

#include "ptyserver.h"
#include "simulator.h"
#include "simulatoroptionen.h"
#include "steuerkanal.h"

#include <signal.h>

namespace varnoth::simulator {

/// The program's work: serves terminal and control channel until a signal asks it to end. Between events it
/// sleeps.
class Ablauf {
public:
    /// Opens all that the options name, and blocks the signals that end the program but for its sleep.
    /// @throws std::invalid_argument or std::runtime_error with a sentence for the user
    explicit Ablauf(const Optionen& optionen);

    /// The path of the terminal that is served.
    const std::string& Geraet() const { return pty.Geraet(); }
    /// Runs until the program is asked to end.
    void Laufe();

private:
    Zeit Jetzt() const;
    void Schlafe(std::vector<pollfd>& liste);
    void LiesAnfragen(const std::vector<pollfd>& liste);
    void SendeFaelliges();
    bool WirdVerstanden() const;
    std::string FuehreAus(std::string_view zeile);
    Aufbau MitProtokoll(const Optionen& optionen);

    std::chrono::steady_clock::time_point anfang = std::chrono::steady_clock::now();
    sigset_t schlafmaske{};
    Dateideskriptor protokoll;
    Simulator simulator;
    std::optional<Zeichenformat> format;
    bool echo;
    Ptyserver pty;
    Steuerkanal kanal;
    Zeit weckdauer{0};
};

} // namespace varnoth::simulator
