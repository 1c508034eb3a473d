#pragma once

#include "darstellung.h"

#include <cstdint>
#include <optional>
#include <span>

namespace varnoth {

class Einstellungen;

/// What a person has chosen for the looks of the program.
struct Darstellung {
    Erscheinung erscheinung = Erscheinung::System;
    Strahlfarbsatz farbsatz = Strahlfarbsatz::GruenUndRot;

    bool operator==(const Darstellung&) const = default;
};

/// One choice of the menu "Darstellung": what it stands for, its word in the settings, its text and the
/// object name of its entry.
template<class Wert>
struct Darstellungszeile {
    Wert wert;
    const char* wort;
    std::int16_t textId;
    const char* name;
};

std::span<const Darstellungszeile<Erscheinung>> Erscheinungszeilen();
std::span<const Darstellungszeile<Strahlfarbsatz>> Farbsatzzeilen();

/// The looks that a choice means: those of the system are our dark ones where it wants dark windows and Qt
/// does not follow.
Erscheinung Wirksam(Erscheinung gewaehlt, bool systemWillDunkel);

/// What the settings say; a word that is missing or unknown counts as that of a new `Darstellung`.
Darstellung LiesDarstellung(Einstellungen& einstellungen);
/// Stores what differs from what the settings say.
void SchreibDarstellung(Einstellungen& einstellungen, const Darstellung& darstellung);

} // namespace varnoth
