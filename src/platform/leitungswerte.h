#pragma once

#include "porteinstellungen.h"

namespace varnoth {

/// A line format in the numbers by which Windows knows it.
struct Leitungswerte {
    unsigned long baud = 0;
    unsigned char datenbits = 0;
    unsigned char paritaet = 0;  ///< 0 none, 1 odd, 2 even, 3 mark, 4 space
    unsigned char stoppbits = 0; ///< 0: one, 1: one and a half, 2: two
    bool prueft = false;         ///< the driver checks parity and puts a character in place of a broken byte

    bool operator==(const Leitungswerte&) const = default;
};

Leitungswerte WerteFuer(const Porteinstellungen& einstellungen);

} // namespace varnoth
