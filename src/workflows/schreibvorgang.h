#pragma once

#include "konfigurationstransfer.h"

namespace varnoth {

/// What the controller does with the configuration it has received.
enum class Ablage {
    Fluechtig, ///< it is in force until the controller restarts
    Dauerhaft, ///< the controller is also told to store it
};

/// Writes every writable parameter of the register image to the controller, each retried without limit. The
/// image and its changed mark stay as they are. What a complete write has told the controller is remembered
/// (`modGeraetestand`). False when the user cancelled; the controller then keeps what
/// was written till then.
bool SchreibeKonfiguration(Transferanzeige& anzeige, Ablage ablage);

/// How many registers such a transfer writes, those of all optical parts together.
int AnzahlSchreibbarerRegister();

} // namespace varnoth
