#include "hilfetaste.h"

#include "hilfeziel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace varnoth {

namespace {

/// An open menu or list would hold the keyboard and the mouse.
void SchliesseAufgeklapptes() {
    while (QWidget* const offen = QApplication::activePopupWidget())
        if (!offen->close())
            return;
}

} // namespace

Hilfetaste::Hilfetaste(std::function<void(QWidget*)> zeigeZu) : zeige(std::move(zeigeZu)) {
    QApplication::instance()->installEventFilter(this);
}

bool Hilfetaste::eventFilter(QObject* /*ziel*/, QEvent* ereignis) {
    if (ereignis->type() != QEvent::KeyPress)
        return false;
    const auto& taste = static_cast<const QKeyEvent&>(*ereignis);
    if (taste.key() != Qt::Key_F1 || taste.modifiers() != Qt::NoModifier)
        return false;
    if (!taste.isAutoRepeat()) {
        SchliesseAufgeklapptes();
        zeige(StelleVorn());
    }
    return true;
}

} // namespace varnoth
