#include "verlaufszeichner.h"

#include "achse.h"
#include "strahlfarben.h"
#include "texte.h"
#include "zeitworte.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

constexpr std::int16_t TextErstesOptikteil = 5200, TextStrahlnummer = 6345, TextMillimeter = 6346;

constexpr double Abstand = 6;
constexpr double Musterlaenge = 34;
constexpr double ZeilenJeZahl = 2;
constexpr double BreitenJeZeit = 1.5;
constexpr double BreitesteNotiz = 170;
constexpr int BandDeckung = 20;      // of 255
constexpr double LaengsteNamen = 30; // of rows, in letters

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

QString Text(std::int16_t id) {
    return Q(LadeText(id));
}

QString Zahl(double zahl) {
    return QString::number(static_cast<int>(std::lround(zahl)));
}

std::vector<double> Wertstriche(const Verlaufsblatt& blatt, double hoehe, const QFontMetricsF& masse) {
    const double ganz = blatt.werte.oben - blatt.werte.unten;
    return GanzeAchsenzahlen(blatt.werte.unten, blatt.werte.oben,
                             ganz * masse.height() * ZeilenJeZahl / std::max(1.0, hoehe));
}

QString Teilname(int teil) {
    return Text(static_cast<std::int16_t>(TextErstesOptikteil + teil));
}

QString Zeilenname(const Zustandszeile& zeile) {
    const QString was = Text(zeile.text);
    return zeile.teil < 0 ? was : Teilname(zeile.teil) + " " + was;
}

/// How far apart marks of time are, so that their texts do not touch.
Zeit Zeitabstand(const Verlaufsblatt& blatt, const Verlaufsfeld& feld, const QFontMetricsF& masse) {
    const Zeit ganz = blatt.spanne.bis - blatt.spanne.von;
    Zeit schritt(1000);
    for (int i = 0; i < 3; ++i) { // wider texts need wider steps, whose texts may be shorter
        const double breite = masse.horizontalAdvance(Q(BreitesterZeittext(schritt))) * BreitenJeZeit;
        schritt = RunderZeitschritt(Zeit(
            std::llround(static_cast<double>(ganz.count()) * breite / std::max(1.0, feld.kurven.width()))));
    }
    return std::max(schritt, Zeit(1000));
}

struct Legendeneintrag {
    Messreihe reihe;
    QString name;
    QPointF stelle;
};

std::vector<Legendeneintrag> Legende(const Verlaufsblatt& blatt, const QFontMetricsF& masse, double links,
                                     double breite) {
    std::vector<Legendeneintrag> eintraege;
    double x = links;
    double y = Abstand;
    for (const Messreihe reihe : blatt.wahl.Reihen()) {
        const QString name = Q(Reihenname(reihe));
        const double braucht = Musterlaenge + Abstand + masse.horizontalAdvance(name) + 2 * Abstand;
        if (x > links && x + braucht > links + breite) {
            x = links;
            y += masse.height();
        }
        eintraege.push_back({reihe, name, {x, y}});
        x += braucht;
    }
    return eintraege;
}

/// The lines of the grid belong to the picture of the curves, which is moved as a whole.
void ZeichneGitter(QPainter& maler, const Verlaufsblatt& blatt, const Verlaufsfeld& feld,
                   const Kurvenfarben& farben, int von) {
    const int breite = feld.Spalten();
    const int hoehe = feld.Hoehe();
    const int strich = std::max(1, static_cast<int>(feld.dichte));
    const QFontMetricsF masse(maler.font());
    for (const double wert : Wertstriche(blatt, feld.kurven.height(), masse)) {
        const auto y = static_cast<int>(std::lround(
            (blatt.werte.oben - wert) / (blatt.werte.oben - blatt.werte.unten) * feld.Kurvenhoehe()));
        maler.fillRect(von, y, breite - von, strich, farben.gitter);
    }
    for (const Zeitstrich& zeit : Zeitstriche(blatt.angaben, blatt.spanne, Zeitabstand(blatt, feld, masse))) {
        const double x = (feld.XBei(zeit.laufzeit, blatt.spanne) - feld.kurven.left()) * feld.dichte;
        maler.fillRect(static_cast<int>(std::lround(x)), 0, strich, hoehe, farben.gitter);
    }
}

void Fuelle(QPainter& maler, const std::vector<QRect>& spur, const QColor& farbe) {
    maler.setBrush(farbe);
    maler.drawRects(spur.data(), static_cast<int>(spur.size()));
}

