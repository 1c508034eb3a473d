#include "dialogplatz.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

namespace varnoth {

namespace {

constexpr const char* Groesse = "Einpassgroesse"; // the property that keeps a size until the window appears

/// What a window manager puts around a window whose frame is not known yet, in logical pixels.
constexpr QSize Rahmen(16, 40);

/// The controls move into an area that scrolls, with their layout and their order.
void MacheRollbar(QWidget& fenster) {
    auto* const bereich = new QScrollArea;
    auto* const inhalt = new QWidget;
    bereich->setObjectName(QStringLiteral("Dialogrollbereich"));
    bereich->setFrameShape(QFrame::NoFrame);
    bereich->setFocusPolicy(Qt::NoFocus);
    bereich->setWidgetResizable(true);
    inhalt->setObjectName(QStringLiteral("Dialoginhalt"));
    fenster.layout()->setSizeConstraint(QLayout::SetDefaultConstraint);
    fenster.setMinimumSize(0, 0);
    inhalt->setLayout(fenster.layout());
    bereich->setWidget(inhalt);
    auto* const aussen = new QVBoxLayout(&fenster);
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

/// Message boxes find their own size, and the main window finds its place by itself.
bool WirdEingepasst(const QWidget& fenster) {
    const bool fensterart = fenster.windowType() == Qt::Window || fenster.windowType() == Qt::Dialog;
    return fenster.isWindow() && fensterart && qobject_cast<const QMessageBox*>(&fenster) == nullptr &&
           qobject_cast<const QMainWindow*>(&fenster) == nullptr;
}

} // namespace

void PasseEin(QWidget& fenster, QSize platz) {
    if (fenster.layout() == nullptr)
        return;
    const QSize mindestens = fenster.minimumSizeHint().expandedTo(fenster.minimumSize());
    if (!Passt(mindestens, platz)) {
        const QSize ganz = MitRollbalken(fenster.sizeHint().expandedTo(mindestens));
        MacheRollbar(fenster);
        fenster.resize(ganz.boundedTo(platz));
        fenster.setProperty(Groesse, fenster.size());
    } else if (const QSize groesse =
                   fenster.testAttribute(Qt::WA_Resized) ? fenster.size() : fenster.sizeHint();
               !Passt(groesse, platz)) {
        fenster.resize(groesse.boundedTo(platz).expandedTo(mindestens));
    }
}

Dialogplatz::Dialogplatz() {
    QApplication::instance()->installEventFilter(this);
}

/// A window is polished once, before it is laid out and shown. Qt then gives one that had no size before that
/// of two thirds of the screen at most, so what scrolls gets its own once more when it appears.
bool Dialogplatz::eventFilter(QObject* ziel, QEvent* ereignis) {
    auto* const fenster = qobject_cast<QWidget*>(ziel);
    if (fenster == nullptr)
        return false;
    if (ereignis->type() == QEvent::Polish && WirdEingepasst(*fenster)) {
        PasseEin(*fenster, fenster->screen()->availableSize() - Rahmen);
    } else if (ereignis->type() == QEvent::Show && fenster->property(Groesse).isValid()) {
        fenster->resize(fenster->property(Groesse).toSize());
        fenster->setProperty(Groesse, {});
    }
    return false;
}

} // namespace varnoth
