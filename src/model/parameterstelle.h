#pragma once

#include "registerbeschreibung.h"

#include <compare>
#include <cstdint>
#include <set>
#include <tuple>

namespace varnoth {

/// One parameter of a controller: of an optical part 0..3 in the specific range, where the part is 0 in the
/// others. They are ordered as a person walks through them: global, part after part, communication.
struct Parameterstelle {
    Speicherbereich bereich;
    std::int16_t adresse; ///< of its first register
    int optikteil = 0;

    bool operator==(const Parameterstelle&) const = default;
    auto operator<=>(const Parameterstelle& andere) const {
        return std::tie(bereich, optikteil, adresse) <=>
               std::tie(andere.bereich, andere.optikteil, andere.adresse);
    }
};

using Parametermenge = std::set<Parameterstelle>;

/// All parameters of all optical parts whose description satisfies the condition (`IstLesbar`,
/// `IstSchreibbar`).
template<class Bedingung>
Parametermenge AlleStellen(Bedingung bedingung) {
    Parametermenge stellen;
    for (const Parameter& parameter : AlleParameter())
        if (bedingung(parameter.beschreibung))
            for (int teil = 0; teil < Exemplare(parameter.bereich); ++teil)
                stellen.insert({parameter.bereich, parameter.adresse, teil});
    return stellen;
}

} // namespace varnoth
