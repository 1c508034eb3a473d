#include "verlaufsdruck.h"

#include "darstellung.h"
#include "verlaufsbild.h"

#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

namespace varnoth {

bool DruckeVerlauf(Verlaufsbild& bild, const QString& ueberschrift, QPagedPaintDevice& geraet) {
    constexpr double Zeile = 1.6; // of the letters of the heading
    QPainter maler;
    if (!maler.begin(&geraet))
        return false;
    const QSizeF seite = maler.viewport().size();
    const double kopf = QFontMetricsF(maler.font(), &geraet).height() * Zeile;
    maler.setPen(Qt::black);
    maler.drawText(
        QRectF(QPointF(), QSizeF(seite.width(), kopf)), Qt::AlignLeft | Qt::TextSingleLine,
        QFontMetricsF(maler.font(), &geraet).elidedText(ueberschrift, Qt::ElideRight, seite.width()));
    const double masstab = std::min(seite.width() / bild.width(), (seite.height() - kopf) / bild.height());
    maler.translate(0, kopf);
    maler.scale(masstab, masstab);
    bild.Male(maler, PaletteFuer(Erscheinung::Hell).value_or(QPalette()));
    return maler.end();
}

} // namespace varnoth
