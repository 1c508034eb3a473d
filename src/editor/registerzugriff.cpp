#include "registerzugriff.h"

#include "registerabbild.h"

namespace varnoth {

using namespace modDaten;

std::int32_t LiesRegister(Speicherbereich bereich, std::int16_t adresse, int optikteil) {
    Werte werte{0};
    switch (bereich) {
    case Speicherbereich::GlobaleGeraetedaten:
        HoleGlobaleDaten(adresse, 1, werte);
        break;
    case Speicherbereich::SpezifischeGeraetedaten:
        HoleSpezifischeDaten(adresse, 1, static_cast<std::int16_t>(optikteil), werte);
        break;
    case Speicherbereich::Kommunikationsdaten:
        HoleKommunikationsdaten(adresse, 1, werte);
        break;
    }
    return werte[0];
}

bool SchreibeRegister(Speicherbereich bereich, std::int16_t adresse, std::int32_t wert, int optikteil) {
    switch (bereich) {
    case Speicherbereich::GlobaleGeraetedaten:
        return SetzeGlobaleDaten(adresse, 1, {wert}) != False;
    case Speicherbereich::SpezifischeGeraetedaten:
        return SetzeSpezifischeDaten(adresse, 1, static_cast<std::int16_t>(optikteil), {wert}) != False;
    case Speicherbereich::Kommunikationsdaten:
        return SetzeKommunikationsdaten(adresse, 1, {wert}) != False;
    }
    return false;
}

} // namespace varnoth
