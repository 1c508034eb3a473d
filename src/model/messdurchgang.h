#pragma once

#include "abbild.h"
#include "umgebung.h"

#include <array>
#include <chrono>
#include <cstdint>

namespace varnoth {

/// The measured values of an optical part: TU, HU, ZU, TNU, HNU, ZNU, each current, then minimum, then
/// maximum.
inline constexpr int AnzahlMesswertregister = 18;

/// Time of day, in UTC.
using Systemzeit = std::chrono::system_clock::time_point;

/// What a polling pass has read of one optical part.
struct Teilmessung {
    bool vorhanden = false;    ///< as its status tells
    bool gemessen = false;     ///< whether the pass read beam states and measured values; else those are 0
    std::uint16_t status = 0;  ///< its status register
    std::int16_t strahlen = 0; ///< its beam count, 0..1009
    std::array<std::uint16_t, AnzahlMesswertregister> werte{};
    /// A bit a beam, 1 free, as in strahlbits.h; bits behind the last beam are 0.
    std::array<std::uint16_t, MaxStrahlregister> strahlregister{};

    bool operator==(const Teilmessung&) const = default;
};

/// One pass over the controller, every value of it certain.
struct Messdurchgang {
    Systemzeit zeit{}; ///< when it ended
    Zeit uhr{};        ///< the same on the clock, which never goes back
    int anzahlTeile = 0;
    std::array<Teilmessung, AnzahlOptikteile> teile{};
    std::uint16_t geraetestatus = 0; ///< the controller's status register

    bool operator==(const Messdurchgang&) const = default;
};

/// What has happened to live data.
enum class Liveereignisart : std::uint8_t {
    Begonnen, ///< polling was started
    Beendet,  ///< polling was stopped
    Verloren, ///< the controller no longer answers
    Zurueck,  ///< it answers again
};

struct Liveereignis {
    Liveereignisart art{};
    Systemzeit zeit{};
    Zeit uhr{};

    bool operator==(const Liveereignis&) const = default;
};

} // namespace varnoth