void ZeichneZeilen(QPainter& maler, const Spurfeld& spur, const Verlaufsblatt& blatt,
                   const Verlaufsfeld& feld, const Kurvenfarben& farben, int von) {
    const double d = feld.dichte;
    double oben = (feld.zeilen.top() - feld.kurven.top()) * d;
    const int luft = feld.zeilenhoehe > 5 ? static_cast<int>(std::lround(2 * d)) : 1;
    for (const Zustandszeile& zeile : Zustandszeilen(blatt.wahl)) {
        const auto y = static_cast<int>(std::lround(oben));
        const int hoehe = std::max(1, static_cast<int>(std::lround(oben + feld.zeilenhoehe * d)) - y - luft);
        maler.fillRect(von, y + hoehe - 1, spur.breite - von, 1, farben.gitter);
        const Zustandsspur zustand = SpurDerZeile(spur, zeile, y, hoehe, von);
        Fuelle(maler, zustand.immer, farben.achsen);
        Fuelle(maler, zustand.einmal, farben.achsen);
        oben += feld.zeilenhoehe * d;
    }
}

} // namespace

int Reichweite(double dichte) {
    return static_cast<int>(std::ceil(Zeichenradius * dichte)) + 1;
}

double Randbreite(const Verlaufsblatt& blatt, const QFontMetricsF& masse) {
    double breite =
        std::max(masse.horizontalAdvance(Zahl(blatt.werte.oben)), masse.horizontalAdvance("00000"));
    breite = std::max(breite, masse.horizontalAdvance(Wertachsenname(blatt.wahl)));
    for (const Zustandszeile& zeile : Zustandszeilen(blatt.wahl))
        breite = std::max(breite, masse.horizontalAdvance(Zeilenname(zeile)));
    return std::min(std::ceil(breite) + 1,
                    LaengsteNamen * masse.averageCharWidth()); // whole pixels lose some
}

double Legendenhoehe(const Verlaufsblatt& blatt, const QFontMetricsF& masse, double breite) {
    const auto eintraege = Legende(blatt, masse, 0, breite);
    return eintraege.empty() ? 0 : eintraege.back().stelle.y() + masse.height() - Abstand;
}

Verlaufsfeld FeldFuer(const Verlaufsblatt& blatt, const QFontMetricsF& masse, QSizeF groesse, double dichte) {
    Feldangaben angaben{.groesse = groesse, .dichte = dichte};
    angaben.zeilen = static_cast<int>(Zustandszeilen(blatt.wahl).size());
    angaben.randbreite = Randbreite(blatt, masse);
    angaben.legendenhoehe = Legendenhoehe(blatt, masse, groesse.width() - angaben.randbreite - 4 * Abstand);
    return FeldFuer(angaben, masse);
}

QString Wertachsenname(const Verlaufswahl& wahl) {
    return Text(wahl.millimeter ? TextMillimeter : TextStrahlnummer);
}

void ZeichneSpuren(QPainter& maler, const Spaltenspeicher& spalten, const std::vector<Spaltensinn>& sinn,
                   const Verlaufsblatt& blatt, const Verlaufsfeld& feld, const Verlaufsfarben& alle,
                   int von) {
    const Kurvenfarben& farben = alle.rahmen;
    const Spurfeld spur{.spalten = spalten,
                        .sinn = sinn,
                        .erste = blatt.ersteSpalte,
                        .breite = feld.Spalten(),
                        .hoehe = feld.Kurvenhoehe(),
                        .werte = blatt.werte,
                        .dichte = feld.dichte};
    maler.setClipRect(von, 0, spur.breite - von, feld.Hoehe());
    maler.fillRect(von, 0, spur.breite - von, feld.Hoehe(), farben.grund);
    ZeichneGitter(maler, blatt, feld, farben, von);
    maler.setPen(Qt::NoPen);
    for (const QRect& luecke : Lueckenspur(spur, feld.Hoehe(), von))
        maler.fillRect(luecke, QBrush(farben.achsen, Qt::BDiagPattern));
    ZeichneZeilen(maler, spur, blatt, feld, farben, von);
    maler.setClipRect(von, 0, spur.breite - von, spur.hoehe);
    for (const Messreihe reihe : blatt.wahl.band ? blatt.wahl.Reihen() : std::vector<Messreihe>()) {
        QColor farbe = alle.Reihe(reihe);
        farbe.setAlpha(BandDeckung);
        Fuelle(maler, Bandspur(spur, blatt.wahl, blatt.abstaende, reihe, von), farbe);
    }
    // What begins before and reaches over is cut off, not left out.
    const int ab = std::max(0, von - Reichweite(feld.dichte));
    for (const Messreihe reihe : blatt.wahl.Reihen()) {
        Fuelle(maler, Kurvenspur(spur, blatt.wahl, blatt.abstaende, reihe, ab), alle.Reihe(reihe));
        for (const QPoint& ort : Zeichenspur(spur, blatt.wahl, blatt.abstaende, reihe, ab))
            ZeichneZeichen(maler, ort, reihe, feld.dichte, alle);
    }
    maler.setClipping(false);
}

