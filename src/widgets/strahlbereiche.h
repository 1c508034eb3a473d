#pragma once

#include "strahlgeometrie.h"

#include <span>
#include <string>
#include <vector>

namespace varnoth {

/// Beams that lie side by side, by their numbers from 1, both ends included.
struct Strahlbereich {
    int von = 0;
    int bis = 0;

    bool operator==(const Strahlbereich&) const = default;
};

/// The beams of which something lies in a zoom window; 0 to 0 where there is none.
Strahlbereich SichtbareStrahlen(const Ausschnitt& ausschnitt, int strahlen);

/// Each run of beams in a state, from the lowest on.
std::vector<Strahlbereich> Bereiche(std::span<const Strahlzustand> zustaende, Strahlzustand zustand);

/// "3, 7–12"; empty without any.
std::string Bereichstext(std::span<const Strahlbereich> bereiche);

} // namespace varnoth
