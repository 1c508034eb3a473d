#include "feldtext.h"

#include <QLineEdit>
#include <QProgressBar>

#include <algorithm>

namespace varnoth {

void ZeigeText(QLineEdit& feld, const QString& text) {
    if (feld.text() == text)
        return;
    feld.setText(text);
    feld.setCursorPosition(0);
}

void MacheZurAnzeige(QLineEdit& feld) {
    feld.setFrame(false);
    feld.setFocusPolicy(Qt::ClickFocus);
    QPalette farben = feld.palette();
    farben.setColor(QPalette::Base, Qt::transparent);
    feld.setPalette(farben);
}

void ZeigeStand(QProgressBar& balken, int wert) {
    balken.setUpdatesEnabled(false);
    balken.setValue(wert);
    balken.setUpdatesEnabled(true);
}

void BietePlatz(QWidget& element, int zeichen) {
    const int breite = zeichen * element.fontMetrics().averageCharWidth();
    element.setMinimumWidth(std::max(element.minimumWidth(), breite));
}

void BehaltePlatz(QWidget& element) {
    QSizePolicy platz = element.sizePolicy();
    platz.setRetainSizeWhenHidden(true);
    element.setSizePolicy(platz);
}

} // namespace varnoth
