#pragma once

#include "umgebung.h"

#include <deque>

namespace varnoth {

/// How many polling passes a second, over the last two seconds or as many passes as that takes two of.
class Durchgangsrate {
public:
    /// So many passes have come to their end by now. A smaller number than before begins anew.
    void Nimm(Zeit jetzt, unsigned durchgaenge);
    /// Passes a second; 0 while none is known.
    double ProSekunde(Zeit jetzt) const;

private:
    struct Probe {
        Zeit wann;
        unsigned durchgaenge;
    };
    std::deque<Probe> proben;
};

} // namespace varnoth
