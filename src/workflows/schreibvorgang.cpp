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

class Schreibtransfer : public Konfigurationstransfer {
public:
    Schreibtransfer(Transferanzeige& transferanzeige, Ablage wie, const Schreibauftrag& was,
                    Schreibspur& welche)
        : Konfigurationstransfer(transferanzeige, IstSchreibbar, wie == Ablage::Dauerhaft ? 1 : 0),
          anzeige(transferanzeige), ablage(wie), auftrag(was), spur(welche) {}

    bool Schreibe() { return UebertrageAlles() && (ablage == Ablage::Fluechtig || Speichere()); }

private:
    std::int16_t ErsterBereichstext() const override { return TextGlobaleGeraetedaten; }
    bool Uebertrage(const Transferparameter& parameter) override;
    bool Speichere();

    Transferanzeige& anzeige;
    Ablage ablage;
    const Schreibauftrag& auftrag;
    Schreibspur& spur;
};

bool Schreibtransfer::Uebertrage(const Transferparameter& parameter) {
    const Parameterstelle stelle{parameter.bereich, parameter.adresse, parameter.optikteil};
    if (!auftrag.stellen.contains(stelle)) {
        Ueberspringe();
        return true;
    }
    const Werte werte =
        auftrag.abbild.HoleParameter(parameter.bereich, parameter.adresse, parameter.optikteil);
    spur.ungewiss.insert(stelle);
    return Versuche(Registertext(parameter.bereich, parameter.adresse), parameter.anzahl, [&] {
        const Boolean gelungen =
            modModbus::RTUModeH10SchreibenAnforderung(Geraeteadresse(parameter.bereich, parameter.adresse),
                                                      static_cast<std::uint16_t>(parameter.anzahl), werte);
        if (gelungen != False) {
            spur.geschrieben.insert(stelle);
            spur.ungewiss.erase(stelle);
        }
        return gelungen;
    });
}

bool Schreibtransfer::Speichere() {
    constexpr auto Global = Speicherbereich::GlobaleGeraetedaten;
    anzeige.ZeigeBereich(LadeText(TextSpeichern));
    return Versuche(Registertext(Global, global::Kommando), 1,
                    [] { return SendeKommando(Kommando::SpeichereKonfiguration); });
}

} // namespace

bool SchreibeKonfiguration(Transferanzeige& anzeige, Ablage ablage, const Schreibauftrag& auftrag,
                           Schreibspur& spur) {
    const bool vollstaendig = Schreibtransfer(anzeige, ablage, auftrag, spur).Schreibe();
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
