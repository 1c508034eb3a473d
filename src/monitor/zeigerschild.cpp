#include "zeigerschild.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr QPoint Abstand(14, 4);

} // namespace

Zeigerschild::Zeigerschild(QWidget& ansicht) : Schild(QStringLiteral("lblZeiger"), ansicht) {
    setWordWrap(false);
}

// Above the row, so that the beam itself stays visible; there is room above the highest one.
void Zeigerschild::Zeige(const QString& text, const QPoint& stelle) {
    SetzeText(text);
    const int rechts = std::max(0, parentWidget()->width() - width());
    move(std::clamp(stelle.x() + Abstand.x(), 0, rechts), std::max(0, stelle.y() - height() - Abstand.y()));
    raise();
}

} // namespace varnoth
