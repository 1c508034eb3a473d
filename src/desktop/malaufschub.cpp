#include "malaufschub.h"

#include "ereignispumpe.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

namespace varnoth {

namespace {

/// Painting comes after the layout.
int Vorrang(QEvent::Type art) {
    return art == QEvent::UpdateRequest ? Qt::LowEventPriority : Qt::NormalEventPriority;
}

} // namespace

Malaufschub::Malaufschub(Ereignispumpe& ereignispumpe) : pumpe(ereignispumpe) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool Malaufschub::eventFilter(QObject* ziel, QEvent* ereignis) {
    const QEvent::Type art = ereignis->type();
    if ((art != QEvent::UpdateRequest && art != QEvent::LayoutRequest) || !ziel->isWidgetType() ||
        !pumpe.HaeltZurueck())
        return false;
    pumpe.SchiebeAuf([element = QPointer<QObject>(ziel), art] {
        if (element != nullptr)
            QCoreApplication::postEvent(element, new QEvent(art), Vorrang(art));
    });
    return true;
}

} // namespace varnoth
