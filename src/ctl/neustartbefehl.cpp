// The command that has the controller start anew.

#include "auftraege.h"
#include "hardwarereset.h"
#include "lauf.h"
#include "leitungszugang.h"
#include "texte.h"

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextFrage = 7903;
constexpr std::int16_t TextNeuGestartet = 8633;

class Neustart : public Resetanzeige {
public:
    explicit Neustart(Geduld& dieGeduld) : geduld(dieGeduld) {}
    void ZeigeWiederholung(int /*versuch*/) override {}
    bool Abgebrochen() override { return geduld.IstAmEnde(); }

private:
    Geduld& geduld;
};

} // namespace

Ende Reset(Lauf& lauf) {
    if (const Ende ende = lauf.KannErlaubnisBekommen(); ende != Ende::Erledigt)
        return ende;
    Leitungszugang zugang(lauf);
    if (const Ende ende = zugang.Verbinde(); ende != Ende::Erledigt)
        return ende;
    if (const Ende ende = lauf.Erlaubnis(LadeText(TextFrage)); ende != Ende::Erledigt)
        return ende;
    Geduld geduld(lauf);
    Neustart anzeige(geduld);
    if (!SetzeHardwareZurueck(anzeige))
        return zugang.EndeNachAbbruch();
    lauf.Gib(LadeText(TextNeuGestartet), {{"controller", GeraetAlsJson()}, {"restarted", true}});
    return Ende::Erledigt;
}

} // namespace varnoth::ctl
