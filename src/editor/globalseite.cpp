#include "globalseite.h"

#include "geraetetexte.h"
#include "pnpausgang.h"
#include "pnpspeicherung.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "registerzugriff.h"
#include "ui_globalseite.h"

namespace varnoth {

namespace {

constexpr auto Global = Speicherbereich::GlobaleGeraetedaten;

constexpr std::int16_t Seriennummerregister = 10;
constexpr std::int16_t Datumregister = 4;

Werte LiesGlobal(std::int16_t adresse, std::int16_t anzahl) {
    Werte werte(static_cast<std::size_t>(anzahl));
    modDaten::HoleGlobaleDaten(adresse, anzahl, werte);
    return werte;
}

/// The buttons are numbered as they stand in the form.
void Nummeriere(QButtonGroup& gruppe) {
    for (int i = 0; i < gruppe.buttons().size(); ++i)
        gruppe.setId(gruppe.buttons().at(i), i);
}

} // namespace

Globalseite::Globalseite(QWidget* eltern) : QWidget(eltern), ui(std::make_unique<Ui::Globalseite>()) {
    ui->setupUi(this);
    for (QButtonGroup* const gruppe :
         {ui->optPNPAusgang_Option1, ui->optPNPAusgang_Option2, ui->optAusgangAktive})
        Nummeriere(*gruppe);
}

Globalseite::~Globalseite() = default;

void Globalseite::ZeigeGeraet() {
    const auto zeige = [](QLabel& zeile, const std::string& text) {
        zeile.setText(QString::fromStdString(text));
    };
    zeige(*ui->lblInhaltGerätetyp, Geraetetyptext(LiesRegister(Global, global::Geraetetyp)));
    zeige(*ui->lblInhaltSeriennummer,
          Seriennummertext(LiesGlobal(global::Seriennummer, Seriennummerregister)));
    zeige(*ui->lblInhaltHerstellDatum, Herstelldatumtext(LiesGlobal(global::Herstelldatum, Datumregister)));
    zeige(*ui->lblInhaltHardwareVersion, Versionstext(LiesRegister(Global, global::Hardwareversion)));
    zeige(*ui->lblInhaltSoftwareVersion, Versionstext(LiesRegister(Global, global::Softwareversion)));
}

void Globalseite::Fuelle() {
    ZeigeGeraet();
    const PnpAusgang ausgang = PnpAusgangAus(LiesRegister(Global, global::PnpAusgang));
    ui->optPNPAusgang_Option1->button(ausgang.funktion)->setChecked(true);
    ui->optPNPAusgang_Option2->button(ausgang.optikteil)->setChecked(true);
    ui->optAusgangAktive->button(ausgang.pegel)->setChecked(true);
}

void Globalseite::SchreibeZurueck() const {
    const PnpAusgang ausgang{ui->optPNPAusgang_Option1->checkedId(), ui->optPNPAusgang_Option2->checkedId(),
                             ui->optAusgangAktive->checkedId()};
    SpeicherePnpAusgang(Registerwert(ausgang),
                        [](std::int32_t wert) { return SchreibeRegister(Global, global::PnpAusgang, wert); });
}

} // namespace varnoth
