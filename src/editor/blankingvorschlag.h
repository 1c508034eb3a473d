#pragma once

#include "werte.h"

namespace varnoth {

/// A blanking pattern (32 registers) that is suggested for optical part 0..3.
struct Blankingvorschlag {
    int teil = 0;
    Werte muster{};
};

} // namespace varnoth
