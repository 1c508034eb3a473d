#pragma once

#include "handlung.h"
#include "stoerfaelle.h"

#include <cstdint>
#include <span>
#include <vector>

namespace varnoth::pruefung {

class Zelle;

/// A place where the program talks to the controller: a column of the matrix.
struct Stelle {
    const char* name;
    /// The window whose appearance begins the place; nullptr where `beginne` itself does.
    const char* fenster = nullptr;
    /// Brings the program to where the place begins.
    Handlung (*bereite)(Zelle& zelle);
    /// What the user does to begin.
    void (*beginne)(Zelle& zelle);
    /// Whether that is to be seen which must be seen while every exchange fails.
    bool (*zeigtStoerung)(Zelle& zelle);
    /// Whether that is to be seen which must be seen once some exchanges have failed; nullptr = nothing.
    bool (*zeigtVersuch)(Zelle& zelle) = nullptr;
    /// Whether the place has reached its good end.
    bool (*fertig)(Zelle& zelle);
    /// What the user does to try again where the place does not by itself; nullptr where it does.
    Handlung (*nochmal)(Zelle& zelle) = nullptr;
    /// Leaves the place; nullptr where it leaves by itself. A place that begins with its window is left after
    /// each portion of a fault, any other one at the end.
    Handlung (*verlasse)(Zelle& zelle) = nullptr;
    Belastung belastung;
    /// How long the user waits before he tries again.
    int geduldMs = 0;
    /// The message (text id) that belongs to every exchange failing, 0 = none.
    std::int16_t stoermeldung = 0;
    /// The question that the place always asks, 0 = none.
    std::int16_t frage = 0;
};

std::span<const Stelle> AlleStellen();

} // namespace varnoth::pruefung
