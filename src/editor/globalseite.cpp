#include "globalseite.h"

#include "geraetetexte.h"
#include "pnpausgang.h"
#include "pnpspeicherung.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "ui_globalseite.h"
#include "vorgabemarken.h"

namespace varnoth {

namespace {

/// The buttons are numbered as they stand in the form.
void Nummeriere(QButtonGroup& gruppe) {
    for (int i = 0; i < gruppe.buttons().size(); ++i)
        gruppe.setId(gruppe.buttons().at(i), i);
}

} // namespace

Globalseite::Globalseite(QWidget* eltern)
    : QWidget(eltern), ui(std::make_unique<Ui::Globalseite>()), marken(new Vorgabemarken(this)) {
    ui->setupUi(this);
    for (QButtonGroup* const gruppe :
         {ui->optPNPAusgang_Option1, ui->optPNPAusgang_Option2, ui->optAusgangAktive})
        Nummeriere(*gruppe);
    BaueMarken();
}

void Globalseite::BaueMarken() {
    const auto vorgabe = [] { return PnpAusgangAus(Vorgabewert({Global, global::PnpAusgang})); };
    marken->Fuege(VorgabeVon(*ui->optPNPAusgang_Option1, [vorgabe] { return vorgabe().funktion; }));
    marken->Fuege(VorgabeVon(*ui->optPNPAusgang_Option2, [vorgabe] { return vorgabe().optikteil; }));
    marken->Fuege(VorgabeVon(*ui->optAusgangAktive, [vorgabe] { return vorgabe().pegel; }));
}

Globalseite::~Globalseite() = default;

void Globalseite::ZeigeGeraet() {
    const auto zeige = [](QLabel& zeile, const std::string& text) {
        zeile.setText(QString::fromStdString(text));
    };
    zeige(*ui->lblInhaltGerätetyp, Geraetetyptext(modDaten::HoleRegister(Global, global::Geraetetyp)));
    zeige(*ui->lblInhaltSeriennummer,
          Seriennummertext(modDaten::HoleParameter(Global, global::Seriennummer)));
    zeige(*ui->lblInhaltHerstellDatum,
          Herstelldatumtext(modDaten::HoleParameter(Global, global::Herstelldatum)));
    zeige(*ui->lblInhaltHardwareVersion,
          Versionstext(modDaten::HoleRegister(Global, global::Hardwareversion)));
    zeige(*ui->lblInhaltSoftwareVersion,
          Versionstext(modDaten::HoleRegister(Global, global::Softwareversion)));
}

void Globalseite::Fuelle() {
    ZeigeGeraet();
    const PnpAusgang ausgang = PnpAusgangAus(modDaten::HoleRegister(Global, global::PnpAusgang));
    ui->optPNPAusgang_Option1->button(ausgang.funktion)->setChecked(true);
    ui->optPNPAusgang_Option2->button(ausgang.optikteil)->setChecked(true);
    ui->optAusgangAktive->button(ausgang.pegel)->setChecked(true);
    marken->Aktualisiere();
}

void Globalseite::SchreibeZurueck() const {
    const PnpAusgang ausgang{ui->optPNPAusgang_Option1->checkedId(), ui->optPNPAusgang_Option2->checkedId(),
                             ui->optAusgangAktive->checkedId()};
    SpeicherePnpAusgang(Registerwert(ausgang), [](std::int32_t wert) {
        return modDaten::SetzeRegister(Global, global::PnpAusgang, wert);
    });
}

} // namespace varnoth
