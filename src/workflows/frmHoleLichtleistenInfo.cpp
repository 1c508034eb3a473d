#include "frmHoleLichtleistenInfo.h"

#include "feldtext.h"
#include "ui_frmHoleLichtleistenInfo.h"

namespace varnoth {

namespace {
constexpr int Zeilenbreite = 52; // characters
}

frmHoleLichtleistenInfo::frmHoleLichtleistenInfo(QWidget* parent)
    : Ablaufdialog(Beginn::BeimZeigen, parent), ui(std::make_unique<Ui::frmHoleLichtleistenInfo>()) {
    ui->setupUi(this);
    lblLichtleiste = {ui->lblLichtleiste_0, ui->lblLichtleiste_1, ui->lblLichtleiste_2, ui->lblLichtleiste_3};
    for (QLabel* const zeile : lblLichtleiste)
        BietePlatz(*zeile, Zeilenbreite);
    connect(ui->cmdWeiter, &QPushButton::clicked, this, &QDialog::accept);
    Lade(*ui->cmdCancel);
}

frmHoleLichtleistenInfo::~frmHoleLichtleistenInfo() = default;

bool frmHoleLichtleistenInfo::Ablauf() {
    if (!HoleOptikteilInformation(*this))
        return false;
    ui->cmdWeiter->setEnabled(true);
    ui->cmdWeiter->setFocus();
    return true;
}

void frmHoleLichtleistenInfo::ZeigeOptikteil(int optikteil, const std::string& text) {
    lblLichtleiste.at(static_cast<std::size_t>(optikteil))->setText(QString::fromStdString(text));
}

void frmHoleLichtleistenInfo::ZeigeFortschritt(int erledigt, int gesamt) {
    ui->pbFortschritt->setMaximum(gesamt);
    ZeigeStand(*ui->pbFortschritt, erledigt);
}

} // namespace varnoth
