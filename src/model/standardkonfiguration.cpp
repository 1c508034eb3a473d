#include "standardkonfiguration.h"

#include "registerabbild.h"

namespace varnoth {

Abbild Standardkonfiguration() {
    Abbild abbild;
    for (const auto& standard : AlleStandardwerte())
        for (int teil = 0; teil < Exemplare(standard.bereich); ++teil)
            abbild.Bereich(standard.bereich)[Stelle(standard.bereich, standard.adresse, teil)] =
                standard.wert;
    return abbild;
}

void modDaten::LadeStandardkonfiguration() {
    ErsetzeAbbild(Standardkonfiguration());
}

} // namespace varnoth
