#pragma once

#include "abbild.h"
#include "konfigurationstransfer.h"
#include "parameterstelle.h"

#include <cstdint>

namespace varnoth {

/// Reads every readable parameter of the controller into the register image, each retried without limit. A
/// beam count above 512 becomes 0: that part counts as not connected. False when the user cancelled; the
/// image then keeps what was read till then. What a complete read has found is remembered
/// (`modGeraetestand`).
bool LiesKonfiguration(Transferanzeige& anzeige);

/// What was read of a controller without touching the image in use.
struct Geraeteabzug {
    Abbild abbild{};
    Parametermenge ungelesen = AlleStellen(IstLesbar); ///< readable parameters that were not read
};

/// The same into an image of its own. False when the user cancelled; the rest then stays in `ungelesen`.
bool LiesGeraeteabzug(Transferanzeige& anzeige, Geraeteabzug& abzug);

/// Whether autosend can be started, by communication register 74 (its low 7 bits are 1 or 3).
bool AutosendWaehlbar(std::int32_t register74);

} // namespace varnoth
