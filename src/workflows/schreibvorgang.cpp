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
        : Konfigurationstransfer(transferanzeige, IstSchreibbar), ablage(wie) {}

private:
    std::int16_t ErsterBereichstext() const override { return TextGlobaleGeraetedaten; }
    Boolean Tausche(const Transferparameter& parameter, Werte& werte) override;
    void Uebernimm(const Transferparameter& /*parameter*/, const Werte& /*werte*/) override {}
    void HaengeWeitereAn() override;

    Ablage ablage;
};

Boolean Schreibtransfer::Tausche(const Transferparameter& parameter, Werte& werte) {
    werte = HoleParameter(parameter.bereich, parameter.adresse, parameter.optikteil);
    return modModbus::RTUModeH10SchreibenAnforderung(Geraeteadresse(parameter.bereich, parameter.adresse),
                                                     static_cast<std::uint16_t>(parameter.anzahl), werte);
}

void Schreibtransfer::HaengeWeitereAn() {
    if (ablage == Ablage::Dauerhaft)
        HaengeAn(LadeText(TextSpeichern),
                 Registertext(Speicherbereich::GlobaleGeraetedaten, global::Kommando), 1,
                 [] { return SendeKommando(Kommando::SpeichereKonfiguration); });
}

} // namespace

bool SchreibeKonfiguration(Transferanzeige& anzeige, Ablage ablage) {
    if (!Schreibtransfer(anzeige, ablage).UebertrageAlles())
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
