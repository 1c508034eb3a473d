#include "plausibilitaet.h"

#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "texte.h"
#include "umgebung.h"

#include <algorithm>
#include <utility>

namespace varnoth::modDaten {

namespace {

constexpr std::int16_t TextUnplausibel = 3102;

std::function<void()> dieReaktion;

bool IstErfuellt(const Werteregel& regel) {
    const auto werte = Bereich(regel.bereich);
    for (int teil = 0; teil < Exemplare(regel.bereich); ++teil)
        if (!Erfuellt(regel, werte[Stelle(regel.bereich, regel.adresse, teil)]))
            return false;
    return true;
}

} // namespace

bool IstPlausibel() {
    return std::ranges::all_of(AlleWerteregeln(), IstErfuellt);
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

void KorrigiereStrahlenzahlen() {
    for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
        if (Strahlenzahl(teil) > MaxStrahlen)
            SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, teil, {0});
}

} // namespace varnoth::modDaten
