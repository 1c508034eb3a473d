#include "frmResetHardware.h"

#include "ui_frmResetHardware.h"

namespace varnoth {

namespace {

/// Nothing around the label moves when it comes.
void Verbirg(QLabel& label) {
    QSizePolicy platz = label.sizePolicy();
    platz.setRetainSizeWhenHidden(true);
    label.setSizePolicy(platz);
    label.hide();
}

} // namespace

frmResetHardware::frmResetHardware(QWidget* parent)
    : Ablaufdialog(Beginn::AufKnopfdruck, parent), ui(std::make_unique<Ui::frmResetHardware>()) {
    ui->setupUi(this);
    Verbirg(*ui->lblSchreibversuch);
    Verbirg(*ui->lblAnzahlDerVersuche);
    connect(ui->cmdOK, &QPushButton::clicked, this, [this] { FuehreAus(); });
    SetWeiter(True);
    Lade(*ui->cmdCancel);
    ui->cmdOK->setFocus();
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
