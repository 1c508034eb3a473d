// The optical part view as a window: its place, its least size, how its parts share the room.

#include "frmDocument.h"

#include "ui_frmDocument.h"

#include "einstellungen.h"
#include "fensterplatz.h"

#include <QCloseEvent>
#include <QFontInfo>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRegularExpression>
#include <QScrollBar>

#include <algorithm>

namespace varnoth {

namespace {

constexpr int MindestBreiteTwips = 3400;
constexpr int MindestHoeheTwips = 3440;
constexpr double Ziffernvergroesserung = 1.35;
constexpr int BreitesteZahl = 65535;
constexpr int BreitesterStrahl = 511;
constexpr int BreitesterAbstand = 40;
constexpr double SchmalUnter = 2.4;

QSize Mindestgroesse() {
    return {(MindestBreiteTwips + TwipsAusPixel(1) - 1) / TwipsAusPixel(1),
            (MindestHoeheTwips + TwipsAusPixel(1) - 1) / TwipsAusPixel(1)};
}

} // namespace

void frmDocument::InitForm() {
    Fensterplatz standard;
    standard.zustand = ZustandNichtGespeichert;
    const Fensterplatz platz = LiesFensterplatz(DieEinstellungen(), Abschnitt(), standard);
    if (platz.zustand != ZustandNichtGespeichert)
        WendeAn(platz, *this);
}

void frmDocument::Zeige() {
    show();
    auto* rahmen = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (!rahmen)
        return;
    if (rahmen->isMinimized())
        rahmen->showNormal();
    rahmen->show();
    rahmen->mdiArea()->setActiveSubWindow(rahmen);
}

void frmDocument::SpeicherePlatz() const {
    const auto platz = PlatzVon(*this);
    if (warSichtbar && platz)
        SchreibFensterplatz(DieEinstellungen(), Abschnitt(), *platz);
}

bool frmDocument::ZeigtLiveDaten() const {
    for (const QWidget* fenster = this; fenster; fenster = fenster->parentWidget())
        if (fenster->isMinimized())
            return false;
    return isVisible();
}

void frmDocument::changeEvent(QEvent* ereignis) {
    QWidget::changeEvent(ereignis);
    if (ereignis->type() == QEvent::FontChange || ereignis->type() == QEvent::StyleChange) {
        PasseZiffernAn();
        PasseBreiteAn();
    }
    if (ereignis->type() == QEvent::PaletteChange)
        FaerbeTexte();
}

void frmDocument::closeEvent(QCloseEvent* ereignis) {
    SpeicherePlatz();
    ereignis->accept();
    emit Geschlossen();
}

void frmDocument::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    OrdneStatuszeile();
}

void frmDocument::showEvent(QShowEvent* ereignis) {
    QWidget::showEvent(ereignis);
    warSichtbar = true;
    VerfolgePlatz(*this);
    if (auto* rahmen = qobject_cast<QMdiSubWindow*>(parentWidget()))
        rahmen->setMinimumSize(Mindestgroesse());
    PasseBreiteAn();
}

std::string frmDocument::Abschnitt() const {
    return std::to_string(optikteil) + "Form";
}

// Values are read from some way off: larger than the rest, and as wide as the widest number so that nothing
// moves when they change.
void frmDocument::PasseZiffernAn() {
    QFont ziffern = font();
    ziffern.setPointSizeF(QFontInfo(font()).pointSizeF() * Ziffernvergroesserung);
    const int breite = QFontMetrics(ziffern).horizontalAdvance(QString::number(BreitesteZahl));
    for (QLabel* feld : ui->Frame1->findChildren<QLabel*>(QRegularExpression("^lblInhalt"))) {
        feld->setFont(ziffern);
        feld->setMinimumWidth(breite);
    }
}

// The values take the width they need and no more; the beams get the rest.
void frmDocument::PasseBreiteAn() {
    const int rollbalken = ui->Rollbereich->verticalScrollBar()->sizeHint().width();
    ui->Rollbereich->setFixedWidth(ui->Frame1->minimumSizeHint().width() + rollbalken);
    const QString strahl = QString::fromStdString(Strahltext(BreitesterStrahl, BreitesterAbstand));
    ui->sbStatusBar_2->setMinimumWidth(fontMetrics().horizontalAdvance(strahl));
    OrdneStatuszeile();
}

// The panels of the status bar stand side by side, in a narrow view one above the other; the bar is as high
// as the status text needs.
void frmDocument::OrdneStatuszeile() {
    QLabel& status = *ui->sbStatusBar_1;
    QLabel& strahl = *ui->sbStatusBar_2;
    const bool schmal = width() < SchmalUnter * strahl.minimumWidth();
    const QMargins rand = ui->Felder->contentsMargins();
    const int abstand = ui->Felder->spacing();
    const int zeile = fontMetrics().height();
    const int platz = width() - rand.left() - rand.right() - (schmal ? 0 : strahl.minimumWidth() + abstand);
    const int hoehe = std::max(zeile, status.heightForWidth(std::max(1, platz)));
    ui->Felder->setDirection(schmal ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    strahl.setAlignment((schmal ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    ui->sbStatusBar->setFixedHeight(rand.top() + hoehe + (schmal ? abstand + zeile : 0) + rand.bottom());
}

} // namespace varnoth
