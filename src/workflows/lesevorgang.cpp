#include "lesevorgang.h"

#include "geraetestand.h"
#include "plausibilitaet.h"
#include "registerabbild.h"
#include "registertext.h"
#include "seriennummer.h"
#include "texte.h"
#include "transaktionen.h"

#include <functional>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextGlobaleGeraetedaten = 7005;
constexpr std::int16_t TextUebertragungBeendet = 7009;

class Lesetransfer : public Konfigurationstransfer {
public:
    /// Where the values of a parameter go; false when they are refused.
    using Ablage = std::function<bool(const Transferparameter& parameter, const Werte& werte)>;

    Lesetransfer(Transferanzeige& transferanzeige, Ablage wohin)
        : Konfigurationstransfer(transferanzeige, IstLesbar), ablage(std::move(wohin)) {}

private:
    std::int16_t ErsterBereichstext() const override { return TextGlobaleGeraetedaten; }
    bool Uebertrage(const Transferparameter& parameter) override;

    Ablage ablage;
};

bool Lesetransfer::Uebertrage(const Transferparameter& parameter) {
    Werte werte(static_cast<std::size_t>(parameter.anzahl));
    const bool gelesen = Versuche(Registertext(parameter.bereich, parameter.adresse), parameter.anzahl, [&] {
        return modModbus::RTUModeH03LeseAnforderung(Geraeteadresse(parameter.bereich, parameter.adresse),
                                                    static_cast<std::uint16_t>(parameter.anzahl), werte);
    });
    return gelesen && ablage(parameter, werte);
}

} // namespace

bool LiesKonfiguration(Transferanzeige& anzeige) {
    const auto insAbbild = [](const Transferparameter& parameter, const Werte& werte) {
        return modDaten::SetzeParameter(parameter.bereich, parameter.adresse, werte, parameter.optikteil);
    };
    if (!Lesetransfer(anzeige, insAbbild).UebertrageAlles())
        return false;
    anzeige.ZeigeEnde(LadeText(TextUebertragungBeendet));
    modDaten::KorrigiereStrahlenzahlen();
    modGeraetestand::MerkeGelesen(modDaten::DasAbbild(), GeraeteSeriennummer());
    return true;
}

bool LiesGeraeteabzug(Transferanzeige& anzeige, Geraeteabzug& abzug) {
    const auto inDenAbzug = [&](const Transferparameter& parameter, const Werte& werte) {
        abzug.ungelesen.erase({parameter.bereich, parameter.adresse, parameter.optikteil});
        return abzug.abbild.SetzeParameter(parameter.bereich, parameter.adresse, werte, parameter.optikteil);
    };
    const bool vollstaendig = Lesetransfer(anzeige, inDenAbzug).UebertrageAlles();
    KorrigiereStrahlenzahlen(abzug.abbild);
    if (vollstaendig)
        anzeige.ZeigeEnde(LadeText(TextUebertragungBeendet));
    return vollstaendig;
}

bool AutosendWaehlbar(std::int32_t register74) {
    const std::int32_t art = register74 & 0x7F;
    return art == 1 || art == 3;
}

} // namespace varnoth
