#include "berichtsdruck.h"

#include "seiteneinrichtung.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

namespace varnoth {

bool Drucke(const Berichtsdruck& druck, QPagedPaintDevice& geraet) {
    const Berichtsseiten seiten(druck, geraet);
    QPainter maler;
    if (!maler.begin(&geraet))
        return false;
    for (int seite = 0; seite < seiten.Anzahl(); ++seite) {
        if (seite > 0 && !geraet.newPage())
            return false;
        seiten.Male(maler, seite);
    }
    return maler.end();
}

QByteArray AlsPdf(const Berichtsdruck& druck, const QString& titel) {
    QByteArray pdf;
    QBuffer puffer(&pdf);
    puffer.open(QIODevice::WriteOnly);
    QPdfWriter schreiber(&puffer);
    schreiber.setResolution(Pdfaufloesung);
    schreiber.setTitle(titel);
    RichteSeiteEin(schreiber);
    return Drucke(druck, schreiber) ? pdf : QByteArray();
}

} // namespace varnoth
