#include "frmKeinKonturAngeschlossen.h"

#include "letzterdatensatz.h"
#include "lokalisiereform.h"
#include "tipptext.h"
#include "ui_frmKeinKonturAngeschlossen.h"

#include <QFileInfo>

namespace varnoth {

namespace {

constexpr Strahlentexte Texte{.anzahlDerOptikteile = 7709, .strahlenanzahlL1 = 7703, .zuVieleStrahlen = 7710};

constexpr int Dateinamenbreite = 50; // characters

} // namespace

frmKeinKonturAngeschlossen::frmKeinKonturAngeschlossen(QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmKeinKonturAngeschlossen>()) {
    ui->setupUi(this);
    ui->strahlen->SetzeTexte(Texte);
    LokalisiereForm(*this);
    connect(ui->optStrahlenanzahl, &QRadioButton::toggled, ui->strahlen, &QWidget::setEnabled);
    connect(ui->cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    BieteLetztenDatensatzAn();
}

frmKeinKonturAngeschlossen::~frmKeinKonturAngeschlossen() = default;

/// The last data set is the choice at first where there is one, otherwise the beam counts are.
void frmKeinKonturAngeschlossen::BieteLetztenDatensatzAn() {
    const QString pfad = QString::fromStdString(LetzterDatensatz());
    const bool vorhanden = !pfad.isEmpty();
    const QFontMetrics schrift = ui->lblDatensatz->fontMetrics();
    ui->lblDatensatz->setText(schrift.elidedText(QFileInfo(pfad).fileName(), Qt::ElideMiddle,
                                                 Dateinamenbreite * schrift.averageCharWidth()));
    ui->lblDatensatz->setToolTip(AlsTipp(pfad));
    ui->lblDatensatz->setVisible(vorhanden);
    ui->optLadeletztenKonfigurationsdatensatz->setEnabled(vorhanden);
    QRadioButton& wahl = vorhanden ? *ui->optLadeletztenKonfigurationsdatensatz : *ui->optStrahlenanzahl;
    wahl.setChecked(true);
    wahl.setFocus();
}

void frmKeinKonturAngeschlossen::ZeigeUrsache(const Verbindungsauskunft& auskunft) {
    ui->lblUrsache->setText(QString::fromStdString(auskunft.ursache));
    ui->lblUrsache->setToolTip(AlsTipp(QString::fromStdString(auskunft.einzelheiten)));
    ui->lblUrsache->setVisible(!auskunft.ursache.empty());
}

frmKeinKonturAngeschlossen::Wahl frmKeinKonturAngeschlossen::GetWahl() const {
    if (result() != Accepted)
        return Wahl::Abgebrochen;
    if (ui->optLadeletztenKonfigurationsdatensatz->isChecked())
        return Wahl::LetzterDatensatz;
    return ui->optKonfigurationöffnen->isChecked() ? Wahl::DateiOeffnen : Wahl::Strahlenanzahl;
}

void frmKeinKonturAngeschlossen::cmdOK_Click() {
    if (!ui->optStrahlenanzahl->isChecked() || ui->strahlen->Uebernimm())
        accept();
}

} // namespace varnoth
