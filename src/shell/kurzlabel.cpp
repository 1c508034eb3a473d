#include "kurzlabel.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace varnoth {

Kurzlabel::Kurzlabel(QWidget* parent, int zeichen) : QLabel(parent), kleinsteZeichenzahl(zeichen) {
    setTextFormat(Qt::PlainText);
}

QSize Kurzlabel::minimumSizeHint() const {
    const QSize ganz = QLabel::minimumSizeHint();
    return {std::min(ganz.width(), kleinsteZeichenzahl * fontMetrics().averageCharWidth()), ganz.height()};
}

void Kurzlabel::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    drawFrame(&maler);
    const QRect flaeche = contentsRect();
    const QString kurz = fontMetrics().elidedText(text(), Qt::ElideRight, flaeche.width());
    style()->drawItemText(&maler, flaeche, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), palette(),
                          isEnabled(), kurz, foregroundRole());
}

} // namespace varnoth
