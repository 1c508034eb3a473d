#pragma once

#include "aufbau.h"

#include <deque>
#include <optional>

namespace varnoth::simulator {

/// The wire and the two UARTs at its ends: what leaves the controller becomes readable at the other end in
/// lots, each when its last byte has arrived. Times are absolute, so that a late caller does not push the
/// rest back.
class Leitung {
public:
    explicit Leitung(const Aufbau& aufbau);

    /// Time that so many characters take on the wire.
    std::chrono::nanoseconds Dauer(std::size_t zeichen) const;
    /// Sends a reply from the given time on, or as soon as what was sent before has left.
    void Sende(const Sendung& sendung, std::chrono::nanoseconds fruehestens);
    /// Whether all that was sent has left by the given time.
    bool IstFrei(Zeit jetzt) const { return sendeende <= jetzt; }
    /// When the next bytes become readable; nothing while the wire is quiet.
    std::optional<Zeit> NaechsteFaelligkeit() const;
    /// Takes the bytes that are readable by now.
    Bytes Entnimm(Zeit jetzt);
    /// Loses all that is on its way.
    void Verwirf();

private:
    struct Los {
        Zeit faellig;
        Bytes zeichen;
    };
    void SendeStueck(const Bytes& zeichen);

    int baud;
    std::size_t los;
    bool getaktet;
    std::chrono::nanoseconds sendeende{std::chrono::nanoseconds::min()};
    std::deque<Los> unterwegs;
};

} // namespace varnoth::simulator
