#pragma once

#include "befehlstabelle.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace varnoth {

class Einstellungen;

/// The commands that stand in the tool bar, by group and within a group as the table has them.
std::vector<const Befehlszeile*> Leistenfolge(std::span<const Befehlszeile> befehle);

/// The groups whose buttons go without texts where the bar has not enough room, in this order.
std::span<const Leistengruppe> Textverzicht();

/// A button's tool tip: what it does and, where it has keys, those in brackets. A menu text's dots and mark
/// of a letter do not belong to it.
std::string Leistentipp(std::string was, const std::string& tasten);

/// Where the keys lead inside the bar: the next button from `von` that can be chosen, in steps of +1 or -1,
/// round the end. From outside, `von` is -1 for the first and the number of buttons for the last one.
/// @return nothing when none can be chosen
std::optional<std::size_t> NaechsterKnopf(const std::vector<bool>& waehlbar, std::ptrdiff_t von, int schritt);

/// A side of the main window.
enum class Fensterseite { Oben, Unten, Links, Rechts };

/// Where the tool bar stands, and whether it is there.
struct Leistenplatz {
    bool sichtbar = true;
    Fensterseite seite = Fensterseite::Oben;

    bool operator==(const Leistenplatz&) const = default;
};

/// What the settings say; what is missing there or is no such word is as in a new `Leistenplatz`.
Leistenplatz LiesLeistenplatz(Einstellungen& einstellungen);
/// Stores what differs from what the settings say.
void SchreibLeistenplatz(Einstellungen& einstellungen, const Leistenplatz& platz);

} // namespace varnoth
