#include "schild.h"

#include <algorithm>

namespace varnoth {

Schild::Schild(const QString& name, QWidget& darunter) : QLabel(&darunter) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setMargin(3);
    setAutoFillBackground(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void Schild::SetzeText(const QString& neuer) {
    setText(neuer);
    setVisible(!neuer.isEmpty());
    PasseGroesseAn();
}

void Schild::PasseGroesseAn() {
    const int rand = 2 * (margin() + frameWidth());
    const int zeile = fontMetrics().horizontalAdvance(text()) + rand + 1;
    const int breite = std::min(zeile, parentWidget()->width());
    resize(breite, heightForWidth(breite));
}

} // namespace varnoth
