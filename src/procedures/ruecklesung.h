#pragma once

#include "abbild.h"
#include "konfigurationstransfer.h"
#include "parameterstelle.h"

namespace varnoth {

/// What was read back after a write.
struct Ruecklesung {
    Abbild abbild{};
    Parametermenge gelesen{};
};

/// Reads parameters again, into an image of its own, each retried without limit. What was read is remembered
/// as what the controller holds (`modGeraetestand`). False when the user cancelled: what was read till then
/// is there all the same.
bool LiesZurueck(Transferanzeige& anzeige, const Parametermenge& stellen, Ruecklesung& ruecklesung);

/// What a write is worth: what was meant beside what was read back.
struct Pruefergebnis {
    int gleicheRegister = 0;
    int alleRegister = 0;
    Parametermenge abweichend{};      ///< at least one register is another
    Parametermenge nichtVerglichen{}; ///< not read back

    bool IstGut() const { return gleicheRegister == alleRegister; }
};

/// Compares what was meant for these parameters, of each register the 16 bits that travel, with what was
/// read.
Pruefergebnis PruefeRuecklesung(const Abbild& gemeint, const Parametermenge& stellen,
                                const Ruecklesung& ruecklesung);

} // namespace varnoth
