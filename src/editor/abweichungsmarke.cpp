#include "abweichungsmarke.h"

#include "symbolbild.h"

#include <QPainter>

namespace varnoth {

namespace {
constexpr int Kante = 7;
}

Abweichungsmarke::Abweichungsmarke(QWidget& element) : QWidget(&element) {
    setObjectName(QStringLiteral("Abweichungsmarke"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFixedSize(Kante, Kante);
    move(0, 0);
    hide();
}

void Abweichungsmarke::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    maler.setBrush(SymbolfarbenAus(palette(), QIcon::Normal).betonung);
    maler.drawPolygon(QPolygon({QPoint(0, 0), QPoint(Kante, 0), QPoint(0, Kante)}));
}

} // namespace varnoth
