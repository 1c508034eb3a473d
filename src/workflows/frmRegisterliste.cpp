#include "frmRegisterliste.h"

#include "lokalisiereform.h"
#include "spaltenbreite.h"
#include "tipptext.h"
#include "ui_frmRegisterliste.h"
#include "zeilenhoehe.h"

namespace varnoth {

namespace {

constexpr int SpalteLinks = 2;
constexpr int SpalteRechts = 3;
constexpr int BreitesteSpalte = 30; // average characters

QTreeWidgetItem* Eintrag(const Registerzeile& zeile) {
    auto* const eintrag = new QTreeWidgetItem;
    int spalte = 0;
    for (const std::string& text : {zeile.bereich, zeile.name, zeile.links, zeile.rechts, zeile.ort}) {
        eintrag->setText(spalte, QString::fromStdString(text));
        eintrag->setToolTip(spalte, AlsTipp(QString::fromStdString(text)));
        ++spalte;
    }
    return eintrag;
}

} // namespace

frmRegisterliste::frmRegisterliste(const Registerbefund& befund, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmRegisterliste>()) {
    ui->setupUi(this);
    GibZeilenLuft(*ui->lstRegister);
    LokalisiereForm(*this);
    Fuelle(befund);
    connect(ui->cmdWeiter, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui->cmdSchliessen, &QPushButton::clicked, this, &QDialog::reject);
    ui->cmdSchliessen->setFocus();
}

frmRegisterliste::~frmRegisterliste() = default;

void frmRegisterliste::Fuelle(const Registerbefund& befund) {
    setWindowTitle(QString::fromStdString(befund.titel));
    ui->lblBefund->setText(QString::fromStdString(befund.text));
    ui->lstRegister->headerItem()->setText(SpalteLinks, QString::fromStdString(befund.links));
    ui->lstRegister->headerItem()->setText(SpalteRechts, QString::fromStdString(befund.rechts));
    for (const Registerzeile& zeile : befund.zeilen)
        ui->lstRegister->addTopLevelItem(Eintrag(zeile));
    PasseSpaltenAn(*ui->lstRegister, BreitesteSpalte);
    ui->lstRegister->setVisible(!befund.zeilen.empty());
    ui->cmdWeiter->setText(QString::fromStdString(befund.weiter));
    ui->cmdWeiter->setVisible(!befund.weiter.empty());
}

} // namespace varnoth
