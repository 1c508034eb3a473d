#include "wachstumsbild.h"

#include <QPointF>
#include <QRectF>

#include <algorithm>
#include <cmath>

namespace varnoth::bench {

namespace {

constexpr double Breite = 900;
constexpr double Hoehe = 456;
constexpr QSizeF Feldgroesse(360, 310);
constexpr double RandLinks = 60;
constexpr double RandOben = 90;
constexpr double Feldabstand = 440;
constexpr int KleinstePotenz = -2; // of ten, ms
constexpr int GroesstePotenz = 3;
const double KleinsteKosten = std::pow(10, KleinstePotenz);
const double GroessteKosten = std::pow(10, GroesstePotenz);
constexpr double Punktradius = 3.5;

/// Distinct without colours too: the lines have labels, and the order of lightness differs.
constexpr std::array Farben{"#1b4965", "#b5542b", "#4f772d", "#7d5ba6"};
static_assert(Farben.size() == Kostenarten.size());

/// Where a value lies between two ends on a logarithmic scale, 0 to 1.
double Anteil(double wert, double von, double bis) {
    return std::clamp(std::log(wert / von) / std::log(bis / von), 0.0, 1.0);
}

/// The panel of one series.
class Feld {
public:
    Feld(const Messreihe& messreihe, double links)
        : reihe(messreihe), flaeche(QPointF(links, RandOben), Feldgroesse) {}

    QString Zeichne() const {
        QString svg = Rahmen() + Kostenlinien() + Groessenlinien() + Vergleichslinie();
        for (std::size_t art = 0; art < Kostenarten.size(); ++art)
            svg += Kurve(art);
        return svg;
    }

private:
    QPointF Ort(double groesse, double kosten) const {
        const double x = Anteil(groesse, reihe.punkte.front().groesse, reihe.punkte.back().groesse);
        const double y = Anteil(kosten, KleinsteKosten, GroessteKosten);
        return {flaeche.left() + x * flaeche.width(), flaeche.bottom() - y * flaeche.height()};
    }
    QString Rahmen() const;
    QString Kostenlinien() const;
    QString Groessenlinien() const;
    QString Vergleichslinie() const;
    QString Kurve(std::size_t art) const;

