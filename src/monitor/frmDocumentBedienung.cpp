// What the user can do with the optical part view besides choosing its values.

#include "frmDocument.h"

#include "ui_frmDocument.h"

#include "texte.h"
#include "wertetext.h"
#include "wertfeld.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDateTime>
#include <QGuiApplication>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMouseEvent>

#include <vector>

namespace varnoth {

namespace {

constexpr std::int16_t TextKeineWerte = 9000;
constexpr std::int16_t TextLetzterWert = 9003;
constexpr std::int16_t TextWerteKopieren = 9030;
constexpr std::int16_t TextBildKopieren = 9031;
constexpr std::int16_t TextAlleStrahlen = 9032;
constexpr std::int16_t TextGrossanzeige = 9033;

QAction* FuegeHinzu(QMenu& menue, const char* name, std::int16_t textId) {
    QAction* aktion = menue.addAction(QString::fromStdString(LadeText(textId)));
    aktion->setObjectName(QLatin1String(name));
    return aktion;
}

} // namespace

bool frmDocument::IstGrossanzeige() const {
    const auto* rahmen = qobject_cast<QMdiSubWindow*>(parentWidget());
    return rahmen != nullptr && rahmen->isMaximized();
}

void frmDocument::SchalteGrossanzeige() {
    auto* rahmen = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (rahmen == nullptr)
        return;
    if (rahmen->isMaximized())
        rahmen->showNormal();
    else
        rahmen->showMaximized();
}

// A double click on the values.
bool frmDocument::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() != QEvent::MouseButtonDblClick)
        return QWidget::eventFilter(ziel, ereignis);
    const auto& klick = static_cast<const QMouseEvent&>(*ereignis);
    const QPoint stelle = ui->Frame1->mapFromGlobal(klick.globalPosition().toPoint());
    const bool aufKnopf = qobject_cast<const QAbstractButton*>(ui->Frame1->childAt(stelle)) != nullptr;
    if (klick.button() != Qt::LeftButton || aufKnopf)
        return QWidget::eventFilter(ziel, ereignis);
    SchalteGrossanzeige();
    return true;
}

// Escape goes back one step: first to all beams, then to all views.
void frmDocument::keyPressEvent(QKeyEvent* ereignis) {
    const bool zurueck = ereignis->key() == Qt::Key_Escape;
    if (zurueck && ui->BeamBar1->IstGezoomt())
        ui->BeamBar1->ZeigeAlles();
    else if (zurueck && IstGrossanzeige())
        SchalteGrossanzeige();
    else
        QWidget::keyPressEvent(ereignis);
}

// The menu must not wait for its choice here: a pass may be under way.
void frmDocument::contextMenuEvent(QContextMenuEvent* ereignis) {
    auto* menue = new QMenu(this);
    menue->setObjectName(QStringLiteral("mnuAnsicht"));
    menue->setAttribute(Qt::WA_DeleteOnClose);
    FuelleMenue(*menue);
    menue->popup(ereignis->globalPos());
}

void frmDocument::FuelleMenue(QMenu& menue) {
    connect(FuegeHinzu(menue, "mnuWerteKopieren", TextWerteKopieren), &QAction::triggered, this,
            &frmDocument::KopiereWerte);
    connect(FuegeHinzu(menue, "mnuBildKopieren", TextBildKopieren), &QAction::triggered, this,
            &frmDocument::KopiereBild);
    menue.addSeparator();
    QAction* alle = FuegeHinzu(menue, "mnuAlleStrahlen", TextAlleStrahlen);
    alle->setEnabled(ui->BeamBar1->IstGezoomt());
    connect(alle, &QAction::triggered, ui->BeamBar1, &BeamBarControl::ZeigeAlles);
    QAction* gross = FuegeHinzu(menue, "mnuGrossanzeige", TextGrossanzeige);
    gross->setCheckable(true);
    gross->setChecked(IstGrossanzeige());
    connect(gross, &QAction::triggered, this, &frmDocument::SchalteGrossanzeige);
}

// As they are shown, with the time of their reading.
void frmDocument::KopiereWerte() const {
    const auto alterMs =
        std::chrono::duration_cast<std::chrono::milliseconds>(alter.Alter(DieUmgebung().Uhr()));
    const QDateTime gelesen = QDateTime::currentDateTime().addMSecs(-alterMs.count());
    const QString wann = stand == Datenstand::Ungueltig
                             ? QString::fromStdString(LadeText(TextKeineWerte))
                             : QString::fromStdString(LadeText(TextLetzterWert))
                                   .arg(gelesen.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")));
    const std::string kopf[] = {windowTitle().toStdString(), wann.toStdString(),
                                ui->Option1->checkedButton()->text().toStdString()};
    std::vector<Wertzeile> zeilen;
    for (std::size_t k = 0; k < felder.size(); ++k)
        zeilen.push_back({felder[k]->accessibleName().toStdString(), felder[k]->text().toStdString(),
                          positionen[k] != nullptr ? positionen[k]->text().toStdString() : std::string()});
    zeilen.push_back({ui->lblBlankingStrahlenMax->text().toStdString(),
                      ui->lblInhaltBlankingStrahlenMax->text().toStdString(),
                      {}});
    QGuiApplication::clipboard()->setText(QString::fromStdString(Wertetabelle(kopf, zeilen)));
}

void frmDocument::KopiereBild() {
    QGuiApplication::clipboard()->setPixmap(grab());
}

} // namespace varnoth
