#pragma once

#include "messhoerer.h"

#include <random>

namespace varnoth::pruefung {

/// Live data that nobody has measured: passes as polling tells them, with objects that go through four parts
/// of 128 beams, an output that switches, parts and a controller that go and come back. Hours of it take
/// seconds.
class Livefolge {
public:
    explicit Livefolge(unsigned seed);

    /// Tells all listeners of what follows, for so long on the passes' own clock.
    void Erzaehle(Zeit dauer);
    unsigned Durchgaenge() const { return durchgaenge; }
    unsigned Verluste() const { return verluste; }

private:
    Messdurchgang Naechster();
    void Verliere();
    Systemzeit Jetzt() const { return beginn + (uhr - beginnUhr); }
    bool Selten(unsigned einmalIn) { return zufall() % einmalIn == 0; }

    std::mt19937 zufall;
    Zeit beginnUhr;
    Systemzeit beginn;
    Zeit uhr;
    bool aktiv = false;
    int fehlender = -1; ///< part that is gone
    unsigned durchgaenge = 0;
    unsigned verluste = 0;
};

} // namespace varnoth::pruefung
