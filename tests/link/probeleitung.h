#pragma once

#include "stoerungen.h"
#include "umgebung.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <string>

namespace varnoth::pruefung {

/// The wire from controller to PC at 38400 baud. Replies follow each other in the order they were sent,
/// unless a reply may overtake. Bytes become readable in lots.
class Probeleitung {
public:
    /// How bytes become readable: every so many of them, or with all others of so long a time.
    struct Uebergabe {
        std::size_t los = 8;
        Zeit takt{0}; ///< 0: no such time
    };

    /// Time that characters take on the wire.
    static Zeit Dauer(std::size_t zeichen);

    void Stelle(Uebergabe neue) { uebergabe = neue; }
    /// Sends a reply from the given time on.
    void Sende(const simulator::Sendung& sendung, Zeit fruehestens, bool darfUeberholtWerden);
    /// Moves what has become readable by now into the input.
    void Uebergib(Zeit jetzt);
    void Verwirf() { eingang.clear(); }
    std::string LiesAlles(Zeit jetzt);
    std::size_t Wartend() const { return eingang.size(); }
    std::optional<Zeit> NaechsteFaelligkeit() const;
    /// Whether nothing is on its way or waiting.
    bool Leer() const { return unterwegs.empty() && eingang.empty(); }
    /// Whether somebody who waits from now on until nothing has come for `ruhe` meets all that is on its way.
    bool IstAbwartbar(Zeit jetzt, Zeit ruhe) const;

private:
    struct Los {
        Zeit faellig;
        std::string zeichen;
    };
    void SendeStueck(const simulator::Bytes& zeichen, Zeit beginn);
    void Lege(Los los);

    Uebergabe uebergabe{};
    std::deque<Los> unterwegs; ///< by time
    std::string eingang;
    Zeit sendeende{0};
    Zeit letzteLesung{0};
};

} // namespace varnoth::pruefung
