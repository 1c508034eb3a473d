#pragma once

#include "abbild.h"
#include "konfigurationstransfer.h"
#include "parameterstelle.h"

namespace varnoth {

/// What the controller does with the configuration it has received.
enum class Ablage {
    Fluechtig, ///< it is in force until the controller restarts
    Dauerhaft, ///< the controller is also told to store it
};

/// What is to be written: these parameters of this image.
struct Schreibauftrag {
    Abbild abbild;
    Parametermenge stellen = AlleStellen(IstSchreibbar);
};

/// What has become of a write.
struct Schreibspur {
    Parametermenge geschrieben{}; ///< the controller has confirmed them
    Parametermenge ungewiss{};    ///< sent, and not confirmed till the end
};

/// Writes parameters to the controller, each retried without limit. The image in use and its changed mark
/// stay as they are. What the controller has confirmed is remembered (`modGeraetestand`), what it was only
/// sent is not known any more. False when the user cancelled; the controller then keeps what was written till
/// then, which the track tells.
bool SchreibeKonfiguration(Transferanzeige& anzeige, Ablage ablage, const Schreibauftrag& auftrag,
                           Schreibspur& spur);

/// The same with every writable parameter of the image in use.
bool SchreibeKonfiguration(Transferanzeige& anzeige, Ablage ablage);

/// How many registers these parameters have together.
int AnzahlRegister(const Parametermenge& stellen);

} // namespace varnoth
