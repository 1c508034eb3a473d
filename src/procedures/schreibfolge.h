#pragma once

#include "registerbefund.h"

#include <optional>
#include <string>

namespace varnoth {

/// What a run of the write dialog has led to.
struct Schreibergebnis {
    Schreibauftrag auftrag{};
    bool vollstaendig = false; ///< the write, with storing where that was chosen, has reached its end
    Schreibspur spur{};
    std::optional<Pruefergebnis> pruefung{}; ///< where checking was chosen and begun
    Ruecklesung ruecklesung{};
};

/// What a write that has reached its end has done, in a line; `wann` is the time of it in words.
std::string Schreibsatz(const Schreibergebnis& ergebnis, bool dauerhaft, const std::string& wann);

/// What is to be told after a write, and what could be written next.
struct Schreibfolge {
    Registerbefund befund;
    Schreibauftrag naechster{};
};

/// What follows from a write: nothing where it did what it was meant to, or sent nothing. After one that was
/// broken off, what is written and what not, and writing back what the controller is known to have held
/// before; after a check that found anything but equality, its rows, and writing just those again.
std::optional<Schreibfolge> FolgeAus(const Schreibergebnis& ergebnis,
                                     const std::optional<Geraetestand>& vorher);

} // namespace varnoth
