#include "kurvenzeichner.h"

#include "achse.h"
#include "gebietszahl.h"
#include "texte.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

constexpr std::int16_t TextMillimeter = 8008;
constexpr std::int16_t TextMeterJeSekunde = 8010;

// Lengths in device independent pixels.
constexpr double Abstand = 6;
constexpr double Eintragsabstand = 3 * Abstand;
constexpr double Linienbreite = 2;
constexpr double Markenradius = 5;
constexpr double Musterlaenge = 28;

constexpr double ZeilenJeZahl = 2;    // on the axis of speeds
constexpr double BreitenJeZahl = 1.4; // on the axis of sizes

QString Text(std::int16_t id) {
    return QString::fromStdString(LadeText(id));
}

QString Kurvenname(Kurvenart art) {
    constexpr std::int16_t Objekterfassung = 8038;
    constexpr std::int16_t Locherkennung = 8039;
    return Text(art == Kurvenart::Objekt ? Objekterfassung : Locherkennung);
}

const QColor& Farbe(Kurvenart art, const Kurvenfarben& farben) {
    return art == Kurvenart::Objekt ? farben.objekt : farben.loch;
}

QString Zahl(double zahl, const QLocale& gebiet) {
    return QString::fromStdString(Gebietszahl(zahl, gebiet));
}

double Breiteste(const std::vector<double>& zahlen, const QFontMetricsF& masse, const QLocale& gebiet) {
    double breite = 0;
    for (const double zahl : zahlen)
        breite = std::max(breite, masse.horizontalAdvance(Zahl(zahl, gebiet)));
    return breite;
}

std::vector<double> Groessen(const Kurvenfeld& feld, const QFontMetricsF& masse, const QLocale& gebiet) {
    const double platz = masse.horizontalAdvance(Zahl(feld.xEnde, gebiet)) * BreitenJeZahl;
    return Achsenzahlen(feld.xEnde, feld.xEnde * platz / std::max(1.0, feld.breite));
}

std::vector<double> Geschwindigkeiten(double ende, double hoehe, const QFontMetricsF& masse) {
    return Achsenzahlen(ende, ende * masse.height() * ZeilenJeZahl / std::max(1.0, hoehe));
}

/// Curves also differ by their pattern, for eyes that do not tell the colours apart.
QPen Kurvenstift(Kurvenart art, const QColor& farbe) {
    QPen stift(farbe, Linienbreite, Qt::SolidLine, Qt::FlatCap);
    if (art == Kurvenart::Loch)
        stift.setDashPattern({4, 2});
    return stift;
}

} // namespace

Kurvenfeld FeldFuer(const Diagramm& diagramm, const QSize& groesse, const QFontMetricsF& masse,
                    const QLocale& gebiet) {
    Kurvenfeld feld;
    feld.xEnde = diagramm.xEnde > 0 ? diagramm.xEnde : 1;
    feld.yEnde = diagramm.yEnde > 0 ? diagramm.yEnde : 1;
    feld.oben = masse.height() + 3 * Abstand;
    feld.hoehe = groesse.height() - feld.oben - masse.height() - 2 * Abstand;
    const auto zahlen = Geschwindigkeiten(diagramm.yEnde, feld.hoehe, masse);
    const double einheit = masse.horizontalAdvance(Text(TextMeterJeSekunde));
    feld.links = std::max(einheit, Breiteste(zahlen, masse, gebiet)) + 2 * Abstand;
    const double letzte = masse.horizontalAdvance(Zahl(feld.xEnde, gebiet)) / 2;
    const double rechts = letzte + masse.horizontalAdvance(Text(TextMillimeter)) + 2 * Abstand;
    feld.breite = groesse.width() - feld.links - rechts;
    return feld;
}

double Legendenbreite(const QFontMetricsF& masse) {
    const auto eintrag = [&](Kurvenart art) {
        return masse.horizontalAdvance(Kurvenname(art)) + Abstand + Musterlaenge;
    };
    return eintrag(Kurvenart::Objekt) + Eintragsabstand + eintrag(Kurvenart::Loch);
}

Kurvenzeichner::Kurvenzeichner(QPainter& flaeche, const Diagramm& gezeigtes, const Kurvenfeld& kurvenfeld,
                               const Kurvenfarben& kurvenfarben, const QLocale& zahlengebiet)
    : maler(flaeche), diagramm(gezeigtes), feld(kurvenfeld), farben(kurvenfarben), gebiet(zahlengebiet),
      dichte(maler.device()->devicePixelRatioF()), masse(maler.font(), maler.device()) {}

double Kurvenzeichner::Gerastet(double stelle) const {
    return std::round(stelle * dichte) / dichte;
}

double Kurvenzeichner::Strichbreite() const {
    return std::max(1.0, std::floor(dichte)) / dichte;
}

