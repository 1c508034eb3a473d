#include "gezeigtesabbild.h"

#include "registerabbild.h"
#include "registeradressen.h"
#include "startzustand.h"

namespace varnoth::modDaten {

namespace {

const Abbild* anderesAbbild = nullptr;
const Startwert startwert(anderesAbbild);

} // namespace

const Abbild& GezeigtesAbbild() {
    return anderesAbbild != nullptr ? *anderesAbbild : DasAbbild();
}

void ZeigeAnderesAbbild(const Abbild* anderes) {
    anderesAbbild = anderes;
}

bool IstAnderesGezeigt() {
    return anderesAbbild != nullptr;
}

std::int32_t GezeigteStrahlenzahl(int optikteil) {
    if (optikteil < 0 || optikteil >= AnzahlOptikteile)
        return 0;
    return GezeigtesAbbild().HoleRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl,
                                          optikteil);
}

} // namespace varnoth::modDaten
