#include "uebernahme.h"

#include "plausibilitaet.h"

#include <tuple>

namespace varnoth {

bool IstUebernehmbar(const Vergleichszeile& zeile) {
    return zeile.klasse == Vergleichsklasse::Verschieden &&
           IstSchreibbar(Beschreibung(zeile.stelle.bereich, zeile.stelle.adresse));
}

Uebernahme Uebernimm(const Abbild& ziel, const Abbild& quelle, const Parametermenge& stellen) {
    Uebernahme uebernahme{ziel, {}};
    for (const auto& [bereich, adresse, teil] : stellen)
        std::ignore = uebernahme.abbild.SetzeParameter(bereich, adresse,
                                                       quelle.HoleParameter(bereich, adresse, teil), teil);
    uebernahme.unplausible = UnplausibleStellen(uebernahme.abbild);
    return uebernahme;
}

} // namespace varnoth
