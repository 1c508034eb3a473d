#pragma once

#include "messquelle.h"

namespace varnoth {

/// How long a packet is at most, from its first pass or event to its last but one.
inline constexpr Zeit Paketlaenge = std::chrono::milliseconds(750);

/// Gathers passes and events until they are worth a packet. The clock of all that it takes is the time since
/// the beginning of its source, which never goes back; of what comes with an earlier time it is put forward.
class Paketsammler {
public:
    /// Takes a pass. Its time of day is kept to the microsecond.
    void Nimm(const Messdurchgang& durchgang);
    /// Takes an event; a note may be of an earlier time than the packet, all others are not.
    void Nimm(Messereignis ereignis);

    bool IstLeer() const { return paket.durchgaenge.empty() && paket.ereignisse.empty(); }
    /// Whether the packet is to end before more is taken.
    bool IstVoll() const;
    /// What was gathered since the last packet.
    const Messpaket& Stand() const { return paket; }
    /// Gives the packet away and begins the next.
    Messpaket Entnimm();

private:
    Zeit Reihe(Zeit laufzeit);

    Messpaket paket;
    Zeit letzte{}; ///< of all that was taken so far
};

} // namespace varnoth
