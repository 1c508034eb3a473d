#include "frmKonfigurationLesenAusHardware.h"

#include "lesevorgang.h"
#include "transferansicht.h"
#include "ui_frmKonfigurationLesenAusHardware.h"

namespace varnoth {

frmKonfigurationLesenAusHardware::frmKonfigurationLesenAusHardware(QWidget* parent, Geraeteabzug* wohin)
    : Ablaufdialog(Beginn::BeimZeigen, parent), ui(std::make_unique<Ui::frmKonfigurationLesenAusHardware>()),
      abzug(wohin) {
    ui->setupUi(this);
    connect(ui->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    Lade(*ui->cmdCancel);
}

frmKonfigurationLesenAusHardware::~frmKonfigurationLesenAusHardware() = default;

bool frmKonfigurationLesenAusHardware::Ablauf() {
    Transferansicht ansicht(*this, {ui->txtSpeicherbereich, ui->txtAktuellesRegister, ui->txtRegisteranzahl,
                                    ui->txtLeseversuch, ui->pbFortschritt});
    if (!(abzug != nullptr ? LiesGeraeteabzug(ansicht, *abzug) : LiesKonfiguration(ansicht)))
        return false;
    ui->cmdOK->setEnabled(true);
    ui->cmdCancel->setEnabled(false);
    ui->cmdOK->setFocus();
    return true;
}

} // namespace varnoth
