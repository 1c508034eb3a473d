// Mouse and keyboard in the picture of a trend.

#include "durchgangssuche.h"
#include "verlaufsbild.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <cmath>

namespace varnoth {

namespace {

constexpr double Radstufe = 120;   // as Qt counts a step of a wheel
constexpr double Zoomstufe = 1.25; // by a step of a wheel
constexpr double Tastenzoom = 1.5;
constexpr int TeileJeSchritt = 10; // of the view, by which a key moves it

/// How long the cursor goes with one key: no shorter than a column, so that it is seen to move.
Zeit AnteilVon(Zeit breite) {
    return breite / TeileJeSchritt;
}

} // namespace

void Verlaufsbild::wheelEvent(QWheelEvent* ereignis) {
    const QPoint winkel = ereignis->angleDelta();
    const double stufen = (winkel.y() != 0 ? winkel.y() : winkel.x()) / Radstufe;
    const QPointF ort = ereignis->position();
    ereignis->accept();
    if (ereignis->modifiers().testFlag(Qt::ShiftModifier) || winkel.y() == 0)
        return Nach([&] {
            blick.Verschiebe(
                Zeit(std::llround(-stufen * static_cast<double>(AnteilVon(blick.Breite()).count()))));
        });
    const double faktor = std::pow(Zoomstufe, stufen);
    if (ereignis->modifiers().testFlag(Qt::ControlModifier) || ort.x() < feld.kurven.left())
        return Nach([&] { blick.ZoomeWerte(feld.WertBei(ort.y(), blatt.werte), faktor); });
    Nach([&] { blick.ZoomeZeit(feld.ZeitBei(ort.x(), blatt.spanne), faktor); });
}

void Verlaufsbild::mousePressEvent(QMouseEvent* ereignis) {
    if (ereignis->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(ereignis);
    gedrueckt = gezogenBis = ereignis->position();
    gezogen = false;
}

/// Without a button the cursor goes with the mouse; with it the picture does.
void Verlaufsbild::mouseMoveEvent(QMouseEvent* ereignis) {
    const QPointF ort = ereignis->position();
    if (!gedrueckt) {
        if (feld.kurven.left() <= ort.x() && ort.x() <= feld.kurven.right())
            SetzeZeiger(feld.ZeitBei(ort.x(), blatt.spanne));
        return;
    }
    gezogen |= (ort - *gedrueckt).manhattanLength() >= QApplication::startDragDistance();
    if (!gezogen)
        return;
    const QPointF um = ort - gezogenBis;
    const Zeit zeit = feld.ZeitBei(gezogenBis.x(), blatt.spanne) - feld.ZeitBei(ort.x(), blatt.spanne);
    const double wert = feld.WertBei(0, blatt.werte) - feld.WertBei(um.y(), blatt.werte);
    gezogenBis = ort;
    setCursor(Qt::ClosedHandCursor);
    Nach([&] { blick.Verschiebe(zeit), blick.VerschiebeWerte(-wert); });
}

void Verlaufsbild::mouseReleaseEvent(QMouseEvent* ereignis) {
    if (ereignis->button() != Qt::LeftButton || !gedrueckt)
        return QWidget::mouseReleaseEvent(ereignis);
    unsetCursor();
    const QPointF ort = *std::exchange(gedrueckt, std::nullopt);
    if (gezogen || ort.x() < feld.kurven.left() || ort.x() > feld.kurven.right())
        return;
    const Zeit laufzeit = feld.ZeitBei(ort.x(), blatt.spanne);
    SetzeZeiger(laufzeit);
    emit Angeklickt(laufzeit.count());
}

void Verlaufsbild::mouseDoubleClickEvent(QMouseEvent* /*ereignis*/) {
    ZeigeAlles();
}

/// To the next pass, or so far that the cursor is seen to move.
void Verlaufsbild::GehZumDurchgang(int richtung, bool einzeln) {
    if (anbieter == nullptr)
        return;
    const Messquelle& quelle = anbieter->Quelle();
    const Zeit von = blatt.zeiger.value_or(blatt.spanne.bis);
    auto ziel = richtung < 0 ? DurchgangVor(quelle, von) : DurchgangNach(quelle, von);
    const Zeit spalte = von + richtung * spalten.Breite();
    if (ziel && !einzeln && (richtung < 0 ? ziel->uhr > spalte : ziel->uhr < spalte))
        ziel = DurchgangUm(quelle, spalte);
    if (!ziel)
        return;
    SetzeZeiger(ziel->uhr);
    if (ziel->uhr < blatt.spanne.von || ziel->uhr > blatt.spanne.bis)
        Nach([&] { blick.ZeigeZeit(ziel->uhr); });
}

bool Verlaufsbild::Taste(int taste, Qt::KeyboardModifiers mit) {
    const bool umschalt = mit.testFlag(Qt::ShiftModifier);
    const bool strg = mit.testFlag(Qt::ControlModifier);
    const int richtung = taste == Qt::Key_Left ? -1 : 1;
    const Zeit mitte = blatt.zeiger.value_or((blatt.spanne.von + blatt.spanne.bis) / 2);
    const double wertmitte = (blatt.werte.unten + blatt.werte.oben) / 2;
    const double wertschritt = (blatt.werte.oben - blatt.werte.unten) / TeileJeSchritt;
    switch (taste) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (umschalt)
            Nach([&] { blick.Verschiebe(richtung * AnteilVon(blick.Breite())); });
        else
            GehZumDurchgang(richtung, strg);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        Nach([&] { blick.VerschiebeWerte(taste == Qt::Key_Up ? wertschritt : -wertschritt); });
        return true;
    case Qt::Key_Plus:
    case Qt::Key_Minus: {
        const double faktor = taste == Qt::Key_Plus ? Tastenzoom : 1 / Tastenzoom;
        Nach([&] { strg ? blick.ZoomeWerte(wertmitte, faktor) : blick.ZoomeZeit(mitte, faktor); });
        return true;
    }
    case Qt::Key_Home:
        Nach([&] { blick.Folge(false), blick.ZeigeZeit(anbieter->Quelle().Spanne().von); });
        return true;
    case Qt::Key_End:
        Folge(true);
        return true;
    case Qt::Key_0:
        ZeigeAlles();
        return true;
    case Qt::Key_A:
    case Qt::Key_B:
        SetzeMarke(taste == Qt::Key_B);
        return true;
    case Qt::Key_Delete:
        LoescheMarken();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (blatt.zeiger)
            emit Angeklickt(blatt.zeiger->count());
        return true;
    default:
        return false;
    }
}

void Verlaufsbild::keyPressEvent(QKeyEvent* ereignis) {
    if (anbieter == nullptr || !Taste(ereignis->key(), ereignis->modifiers()))
        QWidget::keyPressEvent(ereignis);
}

} // namespace varnoth
