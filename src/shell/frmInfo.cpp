#include "frmInfo.h"

#include "lokalisiereform.h"
#include "programmsymbol.h"
#include "ui_frmInfo.h"
#include "versionstext.h"

namespace varnoth {

frmInfo::frmInfo(QWidget* besitzer) : QDialog(besitzer), ui(std::make_unique<Ui::frmInfo>()) {
    ui->setupUi(this);
    LokalisiereForm(*this);
    ui->Label1->setText(Produktzeile());
    ui->Label2->setText(Eigentuemerzeile());
    ui->Image1->setPixmap(Programmsymbol().pixmap(QSize(72, 72)));
    connect(ui->Command1, &QPushButton::clicked, this, &QDialog::accept);
}

frmInfo::~frmInfo() = default;

} // namespace varnoth
