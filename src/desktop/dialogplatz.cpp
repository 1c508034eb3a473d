#include "dialogplatz.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QLayout>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

namespace varnoth {

namespace {

/// What a window manager puts around a window whose frame is not known yet, in logical pixels.
constexpr QSize Rahmen(16, 40);

/// The controls move into an area that scrolls, with their layout and their order.
void MacheRollbar(QDialog& dialog) {
    auto* const bereich = new QScrollArea;
    auto* const inhalt = new QWidget;
    bereich->setObjectName(QStringLiteral("Dialogrollbereich"));
    bereich->setFrameShape(QFrame::NoFrame);
    bereich->setFocusPolicy(Qt::NoFocus);
    bereich->setWidgetResizable(true);
    inhalt->setObjectName(QStringLiteral("Dialoginhalt"));
    dialog.layout()->setSizeConstraint(QLayout::SetDefaultConstraint);
    dialog.setMinimumSize(0, 0);
    inhalt->setLayout(dialog.layout());
    bereich->setWidget(inhalt);
    auto* const aussen = new QVBoxLayout(&dialog);
    aussen->setContentsMargins(0, 0, 0, 0);
    aussen->addWidget(bereich);
}

QSize MitRollbalken(QSize groesse) {
    const int breite = QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return groesse + QSize(breite, breite);
}

bool Passt(QSize groesse, QSize platz) {
    return groesse.width() <= platz.width() && groesse.height() <= platz.height();
}

} // namespace

void PasseEin(QDialog& dialog, QSize platz) {
    if (dialog.layout() == nullptr)
        return;
    const QSize mindestens = dialog.minimumSizeHint().expandedTo(dialog.minimumSize());
    if (!Passt(mindestens, platz)) {
        const QSize ganz = MitRollbalken(dialog.sizeHint().expandedTo(mindestens));
        MacheRollbar(dialog);
        dialog.resize(ganz.boundedTo(platz));
    } else if (const QSize groesse = dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : dialog.sizeHint();
               !Passt(groesse, platz)) {
        dialog.resize(groesse.boundedTo(platz).expandedTo(mindestens));
    }
}

Dialogplatz::Dialogplatz() {
    QApplication::instance()->installEventFilter(this);
}

/// A dialog is polished once, before it is laid out and shown. Message boxes find their own size.
bool Dialogplatz::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() == QEvent::Polish)
        if (auto* const dialog = qobject_cast<QDialog*>(ziel);
            dialog != nullptr && qobject_cast<QMessageBox*>(ziel) == nullptr)
            PasseEin(*dialog, dialog->screen()->availableSize() - Rahmen);
    return false;
}

} // namespace varnoth
