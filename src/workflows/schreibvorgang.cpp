#include "schreibvorgang.h"

#include "kommandoregister.h"
#include "registerabbild.h"
#include "texte.h"
#include "transaktionen.h"

namespace varnoth {

namespace {

using namespace modDaten;

constexpr std::int16_t TextGlobaleGeraetedaten = 7105;
constexpr std::int16_t TextUebertragungBeendet = 7109;
constexpr std::int16_t TextSpeichern = 7112;

Werte HoleWerte(const Transferparameter& parameter) {
    Werte werte(static_cast<std::size_t>(parameter.anzahl));
    switch (parameter.bereich) {
    case Speicherbereich::GlobaleGeraetedaten:
        HoleGlobaleDaten(parameter.adresse, parameter.anzahl, werte);
        break;
    case Speicherbereich::SpezifischeGeraetedaten:
        HoleSpezifischeDaten(parameter.adresse, parameter.anzahl, parameter.optikteil, werte);
        break;
    case Speicherbereich::Kommunikationsdaten:
        HoleKommunikationsdaten(parameter.adresse, parameter.anzahl, werte);
        break;
    }
    return werte;
}

class Schreibtransfer : public Konfigurationstransfer {
public:
    Schreibtransfer(Transferanzeige& die, Ablage wie)
        : Konfigurationstransfer(die, wie == Ablage::Dauerhaft ? 1 : 0), anzeige(die), ablage(wie) {}

    bool Schreibe() { return UebertrageAlles() && (ablage == Ablage::Fluechtig || Speichere()); }

private:
    Eintragsiterator ErsterEintrag() const override { return ErsterSchreibbarerEintrag; }
    Eintragsiterator NaechsterEintrag() const override { return NaechsterSchreibbarerEintrag; }
    std::int16_t ErsterBereichstext() const override { return TextGlobaleGeraetedaten; }
    bool Uebertrage(const Transferparameter& parameter) override;
    bool Speichere();

    Transferanzeige& anzeige;
    Ablage ablage;
};

bool Schreibtransfer::Uebertrage(const Transferparameter& parameter) {
    const Werte werte = HoleWerte(parameter);
    return Versuche(Registertext(parameter.bereich, parameter.adresse), parameter.anzahl, [&] {
        return modModbus::RTUModeH10SchreibenAnforderung(Geraeteadresse(parameter.bereich, parameter.adresse),
                                                         static_cast<std::uint16_t>(parameter.anzahl), werte);
    });
}

bool Schreibtransfer::Speichere() {
    constexpr auto Global = Speicherbereich::GlobaleGeraetedaten;
    anzeige.ZeigeBereich(LadeText(TextSpeichern));
    return Versuche(Registertext(Global, Kommandoregister), 1,
                    [] { return SendeKommando(Kommando::SpeichereKonfiguration); });
}

} // namespace

bool SchreibeKonfiguration(Transferanzeige& anzeige, Ablage ablage) {
    if (!Schreibtransfer(anzeige, ablage).Schreibe())
        return false;
    anzeige.ZeigeEnde(LadeText(TextUebertragungBeendet));
    return true;
}

} // namespace varnoth