Verlaufszeichner::Verlaufszeichner(QPainter& flaeche, const Verlaufsblatt& dasBlatt,
                                   const Verlaufsfeld& dasFeld, const Verlaufsfarben& dieFarben)
    : maler(flaeche), blatt(dasBlatt), feld(dasFeld), alleFarben(dieFarben), farben(dieFarben.rahmen),
      masse(flaeche.font()) {}

void Verlaufszeichner::ZeichneRahmen(const QRectF& platz) const {
    if (platz.left() < feld.kurven.left() - Abstand) {
        ZeichneWertzahlen();
        ZeichneZeilennamen();
    }
    ZeichneAchsen();
    if (platz.bottom() > feld.UnterkanteDerSpuren() + Randluft)
        ZeichneZeitachse();
    if (platz.top() < feld.Laufendes(QSizeF()).top() - Randluft)
        ZeichneLegende();
}

void Verlaufszeichner::ZeichneWertzahlen() const {
    const double rechts = feld.kurven.left() - Abstand;
    const auto schreibe = [&](double mitte, const QString& text) {
        maler.drawText(QPointF(rechts - masse.horizontalAdvance(text), mitte + masse.capHeight() / 2), text);
    };
    maler.setPen(farben.schrift);
    schreibe(feld.kurven.top() - masse.height() / 2 - Abstand, Wertachsenname(blatt.wahl));
    for (const double wert : Wertstriche(blatt, feld.kurven.height(), masse))
        schreibe(feld.YBei(wert, blatt.werte), Zahl(wert));
}

void Verlaufszeichner::ZeichneAchsen() const {
    maler.fillRect(QRectF(feld.kurven.left() - 1, feld.kurven.top(), 1, feld.kurven.height()), farben.achsen);
    maler.fillRect(QRectF(feld.kurven.left(), feld.kurven.bottom(), feld.kurven.width(), 1), farben.achsen);
}

void Verlaufszeichner::ZeichneZeitachse() const {
    const double grund = feld.UnterkanteDerSpuren() + Abstand + masse.ascent();
    maler.setPen(farben.schrift);
    for (const Zeitstrich& zeit : Zeitstriche(blatt.angaben, blatt.spanne, Zeitabstand(blatt, feld, masse))) {
        const double breite = masse.horizontalAdvance(Q(zeit.text));
        const double x =
            std::clamp(feld.XBei(zeit.laufzeit, blatt.spanne) - breite / 2, feld.kurven.left() - Randluft,
                       feld.kurven.right() + 2 * Abstand - breite);
        maler.drawText(QPointF(x, grund), Q(zeit.text));
    }
    const QString datum = Q(Datumsworte(blatt.angaben, blatt.spanne.von));
    maler.drawText(QPointF(feld.kurven.left(), grund + masse.height()), datum);
    const QString dauer = Q(Abstandstext(blatt.spanne.bis - blatt.spanne.von));
    const double links = feld.kurven.right() - masse.horizontalAdvance(dauer);
    if (links > feld.kurven.left() + masse.horizontalAdvance(datum) + Abstand)
        maler.drawText(QPointF(links, grund + masse.height()), dauer);
}

