#include "optikteilinformation.h"

#include "geraetestatus.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "texte.h"
#include "transaktionen.h"
#include "versuche.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextOptikteil = 7403;
constexpr std::int16_t TextVorhanden = 7404;
constexpr std::int16_t TextNichtVorhanden = 7405;

constexpr auto Spezifisch = Speicherbereich::SpezifischeGeraetedaten;

bool Versuche(Ablaufanzeige& anzeige, const std::function<Boolean()>& transaktion) {
    return VersucheBisErfolg(
        anzeige, [](int /*versuch*/) {}, transaktion);
}

/// Reads the part's status register into `status`. False = cancelled.
bool LiesStatus(Ablaufanzeige& anzeige, std::int16_t teil, Werte& status) {
    return Versuche(anzeige, [=] { return modModbus::WaehleOptikteil(teil); }) && Versuche(anzeige, [&] {
               return modModbus::RTUModeH03LeseAnforderung(
                   Geraeteadresse(Spezifisch, spezifisch::Optikteilstatus), 1, status);
           });
}

bool FrageOptikteil(Optikteilanzeige& anzeige, std::int16_t teil) {
    const std::string zeile = LadeText(TextOptikteil) + std::to_string(teil) + ":  ";
    anzeige.ZeigeOptikteil(teil, zeile);
    Werte status(1);
    if (!LiesStatus(anzeige, teil, status) ||
        !modDaten::SetzeParameter(Spezifisch, spezifisch::Optikteilstatus, status, teil))
        return false;
    const bool vorhanden = modDaten::IstOptikteilVorhanden(status[0]);
    anzeige.ZeigeOptikteil(teil, zeile + LadeText(vorhanden ? TextVorhanden : TextNichtVorhanden));
    return true;
}

} // namespace

bool HoleOptikteilInformation(Optikteilanzeige& anzeige) {
    anzeige.ZeigeFortschritt(0, AnzahlOptikteile);
    for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil) {
        if (!FrageOptikteil(anzeige, teil))
            return false;
        anzeige.ZeigeFortschritt(teil + 1, AnzahlOptikteile);
    }
    return true;
}

} // namespace varnoth
