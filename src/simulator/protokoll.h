#pragma once

#include "aufbau.h"

#include <array>
#include <concepts>

namespace varnoth::simulator {

/// The log: a line for each request and what became of it. A line is put together only when somebody reads
/// it.
class Protokoll {
public:
    explicit Protokoll(std::function<void(std::string_view)> leser)
        : ziel(std::move(leser)), an(ziel != nullptr) {}

    void Stelle(bool ein) { an = ein && ziel; }
    void SetzeZeit(Zeit zeit) { jetzt = zeit; }

    /// Writes the text that `schreibe` gives, after the time in seconds.
    void Zeile(std::invocable auto&& schreibe) {
        if (an)
            Gib(schreibe());
    }

private:
    void Gib(const std::string& text);

    std::function<void(std::string_view)> ziel;
    bool an;
    Zeit jetzt{0};
};

/// What has come in since the start.
struct Zaehlwerk {
    std::array<unsigned, 256> anfragen{}; ///< whole requests to this controller, by function
    unsigned fremde = 0;                  ///< whole requests to other stations
    unsigned gebrochene = 0;              ///< frames dropped for their checksum or a gap
    unsigned abgelehnte = 0;              ///< requests answered with an exception
};

} // namespace varnoth::simulator
