#include "wasserfalllegende.h"

#include "strahlworte.h"
#include "zellenmuster.h"

#include <QPainter>
#include <QSizePolicy>

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

constexpr Zellenart DieEintraege[] = {Zellenart::Frei,     Zellenart::Unterbrochen,  Zellenart::Zeitweise,
                                      Zellenart::Geblankt, Zellenart::NichtGemessen, Zellenart::Luecke};
constexpr int Probe = 22; // width of a sample, logical pixels
constexpr int Luft = 6;
constexpr int Abstand = 18;

QString Wort(Zellenart art) {
    return QString::fromStdString(Zellenworte(art));
}

QImage Probebild(const Zellenmuster& muster, Zellenart art, QSize groesse) {
    QImage bild(groesse, QImage::Format_RGB32);
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            bild.setPixel(x, y, muster.Zeile(art, y)[x % muster.Seite()]);
    return bild;
}

} // namespace

Wasserfalllegende::Wasserfalllegende(QWidget* eltern) : QWidget(eltern) {
    QSizePolicy platz(QSizePolicy::Expanding, QSizePolicy::Minimum);
    platz.setHeightForWidth(true);
    setSizePolicy(platz);
}

template<class Tat>
int Wasserfalllegende::Ordne(int breite, Tat tat) const {
    const int zeile = fontMetrics().height() + Luft / 2;
    int x = 0;
    int y = 0;
    for (const Zellenart art : DieEintraege) {
        const int eintrag = Probe + Luft + fontMetrics().horizontalAdvance(Wort(art));
        if (x > 0 && x + eintrag > breite) {
            x = 0;
            y += zeile;
        }
        tat(art, QRect(x, y, eintrag, zeile));
        x += eintrag + Abstand;
    }
    return y + zeile;
}

int Wasserfalllegende::heightForWidth(int breite) const {
    return Ordne(breite, [](Zellenart, const QRect&) {});
}

QSize Wasserfalllegende::sizeHint() const {
    return {320, heightForWidth(std::max(width(), 320))};
}

void Wasserfalllegende::Lokalisiere() {
    QStringList worte;
    for (const Zellenart art : DieEintraege)
        worte.append(Wort(art));
    setAccessibleName(worte.join(QStringLiteral(", ")));
    updateGeometry();
    update();
}

void Wasserfalllegende::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    const double dichte = devicePixelRatioF();
    const Strahlfarben farben = FarbenAus(palette());
    const Zellenmuster muster(farben, dichte);
    Ordne(width(), [&](Zellenart art, const QRect& platz) {
        QImage probe = Probebild(muster, art, QSize(Probe, platz.height() - 4) * dichte);
        probe.setDevicePixelRatio(dichte);
        maler.drawImage(platz.topLeft() + QPoint(0, 2), probe);
        maler.setPen(farben.gehaeuserand);
        maler.drawRect(platz.x(), platz.y() + 2, Probe - 1, platz.height() - 5);
        maler.setPen(palette().color(QPalette::WindowText));
        maler.drawText(platz.adjusted(Probe + Luft, 0, 2, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                       Wort(art));
    });
}

} // namespace varnoth
