#include "malaufschub.h"

#include <QCoreApplication>
#include <QThread>

#include <utility>

namespace varnoth {

namespace {

/// Painting comes after the layout.
int Vorrang(QEvent::Type art) {
    return art == QEvent::UpdateRequest ? Qt::LowEventPriority : Qt::NormalEventPriority;
}

} // namespace

Malaufschub::Malaufschub() {
    QCoreApplication::instance()->installEventFilter(this);
}

void Malaufschub::LasseEreignisseLaufen() {
    const int vorher = std::exchange(gehalteneEbene, QThread::currentThread()->loopLevel());
    QCoreApplication::processEvents();
    gehalteneEbene = vorher;
    for (const auto& [element, art] : std::exchange(aufgeschobene, {}))
        if (element != nullptr)
            QCoreApplication::postEvent(element, new QEvent(art), Vorrang(art));
}

bool Malaufschub::eventFilter(QObject* ziel, QEvent* ereignis) {
    const QEvent::Type art = ereignis->type();
    if ((art != QEvent::UpdateRequest && art != QEvent::LayoutRequest) || !ziel->isWidgetType() ||
        QThread::currentThread()->loopLevel() != gehalteneEbene)
        return false;
    aufgeschobene.emplace_back(ziel, art);
    return true;
}

} // namespace varnoth
