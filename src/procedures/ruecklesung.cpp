#include "ruecklesung.h"

#include "geraetestand.h"
#include "nachlese.h"
#include "schreibvorgang.h"
#include "seriennummer.h"
#include "texte.h"

#include <algorithm>
#include <tuple>

namespace varnoth {

namespace {

constexpr std::int16_t TextGlobaleGeraetedaten = 7005;
constexpr std::int16_t TextUebertragungBeendet = 7009;

class Ruecklesetransfer : public Konfigurationstransfer {
public:
    Ruecklesetransfer(Transferanzeige& transferanzeige, const Parametermenge& welche, Ruecklesung& ziel)
        : Konfigurationstransfer(transferanzeige, IstSchreibbar), stellen(welche), ruecklesung(ziel) {
        VerlangeGewissheit();
    }

private:
    std::int16_t ErsterBereichstext() const override { return TextGlobaleGeraetedaten; }
    bool Betrifft(const Transferparameter& parameter) const override {
        return stellen.contains({parameter.bereich, parameter.adresse, parameter.optikteil});
    }
    Boolean Tausche(const Transferparameter& parameter, Werte& werte) override {
        return LiesParameter(parameter, werte);
    }
    void Uebernimm(const Transferparameter& parameter, const Werte& werte) override;

    const Parametermenge& stellen;
    Ruecklesung& ruecklesung;
};

void Ruecklesetransfer::Uebernimm(const Transferparameter& parameter, const Werte& werte) {
    const Parameterstelle stelle{parameter.bereich, parameter.adresse, parameter.optikteil};
    std::ignore = ruecklesung.abbild.SetzeParameter(stelle.bereich, stelle.adresse, werte, stelle.optikteil);
    ruecklesung.gelesen.insert(stelle);
}

Werte WerteVon(const Abbild& abbild, const Parameterstelle& stelle) {
    return abbild.HoleParameter(stelle.bereich, stelle.adresse, stelle.optikteil);
}

int GleicheRegister(const Werte& gemeinte, const Werte& gelesene) {
    constexpr std::int32_t Register = 0xFFFF;
    int anzahl = 0;
    for (std::size_t i = 0; i < gemeinte.size(); ++i)
        anzahl += (gemeinte[i] & Register) == (gelesene[i] & Register) ? 1 : 0;
    return anzahl;
}

} // namespace

bool LiesZurueck(Transferanzeige& anzeige, const Parametermenge& stellen, Ruecklesung& ruecklesung) {
    const bool vollstaendig = Ruecklesetransfer(anzeige, stellen, ruecklesung).UebertrageAlles();
    if (!ruecklesung.gelesen.empty())
        modGeraetestand::MerkeZurueckgelesen(ruecklesung.abbild, ruecklesung.gelesen, GeraeteSeriennummer());
    if (vollstaendig)
        anzeige.ZeigeEnde(LadeText(TextUebertragungBeendet));
    return vollstaendig;
}

Pruefergebnis PruefeRuecklesung(const Abbild& gemeint, const Parametermenge& stellen,
                                const Ruecklesung& ruecklesung) {
    Pruefergebnis ergebnis{.alleRegister = AnzahlRegister(stellen)};
    for (const Parameterstelle& stelle : stellen) {
        if (!ruecklesung.gelesen.contains(stelle)) {
            ergebnis.nichtVerglichen.insert(stelle);
            continue;
        }
        const Werte gemeinte = WerteVon(gemeint, stelle);
        const int gleiche = GleicheRegister(gemeinte, WerteVon(ruecklesung.abbild, stelle));
        ergebnis.gleicheRegister += gleiche;
        if (gleiche != static_cast<int>(gemeinte.size()))
            ergebnis.abweichend.insert(stelle);
    }
    return ergebnis;
}

} // namespace varnoth