/// Rows that are too low for their names have that of their part.
void Verlaufszeichner::ZeichneZeilennamen() const {
    const auto zeilen = Zustandszeilen(blatt.wahl);
    const bool einzeln = HatNamen(feld, masse);
    double y = feld.zeilen.top();
    maler.setPen(farben.schrift);
    for (std::size_t i = 0; i < zeilen.size();) {
        std::size_t ende = i + 1;
        while (!einzeln && ende < zeilen.size() && zeilen[ende].teil == zeilen[i].teil)
            ++ende;
        const QString name = einzeln || zeilen[i].teil < 0 ? Zeilenname(zeilen[i]) : Teilname(zeilen[i].teil);
        const double hoehe = static_cast<double>(ende - i) * feld.zeilenhoehe;
        const QRectF platz(Abstand, y, feld.kurven.left() - 2 * Abstand, hoehe);
        maler.drawText(platz, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
                       masse.elidedText(name, Qt::ElideRight, platz.width()));
        y += hoehe;
        i = ende;
    }
}

void Verlaufszeichner::ZeichneLegende() const {
    for (const auto& [reihe, name, stelle] : Legende(blatt, masse, feld.kurven.left(), feld.kurven.width())) {
        ZeichneMuster(maler, QRectF(stelle, QSizeF(Musterlaenge, masse.height())), reihe, alleFarben);
        maler.setPen(farben.schrift);
        maler.drawText(stelle + QPointF(Musterlaenge + Abstand, masse.ascent()), name);
    }
}

void Verlaufszeichner::ZeichneDarueber() const {
    if (!blatt.hinweis.isEmpty()) {
        maler.setPen(farben.schrift);
        maler.drawText(feld.kurven, Qt::AlignCenter | Qt::TextWordWrap, blatt.hinweis);
    }
    ZeichneNotizen();
    if (blatt.jetzt)
        ZeichneSenkrechte(*blatt.jetzt, farben.objekt, Qt::SolidLine, {});
    if (blatt.markeA)
        ZeichneSenkrechte(*blatt.markeA, farben.schrift, Qt::DashLine, QStringLiteral("A"));
    if (blatt.markeB)
        ZeichneSenkrechte(*blatt.markeB, farben.schrift, Qt::DashLine, QStringLiteral("B"));
    if (blatt.zeiger)
        ZeichneSenkrechte(*blatt.zeiger, farben.marke, Qt::SolidLine, {});
}

void Verlaufszeichner::ZeichneNotizen() const {
    const double ende = feld.kurven.right() + Abstand;
    for (std::size_t i = 0; i < blatt.notizen.size(); ++i) {
        const Zeit zeit = blatt.notizen[i].laufzeit;
        if (zeit < blatt.spanne.von || zeit > blatt.spanne.bis)
            continue;
        const double x = feld.XBei(zeit, blatt.spanne);
        const double naechste =
            i + 1 < blatt.notizen.size() ? feld.XBei(blatt.notizen[i + 1].laufzeit, blatt.spanne) : ende;
        ZeichneSenkrechte(zeit, farben.schrift, Qt::DotLine, {});
        ZeichneFahne(x, std::min({ende, naechste - 2, x + BreitesteNotiz}), Q(blatt.notizen[i].text));
    }
}

void Verlaufszeichner::ZeichneFahne(double x, double rechts, const QString& text) const {
    const double hoehe = masse.height();
    const double breite = std::min(rechts - x, masse.horizontalAdvance(text) + 2 * Abstand);
    const QRectF fahne(x, feld.kurven.top() - hoehe - Abstand / 2, std::max(breite, Abstand), hoehe);
    maler.setPen(farben.achsen);
    maler.setBrush(farben.gitter);
    maler.drawRect(fahne);
    if (breite < 3 * Abstand)
        return;
    maler.setPen(farben.schrift);
    maler.drawText(fahne.adjusted(Abstand, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   masse.elidedText(text, Qt::ElideRight, breite - Abstand));
}

void Verlaufszeichner::ZeichneSenkrechte(Zeit zeit, const QColor& farbe, Qt::PenStyle stil,
                                         const QString& name) const {
    const double x = feld.XBei(zeit, blatt.spanne);
    if (x < feld.kurven.left() - 1 || x > feld.kurven.right() + 1)
        return;
    maler.setPen(QPen(farbe, 1, stil, Qt::FlatCap));
    maler.drawLine(QPointF(x, feld.kurven.top()), QPointF(x, feld.UnterkanteDerSpuren()));
    if (name.isEmpty())
        return;
    const QRectF schild(x + 1, feld.kurven.top(), masse.horizontalAdvance(name) + Abstand, masse.height());
    maler.fillRect(schild, farben.schrift);
    maler.setPen(farben.grund);
    maler.drawText(schild, Qt::AlignCenter, name);
}

} // namespace varnoth