void Kurvenzeichner::Zeichne() const {
    ZeichneSpalten();
    ZeichneZeilen();
    maler.setRenderHint(QPainter::Antialiasing);
    ZeichneKurve(diagramm.objekt, Kurvenart::Objekt);
    ZeichneKurve(diagramm.loch, Kurvenart::Loch);
    for (const Marke& marke : diagramm.marken)
        ZeichneHilfslinien(marke);
    for (const Marke& marke : diagramm.marken)
        ZeichneMarke(marke);
    ZeichneLegende();
}

void Kurvenzeichner::ZeichneSenkrechte(double x, const QColor& farbe) const {
    maler.fillRect(QRectF(Gerastet(x), Gerastet(feld.oben), Strichbreite(), Gerastet(feld.hoehe)), farbe);
}

void Kurvenzeichner::ZeichneWaagrechte(double y, const QColor& farbe) const {
    maler.fillRect(QRectF(Gerastet(feld.links), Gerastet(y), Gerastet(feld.breite), Strichbreite()), farbe);
}

void Kurvenzeichner::ZeichneSpalten() const {
    const double oben = feld.Unten() + Abstand;
    maler.setPen(farben.schrift);
    for (const double zahl : Groessen(feld, masse, gebiet)) {
        const QString text = Zahl(zahl, gebiet);
        const double x = feld.X(zahl);
        ZeichneSenkrechte(x, farben.gitter);
        maler.drawText(QPointF(x - masse.horizontalAdvance(text) / 2, oben + masse.ascent()), text);
    }
    ZeichneSenkrechte(feld.links, farben.achsen);
    const double halbeZahl = masse.horizontalAdvance(Zahl(feld.xEnde, gebiet)) / 2;
    maler.drawText(QPointF(feld.Rechts() + halbeZahl + Abstand, oben + masse.ascent()), Text(TextMillimeter));
}

void Kurvenzeichner::ZeichneZeilen() const {
    const double rechts = feld.links - Abstand;
    const auto schreibe = [&](double grundlinie, const QString& text) {
        maler.drawText(QPointF(rechts - masse.horizontalAdvance(text), grundlinie), text);
    };
    maler.setPen(farben.schrift);
    for (const double zahl : Geschwindigkeiten(diagramm.yEnde, feld.hoehe, masse)) {
        const double y = feld.Y(zahl);
        ZeichneWaagrechte(y, farben.gitter);
        schreibe(y + masse.capHeight() / 2, Zahl(zahl, gebiet));
    }
    ZeichneWaagrechte(feld.Unten(), farben.achsen);
    schreibe(Abstand + masse.ascent(), Text(TextMeterJeSekunde));
}

void Kurvenzeichner::ZeichneKurve(const std::vector<Strecke>& kurve, Kurvenart art) const {
    maler.setPen(Kurvenstift(art, Farbe(art, farben)));
    for (const auto& [von, bis] : kurve)
        maler.drawLine(QPointF(feld.X(von.x), feld.Y(von.y)), QPointF(feld.X(bis.x), feld.Y(bis.y)));
}

void Kurvenzeichner::ZeichneHilfslinien(const Marke& marke) const {
    const double mitte = Strichbreite() / 2;
    const QPointF ort(Gerastet(feld.X(marke.ort.x)) + mitte, Gerastet(feld.Y(marke.ort.y)) + mitte);
    maler.setPen(QPen(Farbe(marke.art, farben), Strichbreite(), Qt::DotLine, Qt::FlatCap));
    maler.drawLine(ort, QPointF(ort.x(), feld.Unten()));
    maler.drawLine(ort, QPointF(feld.links, ort.y()));
}

void Kurvenzeichner::ZeichneMarke(const Marke& marke) const {
    const QPointF ort(feld.X(marke.ort.x), feld.Y(marke.ort.y));
    const QPointF radius(Markenradius, Markenradius);
    const QRectF rahmen(ort - radius, ort + radius);
    maler.setPen(QPen(farben.grund, Linienbreite));
    maler.setBrush(Farbe(marke.art, farben));
    if (marke.art == Kurvenart::Objekt)
        maler.drawEllipse(rahmen);
    else
        maler.drawRect(rahmen);
}

void Kurvenzeichner::ZeichneLegende() const {
    double rechts = feld.Rechts();
    if (!diagramm.loch.empty())
        rechts = ZeichneEintrag(rechts, Kurvenart::Loch) - Eintragsabstand;
    if (!diagramm.objekt.empty())
        ZeichneEintrag(rechts, Kurvenart::Objekt);
}

double Kurvenzeichner::ZeichneEintrag(double rechts, Kurvenart art) const {
    const QString name = Kurvenname(art);
    const double links = rechts - masse.horizontalAdvance(name);
    const double mitte = Gerastet(Abstand + masse.height() / 2);
    maler.setPen(farben.schrift);
    maler.drawText(QPointF(links, Abstand + masse.ascent()), name);
    maler.setPen(Kurvenstift(art, Farbe(art, farben)));
    maler.drawLine(QPointF(links - Abstand - Musterlaenge, mitte), QPointF(links - Abstand, mitte));
    return links - Abstand - Musterlaenge;
}

} // namespace varnoth
