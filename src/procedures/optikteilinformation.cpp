#include "optikteilinformation.h"

#include "geraetestatus.h"
#include "nachlese.h"
#include "polling.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "schrittfolge.h"
#include "texte.h"
#include "transaktionen.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace varnoth {

namespace {

constexpr std::int16_t TextOptikteil = 7403;
constexpr std::int16_t TextVorhanden = 7404;
constexpr std::int16_t TextNichtVorhanden = 7405;

/// The exchanges of one part: its selection, then its status register.
class Optikteilfrage {
public:
    Optikteilfrage(Optikteilanzeige& optikteilanzeige, std::int16_t optikteil)
        : anzeige(optikteilanzeige), teil(optikteil),
          zeile(LadeText(TextOptikteil) + std::to_string(teil) + ":  ") {}

    void Beginne() const { anzeige.ZeigeOptikteil(teil, zeile); }
    bool LiesStatus() {
        const bool gelesen = modModbus::RTUModeH03LeseAnforderung(
                                 Geraeteadresse(Spezifisch, spezifisch::Optikteilstatus), 1, status) != False;
        if (gelesen && !anzeige.Abgebrochen())
            Zeige();
        return gelesen;
    }
    void Uebernimm() const { SpeichereParameter({Spezifisch, spezifisch::Optikteilstatus, 1, teil}, status); }

private:
    void Zeige() const {
        const bool vorhanden = modDaten::IstOptikteilVorhanden(status[0]);
        anzeige.ZeigeOptikteil(teil, zeile + LadeText(vorhanden ? TextVorhanden : TextNichtVorhanden));
        anzeige.ZeigeFortschritt(teil + 1, AnzahlOptikteile);
    }

    Optikteilanzeige& anzeige;
    std::int16_t teil;
    std::string zeile;
    Werte status{0};
};

/// Each exchange also tells whether the configuration that was read before is right.
std::function<bool()> MitNachlese(std::function<bool()> tausche) {
    return [tausche = std::move(tausche)] {
        const bool gelungen = tausche();
        modNachlese::Pruefe();
        return gelungen;
    };
}

std::vector<Transferschritt> Schritte(Optikteilanzeige& anzeige) {
    std::vector<Transferschritt> schritte;
    for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil) {
        const auto frage = std::make_shared<Optikteilfrage>(anzeige, teil);
        schritte.push_back(
            {.zeige = [frage](int /*versuch*/) { frage->Beginne(); },
             .tausche = MitNachlese([teil] { return modModbus::WaehleOptikteil(teil) != False; }),
             .uebernimm = [] {}});
        schritte.push_back({.zeige = [](int /*versuch*/) {},
                            .tausche = MitNachlese([frage] { return frage->LiesStatus(); }),
                            .uebernimm = [frage] { frage->Uebernimm(); },
                            .auswahl = schritte.size() - 1});
    }
    return schritte;
}

} // namespace

bool HoleOptikteilInformation(Optikteilanzeige& anzeige) {
    anzeige.ZeigeFortschritt(0, AnzahlOptikteile);
    Schrittfolge folge(Schritte(anzeige), [&anzeige] { return anzeige.Abgebrochen(); });
    const bool gelungen = folge.Laufe() && modNachlese::HoleNach(anzeige);
    if (!gelungen)
        modNachlese::Verwirf();
    return gelungen;
}

void UebernimmOptikteile() {
    using namespace modPolling;
    int anzahl = 0;
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        SetzeOptikteilStatus(teil, ZustandAus(modDaten::HoleRegister(Speicherbereich::SpezifischeGeraetedaten,
                                                                     spezifisch::Optikteilstatus, teil)));
        if (GetOptikteilStatus(teil) == Vorhanden)
            anzahl = teil + 1;
    }
    SetzeAnzahlOptikteile(anzahl);
}

} // namespace varnoth
