#include "schreibvorgang.h"

#include "geraetestand.h"
#include "kommandoregister.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "seriennummer.h"
#include "texte.h"
#include "transaktionen.h"

namespace varnoth {

namespace {

using namespace modDaten;

constexpr std::int16_t TextGlobaleGeraetedaten = 7105;
constexpr std::int16_t TextUebertragungBeendet = 7109;
constexpr std::int16_t TextSpeichern = 7112;

class Schreibtransfer : public Konfigurationstransfer {
public:
    Schreibtransfer(Transferanzeige& transferanzeige, Ablage wie)
        : Konfigurationstransfer(transferanzeige, IstSchreibbar, wie == Ablage::Dauerhaft ? 1 : 0),
          anzeige(transferanzeige), ablage(wie) {}

    bool Schreibe() { return UebertrageAlles() && (ablage == Ablage::Fluechtig || Speichere()); }

private:
    std::int16_t ErsterBereichstext() const override { return TextGlobaleGeraetedaten; }
    bool Uebertrage(const Transferparameter& parameter) override;
    bool Speichere();

    Transferanzeige& anzeige;
    Ablage ablage;
};

bool Schreibtransfer::Uebertrage(const Transferparameter& parameter) {
    const Werte werte = HoleParameter(parameter.bereich, parameter.adresse, parameter.optikteil);
    return Versuche(Registertext(parameter.bereich, parameter.adresse), parameter.anzahl, [&] {
        return modModbus::RTUModeH10SchreibenAnforderung(Geraeteadresse(parameter.bereich, parameter.adresse),
                                                         static_cast<std::uint16_t>(parameter.anzahl), werte);
    });
}

bool Schreibtransfer::Speichere() {
    constexpr auto Global = Speicherbereich::GlobaleGeraetedaten;
    anzeige.ZeigeBereich(LadeText(TextSpeichern));
    return Versuche(Registertext(Global, global::Kommando), 1,
                    [] { return SendeKommando(Kommando::SpeichereKonfiguration); });
}

} // namespace

bool SchreibeKonfiguration(Transferanzeige& anzeige, Ablage ablage) {
    if (!Schreibtransfer(anzeige, ablage).Schreibe())
        return false;
    anzeige.ZeigeEnde(LadeText(TextUebertragungBeendet));
    modGeraetestand::MerkeGeschrieben(DasAbbild(), AlleStellen(IstSchreibbar), GeraeteSeriennummer());
    return true;
}

int AnzahlSchreibbarerRegister() {
    int anzahl = 0;
    for (const Speicherbereich bereich : AlleSpeicherbereiche)
        for (const Parameter& parameter : ParameterMit(bereich, IstSchreibbar))
            anzahl += Exemplare(bereich) * parameter.beschreibung.Laenge;
    return anzahl;
}

} // namespace varnoth
