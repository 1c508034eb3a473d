#include "vektorbild.h"

#include "svgpfad.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <QTransform>
#include <QXmlStreamReader>

namespace varnoth {

namespace {

// A font's letters as outlines are taken at this size and scaled: documents may count in thousandths of a
// pixel.
constexpr int Umrissgrad = 100;

QPainterPath Rechteck(const QXmlStreamAttributes& angaben, const QRectF& flaeche) {
    QPainterPath pfad;
    const double rundung = angaben.value(QLatin1String("rx")).toDouble();
    pfad.addRoundedRect(flaeche, rundung, rundung);
    return pfad;
}

QPainterPath Umriss(const QString& text, double grad, const QPointF& mitte) {
    QFont schrift;
    schrift.setStyleHint(QFont::SansSerif);
    schrift.setFamily(QStringLiteral("sans-serif"));
    schrift.setPixelSize(Umrissgrad);
    QPainterPath pfad;
    pfad.addText(-QFontMetricsF(schrift).horizontalAdvance(text) / 2, 0, schrift, text);
    const double massstab = grad / Umrissgrad;
    return QTransform::fromTranslate(mitte.x(), mitte.y()).scale(massstab, massstab).map(pfad);
}

QColor Farbe(QStringView angabe) {
    return angabe == QLatin1String("none") ? QColor() : QColor(angabe);
}

} // namespace

/// Goes through the document; what an element says of lines and faces holds for those inside it.
class Vektorbild::Leser {
public:
    Leser(const QByteArray& svg, Vektorbild& ziel) : xml(svg), bild(ziel) {}

    bool Lies() {
        if (!xml.readNextStartElement() || xml.name() != QLatin1String("svg"))
            return false;
        LiesMasse();
        Stueck stil;
        stil.fuellung = Qt::black;
        LiesInhalt(MitAngaben(stil));
        return !xml.hasError();
    }

private:
    double Zahl(const char* name) const { return xml.attributes().value(QLatin1String(name)).toDouble(); }
    QPointF Punkt(const char* x, const char* y) const { return {Zahl(x), Zahl(y)}; }

    void LiesMasse() {
        const auto teile = xml.attributes().value(QLatin1String("viewBox")).split(u' ', Qt::SkipEmptyParts);
        if (teile.size() == 4)
            bild.ausschnitt =
                QRectF(teile[0].toDouble(), teile[1].toDouble(), teile[2].toDouble(), teile[3].toDouble());
        const QSizeF genannte(Zahl("width"), Zahl("height"));
        bild.groesse = genannte.isEmpty() ? bild.ausschnitt.size() : genannte;
    }

    Stueck MitAngaben(Stueck stil) const {
        const QXmlStreamAttributes angaben = xml.attributes();
        if (const auto wert = angaben.value(QLatin1String("fill")); !wert.isEmpty())
            stil.fuellung = Farbe(wert);
        if (const auto wert = angaben.value(QLatin1String("stroke")); !wert.isEmpty())
            stil.linie = Farbe(wert);
        if (const auto wert = angaben.value(QLatin1String("stroke-width")); !wert.isEmpty())
            stil.breite = wert.toDouble();
        if (angaben.value(QLatin1String("stroke-linecap")) == QLatin1String("round"))
            stil.ende = Qt::RoundCap;
        if (angaben.value(QLatin1String("stroke-linejoin")) == QLatin1String("round"))
            stil.ecke = Qt::RoundJoin;
        return stil;
    }

    void LiesInhalt(const Stueck& stil) {
        while (xml.readNextStartElement()) {
            Stueck stueck = MitAngaben(stil);
            if (xml.name() == QLatin1String("g")) {
                LiesInhalt(stueck);
                continue;
            }
            stueck.pfad = Pfad();
            if (!stueck.pfad.isEmpty())
                bild.stuecke.push_back(stueck);
        }
    }

    /// The outline of the element at which the reader stands; goes behind it.
    QPainterPath Pfad() {
        const QXmlStreamAttributes angaben = xml.attributes();
        QPainterPath pfad;
        if (xml.name() == QLatin1String("text")) {
            const QPointF mitte = Punkt("x", "y");
            const double grad = Zahl("font-size");
            return Umriss(xml.readElementText(QXmlStreamReader::SkipChildElements), grad, mitte);
        }
        if (xml.name() == QLatin1String("path"))
            pfad = LiesSvgPfad(angaben.value(QLatin1String("d")));
        else if (xml.name() == QLatin1String("rect"))
            pfad = Rechteck(angaben, {Punkt("x", "y"), QSizeF(Zahl("width"), Zahl("height"))});
        else if (xml.name() == QLatin1String("circle"))
            pfad.addEllipse(Punkt("cx", "cy"), Zahl("r"), Zahl("r"));
        xml.skipCurrentElement();
        return pfad;
    }

    QXmlStreamReader xml;
    Vektorbild& bild;
};

Vektorbild::Vektorbild(const QByteArray& svg) {
    if (!Leser(svg, *this).Lies()) {
        groesse = {};
        stuecke.clear();
    }
}

void Vektorbild::Male(QPainter& maler, const QRectF& flaeche) const {
    if (ausschnitt.isEmpty() || groesse.isEmpty())
        return;
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.translate(flaeche.topLeft());
    maler.scale(flaeche.width() / ausschnitt.width(), flaeche.height() / ausschnitt.height());
    maler.translate(-ausschnitt.topLeft());
    for (const Stueck& stueck : stuecke) {
        maler.setBrush(stueck.fuellung.isValid() ? QBrush(stueck.fuellung) : QBrush());
        maler.setPen(stueck.linie.isValid() && stueck.breite > 0
                         ? QPen(stueck.linie, stueck.breite, Qt::SolidLine, stueck.ende, stueck.ecke)
                         : QPen(Qt::NoPen));
        maler.drawPath(stueck.pfad);
    }
    maler.restore();
}

QImage Vektorbild::Bild(const QSize& pixel) const {
    QImage bild(pixel, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    Male(maler, QRectF(QPointF(), QSizeF(pixel)));
    return bild;
}

} // namespace varnoth
