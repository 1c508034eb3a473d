#include "nachlese.h"

#include "austausch.h"
#include "geraetestand.h"
#include "plausibilitaet.h"
#include "registerabbild.h"
#include "registerzugriff.h"
#include "schrittfolge.h"
#include "seriennummer.h"
#include "startzustand.h"
#include "transaktionen.h"

#include <utility>

namespace varnoth {

Boolean LiesParameter(const Transferparameter& parameter, Werte& werte) {
    return modModbus::RTUModeH03LeseAnforderung(Geraeteadresse(parameter.bereich, parameter.adresse),
                                                static_cast<std::uint16_t>(parameter.anzahl), werte);
}

void SpeichereParameter(const Transferparameter& parameter, const Werte& werte) {
    // Its length is the description's, so there is room for it.
    static_cast<void>(
        modDaten::SetzeParameter(parameter.bereich, parameter.adresse, werte, parameter.optikteil));
}

namespace modNachlese {

namespace {

struct Zustand {
    std::vector<Transferparameter> offene{};
    unsigned long letzterAustausch = 0;
    unsigned long brueche = 0;
    bool noetig = false;
};

Zustand zustand;
const Startwert startwert(zustand);

} // namespace

void Merke(const std::vector<Transferparameter>& parameter, unsigned long letzterAustausch) {
    zustand = {parameter, letzterAustausch, modAustausch::Brueche()};
}

void Pruefe() {
    if (zustand.noetig)
        return;
    if (modAustausch::Brueche() != zustand.brueche)
        zustand.noetig = !zustand.offene.empty();
    else if (modAustausch::GewissBis() >= zustand.letzterAustausch)
        zustand.offene.clear();
}

bool HoleNach(Ablaufanzeige& anzeige) {
    Pruefe();
    if (!zustand.noetig)
        return true;
    Schrittfolge folge(Leseschritte(zustand.offene, SpeichereParameter),
                       [&anzeige] { return anzeige.Abgebrochen(); });
    folge.Bewache();
    if (!folge.Laufe())
        return false;
    zustand = {};
    modDaten::KorrigiereStrahlenzahlen();
    modGeraetestand::MerkeGelesen(modDaten::DasAbbild(), GeraeteSeriennummer());
    return true;
}

void Verwirf() {
    for (const Transferparameter& parameter : zustand.offene)
        SpeichereParameter(parameter, Werte(static_cast<std::size_t>(parameter.anzahl), 0));
    zustand = {};
}

} // namespace modNachlese

} // namespace varnoth
