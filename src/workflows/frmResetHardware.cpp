#include "frmResetHardware.h"

#include "feldtext.h"
#include "ui_frmResetHardware.h"

namespace varnoth {

frmResetHardware::frmResetHardware(QWidget* parent)
    : Ablaufdialog(Beginn::AufKnopfdruck, parent), ui(std::make_unique<Ui::frmResetHardware>()) {
    ui->setupUi(this);
    for (QLabel* const label : {ui->lblSchreibversuch, ui->lblAnzahlDerVersuche}) {
        BehaltePlatz(*label);
        label->hide();
    }
    connect(ui->cmdOK, &QPushButton::clicked, this, [this] { FuehreAus(); });
    SetWeiter(True);
    Lade(*ui->cmdCancel);
}

frmResetHardware::~frmResetHardware() = default;

bool frmResetHardware::Ablauf() {
    ui->cmdCancel->setFocus();
    ui->cmdOK->setEnabled(false);
    return SetzeHardwareZurueck(*this);
}

void frmResetHardware::ZeigeWiederholung(int versuch) {
    ui->lblAnzahlDerVersuche->setText(QString::number(versuch));
    ui->lblAnzahlDerVersuche->show();
    ui->lblSchreibversuch->show();
}

} // namespace varnoth
