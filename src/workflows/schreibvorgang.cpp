#include "schreibvorgang.h"

#include "geraetestand.h"
#include "kommandoregister.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "registertext.h"
#include "seriennummer.h"
#include "texte.h"
#include "transaktionen.h"

namespace varnoth {

namespace {

using namespace modDaten;

constexpr std::int16_t TextGlobaleGeraetedaten = 7105;
constexpr std::int16_t TextUebertragungBeendet = 7109;
constexpr std::int16_t TextSpeichern = 7112;

Parameterstelle StelleVon(const Transferparameter& parameter) {
    return {parameter.bereich, parameter.adresse, parameter.optikteil};
}

class Schreibtransfer : public Konfigurationstransfer {
public:
    Schreibtransfer(Transferanzeige& transferanzeige, Ablage wie, const Schreibauftrag& was,
                    Schreibspur& welche)
        : Konfigurationstransfer(transferanzeige, IstSchreibbar), ablage(wie), auftrag(was), spur(welche) {}

private:
    std::int16_t ErsterBereichstext() const override { return TextGlobaleGeraetedaten; }
    bool Betrifft(const Transferparameter& parameter) const override {
        return auftrag.stellen.contains(StelleVon(parameter));
    }
    Boolean Tausche(const Transferparameter& parameter, Werte& werte) override;
    void Uebernimm(const Transferparameter& parameter, const Werte& werte) override;
    void HaengeWeitereAn() override;

    Ablage ablage;
    const Schreibauftrag& auftrag;
    Schreibspur& spur;
};

Boolean Schreibtransfer::Tausche(const Transferparameter& parameter, Werte& werte) {
    werte = auftrag.abbild.HoleParameter(parameter.bereich, parameter.adresse, parameter.optikteil);
    spur.ungewiss.insert(StelleVon(parameter));
    return modModbus::RTUModeH10SchreibenAnforderung(Geraeteadresse(parameter.bereich, parameter.adresse),
                                                     static_cast<std::uint16_t>(parameter.anzahl), werte);
}

void Schreibtransfer::Uebernimm(const Transferparameter& parameter, const Werte& /*werte*/) {
    spur.geschrieben.insert(StelleVon(parameter));
    spur.ungewiss.erase(StelleVon(parameter));
}

void Schreibtransfer::HaengeWeitereAn() {
    if (ablage == Ablage::Dauerhaft)
        HaengeAn(LadeText(TextSpeichern),
                 Registertext(Speicherbereich::GlobaleGeraetedaten, global::Kommando), 1,
                 [] { return SendeKommando(Kommando::SpeichereKonfiguration); });
}

} // namespace

bool SchreibeKonfiguration(Transferanzeige& anzeige, Ablage ablage, const Schreibauftrag& auftrag,
                           Schreibspur& spur) {
    const bool vollstaendig = Schreibtransfer(anzeige, ablage, auftrag, spur).UebertrageAlles();
    if (!spur.geschrieben.empty())
        modGeraetestand::MerkeGeschrieben(auftrag.abbild, spur.geschrieben, GeraeteSeriennummer());
    if (vollstaendig)
        anzeige.ZeigeEnde(LadeText(TextUebertragungBeendet));
    return vollstaendig;
}

bool SchreibeKonfiguration(Transferanzeige& anzeige, Ablage ablage) {
    Schreibspur spur;
    return SchreibeKonfiguration(anzeige, ablage, {.abbild = DasAbbild()}, spur);
}

int AnzahlRegister(const Parametermenge& stellen) {
    int anzahl = 0;
    for (const Parameterstelle& stelle : stellen)
        anzahl += Beschreibung(stelle.bereich, stelle.adresse).Laenge;
    return anzahl;
}

} // namespace varnoth
