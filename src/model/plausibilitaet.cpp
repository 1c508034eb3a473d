#include "plausibilitaet.h"

#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "startzustand.h"
#include "texte.h"
#include "umgebung.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

bool IstErfuellt(const Werteregel& regel, const Abbild& abbild, int teil) {
    return Erfuellt(regel, abbild.Bereich(regel.bereich)[Stelle(regel.bereich, regel.adresse, teil)]);
}

} // namespace

bool IstPlausibel(const Abbild& abbild) {
    return UnplausibleStellen(abbild).empty();
}

Parametermenge UnplausibleStellen(const Abbild& abbild) {
    Parametermenge stellen;
    for (const Werteregel& regel : AlleWerteregeln())
        for (int teil = 0; teil < Exemplare(regel.bereich); ++teil)
            if (!IstErfuellt(regel, abbild, teil))
                stellen.insert({regel.bereich, regel.adresse, teil});
    return stellen;
}

bool KorrigiereStrahlenzahlen(Abbild& abbild) {
    bool korrigiert = false;
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        if (abbild.HoleRegister(Spezifisch, spezifisch::Strahlenzahl, teil) > MaxStrahlen)
            korrigiert |= abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 0, teil);
    return korrigiert;
}

namespace modDaten {

namespace {

constexpr std::int16_t TextUnplausibel = 3102;

std::function<void()> dieReaktion;
const Startwert startwert(dieReaktion);

} // namespace

bool IstPlausibel() {
    return varnoth::IstPlausibel(DasAbbild());
}

void KorrigiereStrahlenzahlen() {
    Abbild abbild = DasAbbild();
    if (!varnoth::KorrigiereStrahlenzahlen(abbild))
        return;
    ErsetzeAbbild(abbild);
    SetzeGeaendert();
}

Boolean PruefeKonfiguration() {
    if (IstPlausibel())
        return True;
    if (dieReaktion)
        dieReaktion();
    ZeigeWarnung(LadeText(TextUnplausibel));
    LadeStandardkonfiguration();
    return False;
}

void SetzeReaktionAufUnplausiblesAbbild(std::function<void()> reaktion) {
    dieReaktion = std::move(reaktion);
}

} // namespace modDaten

} // namespace varnoth
