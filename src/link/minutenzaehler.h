#pragma once

#include "umgebung.h"

#include <array>

namespace varnoth {

/// Counts how often something has happened within the last minute, to the second.
class Minutenzaehler {
public:
    /// It has happened now. `jetzt` never runs backwards.
    void Zaehle(Zeit jetzt);
    /// How often in the 60 seconds up to now.
    int Anzahl(Zeit jetzt) const;

private:
    static constexpr int Sekunden = 60;

    struct Fach {
        long long sekunde = -Sekunden;
        int anzahl = 0;
    };
    std::array<Fach, Sekunden> faecher{};
};

} // namespace varnoth
