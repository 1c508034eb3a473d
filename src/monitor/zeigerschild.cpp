#include "zeigerschild.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr QPoint Abstand(14, 4);

} // namespace

Zeigerschild::Zeigerschild(QWidget& ansicht) : Schild(QStringLiteral("lblZeiger"), ansicht) {
    setWordWrap(false);
}

// Above the row, or below where there is no room above: the beam itself stays visible.
void Zeigerschild::Zeige(const QString& text, const QPoint& stelle) {
    SetzeText(text);
    const QSize platz = parentWidget()->size();
    const int oben = stelle.y() - height() - Abstand.y();
    const int unten = std::min(stelle.y() + 4 * Abstand.y(), platz.height() - height());
    move(std::clamp(stelle.x() + Abstand.x(), 0, std::max(0, platz.width() - width())),
         oben >= 0 ? oben : unten);
    raise();
}

} // namespace varnoth
