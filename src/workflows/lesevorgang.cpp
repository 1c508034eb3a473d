#include "lesevorgang.h"

#include "plausibilitaet.h"
#include "registerabbild.h"
#include "texte.h"
#include "transaktionen.h"

namespace varnoth {

namespace {

using namespace modDaten;

constexpr std::int16_t TextGlobaleGeraetedaten = 7005;
constexpr std::int16_t TextUebertragungBeendet = 7009;

class Lesetransfer : public Konfigurationstransfer {
public:
    explicit Lesetransfer(Transferanzeige& transferanzeige)
        : Konfigurationstransfer(transferanzeige, IstLesbar) {}

private:
    std::int16_t ErsterBereichstext() const override { return TextGlobaleGeraetedaten; }
    bool Uebertrage(const Transferparameter& parameter) override;
};

bool Lesetransfer::Uebertrage(const Transferparameter& parameter) {
    Werte werte(static_cast<std::size_t>(parameter.anzahl));
    const bool gelesen = Versuche(Registertext(parameter.bereich, parameter.adresse), parameter.anzahl, [&] {
        return modModbus::RTUModeH03LeseAnforderung(Geraeteadresse(parameter.bereich, parameter.adresse),
                                                    static_cast<std::uint16_t>(parameter.anzahl), werte);
    });
    return gelesen && SetzeParameter(parameter.bereich, parameter.adresse, werte, parameter.optikteil);
}

} // namespace

bool LiesKonfiguration(Transferanzeige& anzeige) {
    if (!Lesetransfer(anzeige).UebertrageAlles())
        return false;
    anzeige.ZeigeEnde(LadeText(TextUebertragungBeendet));
    modDaten::KorrigiereStrahlenzahlen();
    return true;
}

bool AutosendWaehlbar(std::int32_t register74) {
    const std::int32_t art = register74 & 0x7F;
    return art == 1 || art == 3;
}

} // namespace varnoth
