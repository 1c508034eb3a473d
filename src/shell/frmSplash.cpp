#include "frmSplash.h"

#include "lokalisiereform.h"
#include "programmsymbol.h"
#include "ui_frmSplash.h"
#include "versionstext.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

namespace varnoth {

frmSplash::frmSplash() : QWidget(nullptr, Qt::SplashScreen), ui(std::make_unique<Ui::frmSplash>()) {
    ui->setupUi(this);
    LokalisiereForm(*this);
    ui->lblProduktText->setText(Produktzeile());
    ui->lblEigentuemerText->setText(Eigentuemerzeile());
    ui->Image1->setPixmap(Programmsymbol().pixmap(QSize(72, 72)));
    adjustSize();
    const QRect schirm = QGuiApplication::primaryScreen()->geometry();
    move(schirm.left() + (schirm.width() - width()) / 2, schirm.top() + (schirm.height() - height()) / 2);
}

frmSplash::~frmSplash() = default;

} // namespace varnoth
