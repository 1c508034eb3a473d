#include "kurvenbild.h"

#include "kurvenzeichner.h"

#include <QPainter>

namespace varnoth {

namespace {
constexpr int WunschbreiteZeichen = 75;
constexpr int WunschhoeheZeilen = 22;
constexpr int RandZeichen = 27; // the numbers and units on both sides
constexpr int MindesthoeheZeilen = 10;
} // namespace

Kurvenbild::Kurvenbild(QWidget* eltern) : QWidget(eltern) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Kurvenbild::SetzeGebiet(const QLocale& neues) {
    gebiet = neues;
    update();
}

void Kurvenbild::Zeige(const Diagramm& neues) {
    if (neues == diagramm)
        return;
    diagramm = neues;
    update();
}

Kurvenfeld Kurvenbild::Feld() const {
    return FeldFuer(diagramm, size(), fontMetrics(), gebiet);
}

QPointF Kurvenbild::Stelle(const Diagrammpunkt& punkt) const {
    const Kurvenfeld feld = Feld();
    return {feld.X(punkt.x), feld.Y(punkt.y)};
}

QSize Kurvenbild::sizeHint() const {
    const QFontMetrics masse = fontMetrics();
    const QSize wunsch(masse.averageCharWidth() * WunschbreiteZeichen, masse.height() * WunschhoeheZeilen);
    return wunsch.expandedTo(minimumSizeHint());
}

QSize Kurvenbild::minimumSizeHint() const {
    const QFontMetrics masse = fontMetrics();
    const double breite = Legendenbreite(masse) + RandZeichen * masse.averageCharWidth();
    return {static_cast<int>(breite), masse.height() * MindesthoeheZeilen};
}

void Kurvenbild::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    const Kurvenfarben farben = KurvenfarbenAus(palette());
    maler.fillRect(rect(), farben.grund);
    Kurvenzeichner(maler, diagramm, Feld(), farben, gebiet).Zeichne();
}

} // namespace varnoth
