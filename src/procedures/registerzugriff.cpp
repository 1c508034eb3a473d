#include "registerzugriff.h"

#include "ereignisse.h"
#include "geraetestand.h"
#include "nachlese.h"
#include "transaktionen.h"

#include <memory>

namespace varnoth {

namespace {

bool IstSpezifisch(const Transferparameter& parameter) {
    return parameter.bereich == Speicherbereich::SpezifischeGeraetedaten;
}

Transferschritt Auswahlschritt(int optikteil) {
    return {.zeige = [](int /*versuch*/) {},
            .tausche = [optikteil] { return modModbus::WaehleOptikteil(optikteil) != False; },
            .uebernimm = [] {}};
}

/// Appends an exchange that concerns a parameter, behind the selection that it needs.
void HaengeAn(std::vector<Transferschritt>& schritte, const Transferparameter& parameter,
              Transferschritt schritt) {
    if (IstSpezifisch(parameter)) {
        schritte.push_back(Auswahlschritt(parameter.optikteil));
        schritt.auswahl = schritte.size() - 1;
    }
    schritte.push_back(std::move(schritt));
}

bool Laufe(Ablaufanzeige& anzeige, std::vector<Transferschritt> schritte) {
    Schrittfolge folge(std::move(schritte), [&anzeige] { return anzeige.Abgebrochen(); });
    folge.VerlangeGewissheit();
    return folge.Laufe();
}

} // namespace

std::vector<Transferschritt> Leseschritte(std::span<const Transferparameter> parameter,
                                          const Registerziel& ziel) {
    std::vector<Transferschritt> schritte;
    for (const Transferparameter& einer : parameter) {
        const auto werte = std::make_shared<Werte>(static_cast<std::size_t>(einer.anzahl));
        HaengeAn(schritte, einer,
                 {.zeige = [](int /*versuch*/) {},
                  .tausche = [=] { return LiesParameter(einer, *werte) != False; },
                  .uebernimm = [=] { ziel(einer, *werte); }});
    }
    return schritte;
}

bool LiesRegister(Ablaufanzeige& anzeige, std::span<const Transferparameter> parameter,
                  const Registerziel& ziel) {
    return Laufe(anzeige, Leseschritte(parameter, ziel));
}

bool SchreibeRegister(Ablaufanzeige& anzeige, const Transferparameter& parameter, const Werte& werte) {
    std::vector<Transferschritt> schritte;
    HaengeAn(schritte, parameter,
             {.zeige = [](int /*versuch*/) {},
              .tausche =
                  [&] {
                      return modModbus::RTUModeH10SchreibenAnforderung(
                                 Geraeteadresse(parameter.bereich, parameter.adresse),
                                 static_cast<std::uint16_t>(parameter.anzahl), werte) != False;
                  },
              .uebernimm = [] {}});
    const bool gelungen = Laufe(anzeige, std::move(schritte));
    modGeraetestand::Vergiss(ParameterMitRegistern(parameter));
    modEreignisse::Merke({.art = Ereignisart::RegisterGeschrieben,
                          .gelungen = gelungen,
                          .anzahl = static_cast<std::uint32_t>(parameter.anzahl),
                          .alt = Geraeteadresse(parameter.bereich, parameter.adresse)});
    return gelungen;
}

Parametermenge ParameterMitRegistern(const Transferparameter& parameter) {
    Parametermenge gefunden;
    for (const Parameter& einer : AlleParameter())
        if (IstLesbar(einer.beschreibung) && einer.bereich == parameter.bereich &&
            einer.adresse < parameter.adresse + parameter.anzahl &&
            parameter.adresse < einer.adresse + einer.beschreibung.Laenge)
            gefunden.insert({einer.bereich, einer.adresse, parameter.optikteil});
    return gefunden;
}

} // namespace varnoth
