#pragma once

#include "gewissheit.h"
#include "zuordnung.h"

/// For the files of modAustausch alone; everybody else asks through austausch.h.
namespace varnoth::modAustausch {

/// What the exchanges have told of the line so far.
struct Austauschstand {
    Zuordnung zuordnung{};
    Gewissheit gewissheit{};
    bool unruhig = false; ///< the line did not become quiet before the last request
};

Austauschstand& DerStand();

} // namespace varnoth::modAustausch
