#include "strahlhinweis.h"

#include <QEvent>

#include <algorithm>

namespace varnoth {

Strahlhinweis::Strahlhinweis(QWidget& strahlen) : QLabel(&strahlen) {
    setObjectName(QStringLiteral("lblHinweis"));
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setMargin(4);
    setAutoFillBackground(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    strahlen.installEventFilter(this);
}

void Strahlhinweis::Zeige(const QString& neuer) {
    if (neuer == text())
        return;
    setText(neuer);
    setVisible(!neuer.isEmpty());
    Ordne();
}

bool Strahlhinweis::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() == QEvent::Resize)
        Ordne();
    return QLabel::eventFilter(ziel, ereignis);
}

// On one line where there is room, else wrapped.
void Strahlhinweis::Ordne() {
    const int rand = 2 * (margin() + frameWidth());
    const int zeile = fontMetrics().horizontalAdvance(text()) + rand + 1;
    const int breite = std::min(zeile, parentWidget()->width());
    resize(breite, heightForWidth(breite));
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
}

} // namespace varnoth
