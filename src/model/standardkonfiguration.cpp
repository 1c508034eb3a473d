#include "standardkonfiguration.h"

#include "registerabbild.h"

namespace varnoth::modDaten {

void LadeStandardkonfiguration() {
    for (const auto bereich : AlleSpeicherbereiche) {
        Werte werte(Bereich(bereich).size(), 0);
        for (const auto& standard : AlleStandardwerte()) {
            if (standard.bereich != bereich)
                continue;
            for (int teil = 0; teil < Exemplare(bereich); ++teil)
                werte[Stelle(bereich, standard.adresse, teil)] = standard.wert;
        }
        ErsetzeBereich(bereich, werte);
    }
}

} // namespace varnoth::modDaten
