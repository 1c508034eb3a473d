#include "schreibvorgang.h"

#include "austausch.h"
#include "ereignisse.h"
#include "geraetestand.h"
#include "kommandoregister.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "registertext.h"
#include "seriennummer.h"
#include "texte.h"
#include "transaktionen.h"

#include <algorithm>
#include <iterator>

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
    Schreibtransfer(Transferanzeige& transferanzeige, Ablage wie, const Schreibauftrag& was)
        : Konfigurationstransfer(transferanzeige, IstSchreibbar), ablage(wie), auftrag(was) {}

    /// What has become of the parameters, once UebertrageAlles has given its answer.
    Schreibspur Spur(bool vollstaendig) const;

private:
    std::int16_t ErsterBereichstext() const override { return TextGlobaleGeraetedaten; }
    bool Betrifft(const Transferparameter& parameter) const override {
        return auftrag.stellen.contains(StelleVon(parameter));
    }
    Boolean Tausche(const Transferparameter& parameter, Werte& werte) override;
    void Uebernimm(const Transferparameter& parameter, const Werte& /*werte*/) override {
        gewisse.insert(StelleVon(parameter));
    }
    void HaengeWeitereAn() override;

    Ablage ablage;
    const Schreibauftrag& auftrag;
    unsigned long bruecheZuvor = modAustausch::Brueche();
    Parametermenge gesendete{};
    Parametermenge bestaetigte{};
    Parametermenge gewisse{};
};

Boolean Schreibtransfer::Tausche(const Transferparameter& parameter, Werte& werte) {
    const Parameterstelle stelle = StelleVon(parameter);
    werte = auftrag.abbild.HoleParameter(stelle.bereich, stelle.adresse, stelle.optikteil);
    gesendete.insert(stelle);
    const Boolean gelungen = modModbus::RTUModeH10SchreibenAnforderung(
        Geraeteadresse(stelle.bereich, stelle.adresse), static_cast<std::uint16_t>(parameter.anzahl), werte);
    if (gelungen != False)
        bestaetigte.insert(stelle);
    return gelungen;
}

/// A confirmation may be another's on a line that was disturbed; then only what is certain counts.
Schreibspur Schreibtransfer::Spur(bool vollstaendig) const {
    const bool ungestoert = modAustausch::Brueche() == bruecheZuvor;
    Schreibspur spur{.geschrieben = vollstaendig || ungestoert ? bestaetigte : gewisse};
    std::ranges::set_difference(gesendete, spur.geschrieben,
                                std::inserter(spur.ungewiss, spur.ungewiss.end()));
    return spur;
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
    Schreibtransfer transfer(anzeige, ablage, auftrag);
    const bool vollstaendig = transfer.UebertrageAlles();
    spur = transfer.Spur(vollstaendig);
    if (!spur.geschrieben.empty())
        modGeraetestand::MerkeGeschrieben(auftrag.abbild, spur.geschrieben, GeraeteSeriennummer());
    modGeraetestand::Vergiss(spur.ungewiss);
    modEreignisse::Merke({.art = Ereignisart::KonfigurationGeschrieben,
                          .gelungen = vollstaendig,
                          .anzahl = static_cast<std::uint32_t>(AnzahlRegister(spur.geschrieben))});
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
