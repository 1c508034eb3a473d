#include "lesevorgang.h"

#include "geraetestand.h"
#include "nachlese.h"
#include "plausibilitaet.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "registertext.h"
#include "seriennummer.h"
#include "texte.h"

#include <functional>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextGlobaleGeraetedaten = 7005;
constexpr std::int16_t TextUebertragungBeendet = 7009;

class Lesetransfer : public Konfigurationstransfer {
public:
    /// Where the values of a parameter go.
    using Ablage = std::function<void(const Transferparameter& parameter, const Werte& werte)>;

    Lesetransfer(Transferanzeige& transferanzeige, Ablage wohin)
        : Konfigurationstransfer(transferanzeige, IstLesbar), ablage(std::move(wohin)) {}

private:
    std::int16_t ErsterBereichstext() const override { return TextGlobaleGeraetedaten; }
    Boolean Tausche(const Transferparameter& parameter, Werte& werte) override {
        return LiesParameter(parameter, werte);
    }
    void Uebernimm(const Transferparameter& parameter, const Werte& werte) override {
        ablage(parameter, werte);
    }

    Ablage ablage;
};

/// Nothing follows that would show its end right. So what no other parameter is as long as comes last: its
/// reply cannot be another's.
class Abzugstransfer : public Lesetransfer {
public:
    Abzugstransfer(Transferanzeige& transferanzeige, Ablage wohin)
        : Lesetransfer(transferanzeige, std::move(wohin)) {
        VerlangeGewissheit();
    }

private:
    bool KommtZuletzt(const Transferparameter& parameter) const override {
        return parameter.bereich == Speicherbereich::GlobaleGeraetedaten &&
               (parameter.adresse == global::Seriennummer || parameter.adresse == global::Herstelldatum);
    }
};

} // namespace

bool LiesKonfiguration(Transferanzeige& anzeige) {
    Lesetransfer transfer(anzeige, SpeichereParameter);
    if (!transfer.UebertrageAlles())
        return false;
    modNachlese::Merke(transfer.Offene(), transfer.LetzterAustausch());
    anzeige.ZeigeEnde(LadeText(TextUebertragungBeendet));
    modDaten::KorrigiereStrahlenzahlen();
    modGeraetestand::MerkeGelesen(modDaten::DasAbbild(), GeraeteSeriennummer());
    return true;
}

bool LiesGeraeteabzug(Transferanzeige& anzeige, Geraeteabzug& abzug) {
    const auto inDenAbzug = [&](const Transferparameter& parameter, const Werte& werte) {
        abzug.ungelesen.erase({parameter.bereich, parameter.adresse, parameter.optikteil});
        // Its length is the description's, so there is room for it.
        static_cast<void>(
            abzug.abbild.SetzeParameter(parameter.bereich, parameter.adresse, werte, parameter.optikteil));
    };
    Abzugstransfer transfer(anzeige, inDenAbzug);
    const bool vollstaendig = transfer.UebertrageAlles();
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
