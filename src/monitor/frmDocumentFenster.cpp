// The optical part view as a window: its place, its least size, how its parts share the room.

#include "frmDocument.h"

#include "strahlposition.h"
#include "ui_frmDocument.h"

#include "fensterplatz.h"
#include "wertfeld.h"
#include "ziffern.h"

#include <QCloseEvent>
#include <QFontInfo>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>

#include <algorithm>

namespace varnoth {

namespace {

constexpr int MindestBreiteTwips = 3400;
constexpr int MindestHoeheTwips = 3440;
constexpr int BreitesteZahl = 65535;
constexpr int Rundung = 2; // pixels that a label may want beyond its text
constexpr int BreitesterStrahl = 511;
constexpr int BreitesterAbstand = 40;
constexpr double SchmalUnter = 2.4;
constexpr QMargins Statusrand(6, 3, 6, 3);
constexpr int Statusabstand = 6;

QSize Mindestgroesse() {
    return {(MindestBreiteTwips + TwipsAusPixel(1) - 1) / TwipsAusPixel(1),
            (MindestHoeheTwips + TwipsAusPixel(1) - 1) / TwipsAusPixel(1)};
}

} // namespace

void frmDocument::InitForm() {
    StelleFensterHer(*this, Abschnitt());
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
    if (warSichtbar)
        BewahreFensterplatz(*this, Abschnitt());
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
    PasseZiffernAn();
    PasseBreiteAn();
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

// Values are read from some way off: as large as the view allows, and as wide as the widest number so that
// nothing moves when they change.
void frmDocument::PasseZiffernAn() {
    const int schrift = QFontInfo(font()).pixelSize();
    const int abstandMm = ui->BeamBar1->Strahlabstand();
    const bool mitPosition = abstandMm > 0 && HatPlatzFuerPositionen(width(), schrift);
    const int anderes = 3 * ui->Option1_0->sizeHint().height() + 4 * fontMetrics().height();
    const int ziffern =
        Zifferngroesse({schrift, height() - ui->sbStatusBar->height() - anderes, width(), mitPosition});
    QFont gross = font();
    gross.setPixelSize(ziffern);
    QFont klein = font();
    klein.setPixelSize(Beschriftungsgroesse(ziffern, schrift));
    const int zahlbreite = QFontMetrics(gross).horizontalAdvance(QString::number(BreitesteZahl)) + Rundung;
    const int hoechste = std::max(0, ui->BeamBar1->Strahlanzahl() - 1) * abstandMm;
    const int positionsbreite =
        QFontMetrics(klein).horizontalAdvance(QString::fromStdString(Positionstext(hoechste)));
    for (QLabel* element : ui->Frame1->findChildren<QLabel*>())
        element->setFont(klein);
    for (Wertfeld* feld : ui->Frame1->findChildren<Wertfeld*>())
        feld->SetzeZiffern(gross, zahlbreite);
    for (Zahlfeld* position : positionen) {
        if (position == nullptr)
            continue;
        position->setVisible(mitPosition);
        position->setFixedSize(positionsbreite, Zeilenhoehe(klein));
    }
}

// The values grow with the view and shrink with it.
QSize frmDocument::minimumSizeHint() const {
    return QWidget::minimumSizeHint().boundedTo(Mindestgroesse());
}

// The values take the width they need and no more; the beams get the rest.
void frmDocument::PasseBreiteAn() {
    ui->Frame1->layout()->activate(); // what it needs is known to its grid only then
    const int rollbalken = ui->Rollbereich->verticalScrollBar()->sizeHint().width();
    ui->Rollbereich->setFixedWidth(ui->Frame1->minimumSizeHint().width() + rollbalken);
    const QString strahl = QString::fromStdString(Strahltext(BreitesterStrahl, BreitesterAbstand));
    ui->sbStatusBar_2->setMinimumWidth(fontMetrics().horizontalAdvance(strahl));
    OrdneStatuszeile();
}

// The panels of the status bar stand side by side, in a narrow view one above the other; the bar is as high
// as the status text needs. No layout does this: it would lay out the whole view for every new text.
void frmDocument::OrdneStatuszeile() {
    QLabel& status = *ui->sbStatusBar_1;
    QLabel& strahl = *ui->sbStatusBar_2;
    const int strahlbreite = strahl.minimumWidth();
    const bool schmal = width() < SchmalUnter * strahlbreite;
    const int zeile = fontMetrics().height();
    const int breite = width() - Statusrand.left() - Statusrand.right();
    const int platz = std::max(1, schmal ? breite : breite - strahlbreite - Statusabstand);
    const int hoehe = std::max(zeile, status.heightForWidth(platz));
    status.setGeometry(Statusrand.left(), Statusrand.top(), platz, hoehe);
    strahl.setAlignment((schmal ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    if (schmal)
        strahl.setGeometry(Statusrand.left(), Statusrand.top() + hoehe + Statusabstand, breite, zeile);
    else
        strahl.setGeometry(Statusrand.left() + breite - strahlbreite, Statusrand.top(), strahlbreite, hoehe);
    ui->sbStatusBar->setFixedHeight(Statusrand.top() + hoehe + (schmal ? Statusabstand + zeile : 0) +
                                    Statusrand.bottom());
}

} // namespace varnoth
