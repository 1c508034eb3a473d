#include "svgpfad.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace varnoth {

namespace {

/// Takes a description apart, from left to right.
class Leser {
public:
    explicit Leser(QStringView beschreibung) : rest(beschreibung) {}

    /// The next command, or the last one once more where numbers follow at once; 0 at the end.
    char16_t Befehl() {
        UeberspringeTrenner();
        if (rest.isEmpty() || fehlerhaft)
            return 0;
        if (rest.front().isLetter()) {
            befehl = rest.front().unicode();
            rest = rest.sliced(1);
            return befehl;
        }
        if (befehl == u'Z' || befehl == u'z')
            return 0;
        if (befehl == u'M' || befehl == u'm')
            befehl = befehl == u'M' ? u'L' : u'l';
        return befehl;
    }

    double Zahl() {
        UeberspringeTrenner();
        const qsizetype laenge = Zahllaenge();
        bool gelesen = false;
        const double zahl = rest.first(laenge).toDouble(&gelesen);
        fehlerhaft = fehlerhaft || !gelesen;
        rest = rest.sliced(laenge);
        return gelesen ? zahl : 0;
    }

    /// 0 or 1, which may stand without anything before the next number.
    bool Schalter() {
        UeberspringeTrenner();
        const bool an = rest.startsWith(u'1');
        fehlerhaft = fehlerhaft || (!an && !rest.startsWith(u'0'));
        rest = rest.sliced(std::min<qsizetype>(1, rest.size()));
        return an;
    }

    bool IstFehlerhaft() const { return fehlerhaft; }

private:
    void UeberspringeTrenner() {
        while (!rest.isEmpty() && (rest.front().isSpace() || rest.front() == u','))
            rest = rest.sliced(1);
    }

    qsizetype Zahllaenge() const {
        qsizetype laenge = !rest.isEmpty() && (rest.front() == u'-' || rest.front() == u'+') ? 1 : 0;
        bool punkt = false;
        while (laenge < rest.size() && (rest[laenge].isDigit() || (rest[laenge] == u'.' && !punkt)))
            punkt = rest[laenge++] == u'.' || punkt;
        return laenge;
    }

    QStringView rest;
    char16_t befehl = 0;
    bool fehlerhaft = false;
};

double InGrad(double winkel) {
    return winkel * 180 / std::numbers::pi;
}

/// How an arc runs from where a path stands.
struct Bogen {
    QPointF radien;
    bool gross = false;           ///< the longer way round
    bool imUhrzeigersinn = false; ///< as one sees it
    QPointF ziel;
};

/// Reckons where the ellipse is a circle of radius one; radii too small for the way grow.
void HaengeAn(QPainterPath& pfad, const Bogen& bogen) {
    const auto gestaucht = [&bogen](QPointF punkt) {
        return QPointF(punkt.x() / bogen.radien.x(), punkt.y() / bogen.radien.y());
    };
    const QPointF von = gestaucht(pfad.currentPosition());
    const QPointF bis = gestaucht(bogen.ziel);
    const QPointF sehne = (von - bis) / 2;
    const double halbe = std::hypot(sehne.x(), sehne.y());
    if (halbe == 0)
        return;
    const double radius = std::max(1.0, halbe);
    const double seite = bogen.gross != bogen.imUhrzeigersinn ? 1 : -1;
    const double abstand = seite * std::sqrt(radius * radius - halbe * halbe) / halbe;
    const QPointF mitte = (von + bis) / 2 + abstand * QPointF(sehne.y(), -sehne.x());
    const double anfang = std::atan2(von.y() - mitte.y(), von.x() - mitte.x());
    double weite = std::atan2(bis.y() - mitte.y(), bis.x() - mitte.x()) - anfang;
    if (bogen.imUhrzeigersinn && weite < 0)
        weite += 2 * std::numbers::pi;
    else if (!bogen.imUhrzeigersinn && weite > 0)
        weite -= 2 * std::numbers::pi;
    const QPointF ecke = mitte - QPointF(radius, radius);
    pfad.arcTo(QRectF(ecke.x() * bogen.radien.x(), ecke.y() * bogen.radien.y(), 2 * radius * bogen.radien.x(),
                      2 * radius * bogen.radien.y()),
               -InGrad(anfang), -InGrad(weite));
}

/// Appends what one command says. The numbers of a relative command count from `ort`.
bool FuehreAus(char16_t befehl, Leser& leser, QPainterPath& pfad) {
    const bool relativ = QChar(befehl).isLower();
    const QPointF ort = relativ ? pfad.currentPosition() : QPointF();
    const auto punkt = [&leser, ort] {
        const double x = leser.Zahl();
        return ort + QPointF(x, leser.Zahl());
    };
    switch (QChar(befehl).toUpper().unicode()) {
    case u'M':
        pfad.moveTo(punkt());
        return true;
    case u'L':
        pfad.lineTo(punkt());
        return true;
    case u'H':
        pfad.lineTo(ort.x() + leser.Zahl(), pfad.currentPosition().y());
        return true;
    case u'V':
        pfad.lineTo(pfad.currentPosition().x(), ort.y() + leser.Zahl());
        return true;
    case u'C': {
        const QPointF erster = punkt();
        const QPointF zweiter = punkt();
        pfad.cubicTo(erster, zweiter, punkt());
        return true;
    }
    case u'A': {
        Bogen bogen;
        bogen.radien.setX(leser.Zahl());
        bogen.radien.setY(leser.Zahl());
        leser.Zahl(); // how far the ellipse is turned
        bogen.gross = leser.Schalter();
        bogen.imUhrzeigersinn = leser.Schalter();
        bogen.ziel = punkt();
        HaengeAn(pfad, bogen);
        return true;
    }
    case u'Z':
        pfad.closeSubpath();
        return true;
    default:
        return false;
    }
}

} // namespace

QPainterPath LiesSvgPfad(QStringView beschreibung) {
    Leser leser(beschreibung);
    QPainterPath pfad;
    while (const char16_t befehl = leser.Befehl()) {
        QPainterPath laenger = pfad;
        if (!FuehreAus(befehl, leser, laenger) || leser.IstFehlerhaft())
            break;
        pfad = laenger;
    }
    return pfad;
}

} // namespace varnoth
