#include "ruecklesung.h"

#include "geraetestand.h"
#include "registertext.h"
#include "schreibvorgang.h"
#include "seriennummer.h"
#include "texte.h"
#include "transaktionen.h"

#include <algorithm>
#include <tuple>

namespace varnoth {

namespace {

constexpr std::int16_t TextGlobaleGeraetedaten = 7005;
constexpr std::int16_t TextUebertragungBeendet = 7009;

class Ruecklesetransfer : public Konfigurationstransfer {
public:
    Ruecklesetransfer(Transferanzeige& transferanzeige, const Parametermenge& welche, Ruecklesung& ziel)
        : Konfigurationstransfer(transferanzeige, IstSchreibbar), stellen(welche), ruecklesung(ziel) {}

private:
    std::int16_t ErsterBereichstext() const override { return TextGlobaleGeraetedaten; }
    bool Uebertrage(const Transferparameter& parameter) override;

    const Parametermenge& stellen;
    Ruecklesung& ruecklesung;
};

bool Ruecklesetransfer::Uebertrage(const Transferparameter& parameter) {
    const Parameterstelle stelle{parameter.bereich, parameter.adresse, parameter.optikteil};
    if (!stellen.contains(stelle)) {
        Ueberspringe();
        return true;
    }
    Werte werte(static_cast<std::size_t>(parameter.anzahl));
    const bool gelesen = Versuche(Registertext(parameter.bereich, parameter.adresse), parameter.anzahl, [&] {
        return modModbus::RTUModeH03LeseAnforderung(Geraeteadresse(parameter.bereich, parameter.adresse),
                                                    static_cast<std::uint16_t>(parameter.anzahl), werte);
    });
    if (!gelesen)
        return false;
    std::ignore = ruecklesung.abbild.SetzeParameter(stelle.bereich, stelle.adresse, werte, stelle.optikteil);
    ruecklesung.gelesen.insert(stelle);
    return true;
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
        modGeraetestand::MerkeGeschrieben(ruecklesung.abbild, ruecklesung.gelesen, GeraeteSeriennummer());
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
