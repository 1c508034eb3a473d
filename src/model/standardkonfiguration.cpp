#include "standardkonfiguration.h"

#include "parameterstelle.h"
#include "registerabbild.h"

#include <tuple>

namespace varnoth {

Abbild Standardkonfiguration() {
    Abbild abbild;
    for (const auto& standard : AlleStandardwerte())
        for (int teil = 0; teil < Exemplare(standard.bereich); ++teil)
            abbild.Bereich(standard.bereich)[Stelle(standard.bereich, standard.adresse, teil)] =
                standard.wert;
    return abbild;
}

Abbild StandardkonfigurationWie(const Abbild& geraet) {
    Abbild abbild = geraet;
    const Abbild standard = Standardkonfiguration();
    for (const auto& [bereich, adresse, teil] : AlleStellen(IstSchreibbar))
        std::ignore =
            abbild.SetzeParameter(bereich, adresse, standard.HoleParameter(bereich, adresse, teil), teil);
    return abbild;
}

void modDaten::LadeStandardkonfiguration() {
    ErsetzeAbbild(Standardkonfiguration());
}

} // namespace varnoth
