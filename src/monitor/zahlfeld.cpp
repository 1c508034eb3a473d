#include "zahlfeld.h"

#include <QPainter>
#include <QStyle>

namespace varnoth {

Zahlfeld::Zahlfeld(QWidget* eltern) : QLabel(eltern) {
    setAutoFillBackground(true); // spares drawing all that lies below
    setTextInteractionFlags(Qt::NoTextInteraction);
}

// What can be selected, or is grey, is left to QLabel. All fields have their text in the middle of their
// height.
void Zahlfeld::paintEvent(QPaintEvent* ereignis) {
    if (textInteractionFlags() != Qt::NoTextInteraction || !isEnabled()) {
        QLabel::paintEvent(ereignis);
        return;
    }
    if (text().isEmpty())
        return;
    QPainter maler(this);
    maler.setPen(palette().color(foregroundRole()));
    vorrat->Zeichne(maler, contentsRect(), QStyle::visualAlignment(layoutDirection(), alignment()), text(),
                    font());
}

} // namespace varnoth
