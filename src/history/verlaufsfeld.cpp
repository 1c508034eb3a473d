#include "verlaufsfeld.h"

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

constexpr double Abstand = 6;
constexpr double HoechsterZeilenanteil = 0.4;
constexpr double NiedrigsteZeile = 3;
constexpr double LesbareZeile = 0.8; // of the height of letters

} // namespace

int Verlaufsfeld::Spalten() const {
    return std::max(1, static_cast<int>(std::lround(kurven.width() * dichte)));
}

int Verlaufsfeld::Kurvenhoehe() const {
    return std::max(1, static_cast<int>(std::lround(kurven.height() * dichte)));
}

int Verlaufsfeld::Hoehe() const {
    return std::max(1, static_cast<int>(std::lround((UnterkanteDerSpuren() - kurven.top()) * dichte)));
}

double Verlaufsfeld::UnterkanteDerSpuren() const {
    return zeilen.isEmpty() ? kurven.bottom() : zeilen.bottom();
}

QRectF Verlaufsfeld::Laufendes(QSizeF groesse) const {
    const QPointF ecke(kurven.left() - Randluft, kurven.top() - zeile - Abstand);
    return {ecke, QPointF(groesse.width(), groesse.height())};
}

QRectF Verlaufsfeld::Spaltenplatz(int von) const {
    const double links = kurven.left() + von / dichte;
    return {links, kurven.top(), kurven.right() + Randluft - links, UnterkanteDerSpuren() - kurven.top()};
}

Zeit Verlaufsfeld::ZeitBei(double x, Zeitspanne spanne) const {
    const double anteil = (x - kurven.left()) / std::max(1.0, kurven.width());
    return spanne.von + Zeit(std::llround(anteil * static_cast<double>((spanne.bis - spanne.von).count())));
}

double Verlaufsfeld::XBei(Zeit zeit, Zeitspanne spanne) const {
    const auto ganz = static_cast<double>(std::max(Zeit(1), spanne.bis - spanne.von).count());
    return kurven.left() + kurven.width() * static_cast<double>((zeit - spanne.von).count()) / ganz;
}

double Verlaufsfeld::WertBei(double y, const Wertebereich& werte) const {
    const double anteil = (kurven.bottom() - y) / std::max(1.0, kurven.height());
    return werte.unten + anteil * (werte.oben - werte.unten);
}

double Verlaufsfeld::YBei(double wert, const Wertebereich& werte) const {
    return kurven.bottom() - kurven.height() * (wert - werte.unten) / (werte.oben - werte.unten);
}

Verlaufsfeld FeldFuer(const Feldangaben& angaben, const QFontMetricsF& masse) {
    const double zeile = masse.height();
    const auto gerastet = [&](double laenge) { return std::floor(laenge * angaben.dichte) / angaben.dichte; };
    const double links = gerastet(angaben.randbreite + 2 * Abstand);
    const double oben =
        gerastet(angaben.legendenhoehe + zeile + 3 * Abstand); // notes have a line of their own
    const double unten = 2 * zeile + 2 * Abstand;              // the times, the date
    const double breite = std::max(1.0, gerastet(angaben.groesse.width() - links - 2 * Abstand));
    const double hoehe = std::max(1.0, angaben.groesse.height() - oben - unten);
    Verlaufsfeld feld;
    feld.dichte = angaben.dichte;
    feld.zeile = zeile;
    double zeilenhoehe = 0;
    if (angaben.zeilen > 0)
        feld.zeilenhoehe =
            std::clamp(hoehe * HoechsterZeilenanteil / angaben.zeilen, NiedrigsteZeile, zeile + 1);
    if (angaben.zeilen > 0)
        zeilenhoehe = angaben.zeilen * feld.zeilenhoehe;
    const double luft = angaben.zeilen > 0 ? Abstand : 0;
    feld.kurven = QRectF(links, oben, breite, std::max(1.0, gerastet(hoehe - zeilenhoehe - luft)));
    if (angaben.zeilen > 0)
        feld.zeilen = QRectF(links, feld.kurven.bottom() + luft, breite, zeilenhoehe);
    return feld;
}

bool HatNamen(const Verlaufsfeld& feld, const QFontMetricsF& masse) {
    return feld.zeilenhoehe >= LesbareZeile * masse.height();
}

} // namespace varnoth
