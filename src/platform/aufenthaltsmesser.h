#pragma once

#include "umgebung.h"

namespace varnoth {

/// Finds out for how long rounds of events hold up whoever had them run. What runs inside a round and has
/// rounds run itself is not held up by the outer one.
class Aufenthaltsmesser {
public:
    /// A round begins that is to wait for so long at most.
    void Beginnt(Zeit jetzt, Zeit wartezeit);
    void Endet(Zeit jetzt);

    Aufenthalt Stand(Zeit jetzt) const;

private:
    Zeit Ueberzogen(Zeit jetzt) const;

    Zeit gesamt{0};
    Zeit erwartet{
        0}; ///< when the round that runs should have ended, or something inside it has begun or ended
    int tiefe = 0;
};

} // namespace varnoth
