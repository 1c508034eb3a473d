#pragma once

#include "umgebung.h"

namespace varnoth {

/// A time on the clock that comes so long after its beginning; while the window holds the program up, it does
/// not come nearer.
class Frist {
public:
    explicit Frist(Zeit dauer)
        : ende(DieUmgebung().Uhr() + dauer), davor(DieUmgebung().GetAufenthalt().gesamt) {}

    Zeit Ende() const { return ende + (DieUmgebung().GetAufenthalt().gesamt - davor); }

private:
    Zeit ende;
    Zeit davor;
};

} // namespace varnoth
