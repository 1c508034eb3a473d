#pragma once

#include "buehne.h"

#include <span>

namespace varnoth::hilfebilder {

/// A picture of the help.
struct Motiv {
    const char* name; ///< of its file, without ending
    QImage (*nimmAuf)(Buehne& buehne);
};

/// All pictures, in the order in which they are taken on one stage: first with live data, then without.
std::span<const Motiv> AlleMotive();

} // namespace varnoth::hilfebilder
