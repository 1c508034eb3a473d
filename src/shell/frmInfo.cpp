#include "frmInfo.h"

#include "lokalisiereform.h"
#include "programmsymbol.h"
#include "supporttext.h"
#include "ui_frmInfo.h"
#include "versionstext.h"

#include <QClipboard>
#include <QGuiApplication>

namespace varnoth {

frmInfo::frmInfo(QWidget* besitzer, const QString& einstellungsdatei)
    : QDialog(besitzer), ui(std::make_unique<Ui::frmInfo>()) {
    ui->setupUi(this);
    LokalisiereForm(*this);
    ui->Label1->setText(Produktzeile());
    ui->Label2->setText(Eigentuemerzeile());
    ui->lblQt->setText(Qtzeile());
    ui->lblCompiler->setText(Compilerzeile());
    ui->Image1->setPixmap(Programmsymbol().pixmap(QSize(72, 72)));
    QSizePolicy platz = ui->lblKopiert->sizePolicy();
    platz.setRetainSizeWhenHidden(true);
    ui->lblKopiert->setSizePolicy(platz);
    ui->lblKopiert->hide();
    connect(ui->Command1, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui->cmdKopieren, &QPushButton::clicked, this,
            [this, einstellungsdatei] { Kopiere(einstellungsdatei); });
}

frmInfo::~frmInfo() = default;

void frmInfo::Kopiere(const QString& einstellungsdatei) {
    QGuiApplication::clipboard()->setText(Supporttext(einstellungsdatei));
    ui->lblKopiert->show();
}

} // namespace varnoth
