#include "feldtext.h"

#include <QLineEdit>

namespace varnoth {

void ZeigeText(QLineEdit& feld, const QString& text) {
    if (feld.text() == text)
        return;
    feld.setText(text);
    feld.setCursorPosition(0);
}

void BietePlatz(QWidget& element, int zeichen) {
    element.setMinimumWidth(zeichen * element.fontMetrics().averageCharWidth());
}

} // namespace varnoth
