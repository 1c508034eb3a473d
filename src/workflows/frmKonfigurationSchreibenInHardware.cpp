#include "frmKonfigurationSchreibenInHardware.h"

#include "schreibvorgang.h"
#include "textmitwerten.h"
#include "transferansicht.h"
#include "ui_frmKonfigurationSchreibenInHardware.h"
#include "umgebung.h"

#include <QTime>

namespace varnoth {

namespace {

constexpr std::int16_t TextGespeichert = 9170;
constexpr std::int16_t TextNichtGespeichert = 9171;

/// The status bar says what was written, and when: the dialog closes by itself.
void MeldeErfolg(Ablage ablage) {
    const std::string wann = QTime::currentTime().toString(QStringLiteral("hh:mm")).toStdString();
    DieUmgebung().ZeigeStatustext(
        FeldMeldungen, LadeTextMit(ablage == Ablage::Dauerhaft ? TextGespeichert : TextNichtGespeichert,
                                   {wann, std::to_string(AnzahlSchreibbarerRegister())}));
}

} // namespace

frmKonfigurationSchreibenInHardware::frmKonfigurationSchreibenInHardware(QWidget* parent)
    : Ablaufdialog(Beginn::AufKnopfdruck, parent),
      ui(std::make_unique<Ui::frmKonfigurationSchreibenInHardware>()) {
    ui->setupUi(this);
    connect(ui->cmdStart, &QPushButton::clicked, this, [this] { FuehreAus(); });
    SetWeiter(True);
    Lade(*ui->cmdCancel);
}

frmKonfigurationSchreibenInHardware::~frmKonfigurationSchreibenInHardware() = default;

bool frmKonfigurationSchreibenInHardware::Ablauf() {
    ui->cmdCancel->setFocus();
    ui->cmdStart->setEnabled(false);
    ui->chkSpeichern->setEnabled(false);
    Transferansicht ansicht(*this, {ui->txtSpeicherbereich, ui->txtAktuellesRegister, ui->txtRegisteranzahl,
                                    ui->txtSchreibversuch, ui->pbFortschritt});
    const Ablage ablage = ui->chkSpeichern->isChecked() ? Ablage::Dauerhaft : Ablage::Fluechtig;
    if (!SchreibeKonfiguration(ansicht, ablage))
        return false;
    MeldeErfolg(ablage);
    return true;
}

} // namespace varnoth
