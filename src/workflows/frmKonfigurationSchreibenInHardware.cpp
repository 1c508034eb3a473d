#include "frmKonfigurationSchreibenInHardware.h"

#include "schreibvorgang.h"
#include "transferansicht.h"
#include "ui_frmKonfigurationSchreibenInHardware.h"

namespace varnoth {

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
    return SchreibeKonfiguration(ansicht,
                                 ui->chkSpeichern->isChecked() ? Ablage::Dauerhaft : Ablage::Fluechtig);
}

} // namespace varnoth
