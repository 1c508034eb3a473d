#include "kurvenbild.h"

#include "kurvenzeichner.h"

#include <QPainter>

namespace varnoth {

namespace {
constexpr int WunschbreiteZeichen = 60;
constexpr int WunschhoeheZeilen = 22;
constexpr int MindestbreiteZeichen = 45;
constexpr int MindesthoeheZeilen = 10;

QSize Platz(const QFontMetrics& masse, int zeichen, int zeilen) {
    return {masse.averageCharWidth() * zeichen, masse.height() * zeilen};
}
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
    return Platz(fontMetrics(), WunschbreiteZeichen, WunschhoeheZeilen);
}

QSize Kurvenbild::minimumSizeHint() const {
    return Platz(fontMetrics(), MindestbreiteZeichen, MindesthoeheZeilen);
}

void Kurvenbild::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    const Kurvenfarben farben = KurvenfarbenAus(palette());
    maler.fillRect(rect(), farben.grund);
    Kurvenzeichner(maler, diagramm, Feld(), farben, gebiet).Zeichne();
}

} // namespace varnoth