    const Messreihe& reihe;
    QRectF flaeche;
};

QString Text(const QPointF& ort, const QString& anker, const QString& text) {
    return QStringLiteral("<text x=\"%1\" y=\"%2\" text-anchor=\"%3\">%4</text>\n")
        .arg(ort.x(), 0, 'f', 1)
        .arg(ort.y(), 0, 'f', 1)
        .arg(anker, text);
}

QString Linie(const QPointF& von, const QPointF& bis, const QString& klasse) {
    return QStringLiteral("<line x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%4\" class=\"%5\"/>\n")
        .arg(von.x(), 0, 'f', 1)
        .arg(von.y(), 0, 'f', 1)
        .arg(bis.x(), 0, 'f', 1)
        .arg(bis.y(), 0, 'f', 1)
        .arg(klasse);
}

QString Feld::Rahmen() const {
    constexpr double Titelabstand = 38;
    return QStringLiteral("<rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" class=\"rahmen\"/>\n")
               .arg(flaeche.x())
               .arg(flaeche.y())
               .arg(flaeche.width())
               .arg(flaeche.height()) +
           Text({flaeche.center().x(), flaeche.bottom() + Titelabstand}, QStringLiteral("middle"),
                reihe.name);
}

QString Feld::Kostenlinien() const {
    constexpr double Abstand = 8;
    constexpr double Grundlinie = 4;
    QString svg;
    for (int potenz = KleinstePotenz; potenz <= GroesstePotenz; ++potenz) {
        const double kosten = std::pow(10, potenz);
        const double y = Ort(reihe.punkte.front().groesse, kosten).y();
        svg += Linie({flaeche.left(), y}, {flaeche.right(), y}, QStringLiteral("gitter")) +
               Text({flaeche.left() - Abstand, y + Grundlinie}, QStringLiteral("end"),
                    QString::number(kosten, 'g', 4));
    }
    return svg;
}

QString Feld::Groessenlinien() const {
    constexpr double Abstand = 18;
    QString svg;
    for (const Kosten& punkt : reihe.punkte) {
        const double x = Ort(punkt.groesse, KleinsteKosten).x();
        svg +=
            Linie({x, flaeche.top()}, {x, flaeche.bottom()}, QStringLiteral("gitter")) +
            Text({x, flaeche.bottom() + Abstand}, QStringLiteral("middle"), QString::number(punkt.groesse));
    }
    return svg;
}

QString Feld::Vergleichslinie() const {
    constexpr double Anfang = 0.02; // ms, below all curves
    const Kosten& erster = reihe.punkte.front();
    const Kosten& letzter = reihe.punkte.back();
    return Linie(Ort(erster.groesse, Anfang), Ort(letzter.groesse, Anfang * letzter.groesse / erster.groesse),
                 QStringLiteral("linear"));
}

QString Feld::Kurve(std::size_t art) const {
    const QLatin1String farbe(Farben.at(art));
    QString ecken;
    QString punkte;
    for (const Kosten& punkt : reihe.punkte) {
        const QPointF ort = Ort(punkt.groesse, punkt.*Kostenarten.at(art).wert);
        ecken += QStringLiteral("%1,%2 ").arg(ort.x(), 0, 'f', 1).arg(ort.y(), 0, 'f', 1);
        punkte += QStringLiteral("<circle cx=\"%1\" cy=\"%2\" r=\"%3\" fill=\"%4\"/>\n")
                      .arg(ort.x(), 0, 'f', 1)
                      .arg(ort.y(), 0, 'f', 1)
                      .arg(Punktradius)
                      .arg(farbe);
    }
    return QStringLiteral("<polyline points=\"%1\" fill=\"none\" stroke-width=\"2\" stroke=\"%2\"/>\n")
               .arg(ecken.trimmed(), farbe) +
           punkte;
}

QString Kopf() {
    return QStringLiteral(
               "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %1 %2\" font-family=\"sans-serif\" "
               "font-size=\"12\" fill=\"#333\">\n"
               "<style>.gitter{stroke:#e2e2e2}.rahmen{fill:none;stroke:#888}"
               ".linear{stroke:#777;stroke-width:1.5;stroke-dasharray:6 4}</style>\n"
               "<rect width=\"%1\" height=\"%2\" fill=\"#fff\"/>\n")
               .arg(Breite)
               .arg(Hoehe) +
           QStringLiteral(
               "<text x=\"%1\" y=\"28\" font-size=\"16\">Cost in milliseconds over the size of the "
               "controller, both axes logarithmic</text>\n")
               .arg(RandLinks);
}

/// A sample of each line with its name, in one row above the panels.
QString Legende() {
    constexpr double Zeile = 58;
    constexpr double Spalte = 180;
    constexpr double Probe = 24;
    constexpr double Grundlinie = 4;
    QString svg;
    double x = RandLinks;
    for (std::size_t art = 0; art < Kostenarten.size(); ++art, x += Spalte)
        svg += QStringLiteral("<path d=\"M%1 %2h%3\" stroke-width=\"3\" stroke=\"%4\"/>\n")
                   .arg(x)
                   .arg(Zeile)
                   .arg(Probe)
                   .arg(QLatin1String(Farben.at(art))) +
               Text({x + Probe + Grundlinie, Zeile + Grundlinie}, QStringLiteral("start"),
                    QLatin1String(Kostenarten.at(art).name));
    return svg + Linie({x, Zeile}, {x + Probe, Zeile}, QStringLiteral("linear")) +
           Text({x + Probe + Grundlinie, Zeile + Grundlinie}, QStringLiteral("start"),
                QStringLiteral("linear growth"));
}

} // namespace

QString Wachstumsbild(const std::vector<Messreihe>& reihen) {
    QString svg = Kopf() + Legende();
    double links = RandLinks;
    for (const Messreihe& reihe : reihen) {
        svg += Feld(reihe, links).Zeichne();
        links += Feldabstand;
    }
    return svg + QStringLiteral("</svg>\n");
}

} // namespace varnoth::bench
