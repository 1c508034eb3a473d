#include "frmStrahlenBestimmen.h"

#include "lokalisiereform.h"
#include "ui_frmStrahlenBestimmen.h"

namespace varnoth {

namespace {
constexpr Strahlentexte Texte{.anzahlDerOptikteile = 7807, .strahlenanzahlL1 = 7803, .zuVieleStrahlen = 7810};
}

frmStrahlenBestimmen::frmStrahlenBestimmen(QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmStrahlenBestimmen>()) {
    ui->setupUi(this);
    ui->strahlen->SetzeTexte(Texte);
    ui->strahlen->NimmFokus();
    LokalisiereForm(*this);
    connect(ui->cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmStrahlenBestimmen::~frmStrahlenBestimmen() = default;

void frmStrahlenBestimmen::cmdOK_Click() {
    if (ui->strahlen->Uebernimm())
        accept();
}

} // namespace varnoth
