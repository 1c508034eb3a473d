#include "wasserfallbild.h"

#include "messanbieter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

/// What mouse and keyboard do on a waterfall.
namespace varnoth {

namespace {

constexpr int StufenJeRaste = 2;
constexpr double StrahlzoomJeRaste = 1.25;
constexpr double Raste = 120;
constexpr int GrosserSchritt = 10; // of the cursor, with Ctrl

Zeitspanne Geordnet(Zeit eine, Zeit andere) {
    return {std::min(eine, andere), std::max(eine, andere)};
}

} // namespace

void Wasserfallbild::ZoomeZeit(Zeit um, int schritte) {
    if (blick == Blick::Folgt) {
        fenster = Gezoomt(fenster, fenster.Bis() - fenster.breite, schritte);
        FolgeQuelle();
        return update();
    }
    SetzeFenster(Gezoomt(fenster, um, schritte));
}

void Wasserfallbild::ZoomeStrahlen(double um, double faktor) {
    SetzeAusschnitt(Gezoomt(ausschnitt, vorgabe.strahlen, um, faktor));
}

void Wasserfallbild::wheelEvent(QWheelEvent* ereignis) {
    const QPointF punkt = Geraetepunkt(ereignis->position());
    const QPoint winkel = ereignis->angleDelta();
    radrest += winkel.y() != 0 ? winkel.y() : winkel.x();
    const int rasten = static_cast<int>(radrest / Raste);
    radrest -= rasten * Raste;
    if (rasten != 0 && (plan.IstUeberNummern(punkt) || ereignis->modifiers().testFlag(Qt::ControlModifier)))
        ZoomeStrahlen(Feld().Position(punkt.y()), std::pow(StrahlzoomJeRaste, rasten));
    else if (rasten != 0)
        ZoomeZeit(ZeitBei(punkt.x()), -rasten * StufenJeRaste);
    ereignis->accept();
}

void Wasserfallbild::mousePressEvent(QMouseEvent* ereignis) {
    setFocus(Qt::MouseFocusReason);
    const QPointF punkt = Geraetepunkt(ereignis->position());
    const bool schiebt =
        ereignis->button() == Qt::MiddleButton ||
        (ereignis->button() == Qt::LeftButton && ereignis->modifiers().testFlag(Qt::ShiftModifier));
    if (!schiebt && ereignis->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(ereignis);
    zug = schiebt                       ? Zug::Schieben
          : plan.IstUeberZeiten(punkt)  ? Zug::Zeitzoom
          : plan.IstUeberNummern(punkt) ? Zug::Strahlzoom
                                        : Zug::Waehlen;
    gezogen = false;
    zugBeginn = punkt;
    zugFenster = fenster;
    zugAusschnitt = ausschnitt;
}

void Wasserfallbild::mouseMoveEvent(QMouseEvent* ereignis) {
    SetzeStelle(StelleBei(ereignis->position()));
    const QPointF punkt = Geraetepunkt(ereignis->position());
    if (zug == Zug::Keiner)
        return;
    gezogen = gezogen ||
              (punkt - zugBeginn).manhattanLength() >= QApplication::startDragDistance() * vorgabe.dichte;
    if (gezogen)
        ZieheWeiter(punkt);
}

void Wasserfallbild::ZieheWeiter(const QPointF& punkt) {
    const QRect& flaeche = plan.flaeche;
    const auto spalte = [&](double x) {
        return std::clamp(static_cast<int>(x), flaeche.left(), flaeche.right());
    };
    const auto reihe = [&](double y) {
        return std::clamp(static_cast<int>(y), flaeche.top(), flaeche.bottom());
    };
    switch (zug) {
    case Zug::Keiner:
        return;
    case Zug::Waehlen:
        return Waehle(Geordnet(ZeitBei(spalte(zugBeginn.x())), ZeitBei(spalte(punkt.x()))));
    case Zug::Schieben: {
        const Zeitspanne alles = anbieter != nullptr ? anbieter->Quelle().Spanne() : Zeitspanne{};
        SetzeFenster(Verschoben(zugFenster, std::llround(zugBeginn.x() - punkt.x()), alles));
        return SetzeAusschnitt(Verschoben(zugAusschnitt, vorgabe.strahlen,
                                          (punkt.y() - zugBeginn.y()) / std::max(Feld().Teilung(), 1e-9)));
    }
    case Zug::Zeitzoom:
        marken.band =
            QRect(QPoint(spalte(zugBeginn.x()), flaeche.top()), QPoint(spalte(punkt.x()), flaeche.bottom()))
                .normalized();
        break;
    case Zug::Strahlzoom:
        marken.band =
            QRect(QPoint(flaeche.left(), reihe(zugBeginn.y())), QPoint(flaeche.right(), reihe(punkt.y())))
                .normalized();
        break;
    }
    update();
}

void Wasserfallbild::mouseReleaseEvent(QMouseEvent* ereignis) {
    if (zug == Zug::Keiner)
        return QWidget::mouseReleaseEvent(ereignis);
    BeendeZug(ereignis->position());
    zug = Zug::Keiner;
    marken.band = {};
    update();
}

void Wasserfallbild::BeendeZug(const QPointF& punkt) {
    if (!gezogen) {
        if (const auto stelle = StelleBei(punkt); stelle && zug == Zug::Waehlen)
            emit ZeitAngeklickt(stelle->zeit.count());
        return;
    }
    const QRect& band = marken.band;
    if (zug == Zug::Zeitzoom)
        SetzeFenster(FensterUm({ZeitBei(band.left()), ZeitBei(band.right() + 1)}, fenster.spalten));
    if (zug == Zug::Strahlzoom) {
        const double unten = Feld().Position(band.bottom() + 1);
        SetzeAusschnitt({unten, Feld().Position(band.top()) - unten});
    }
}

void Wasserfallbild::mouseDoubleClickEvent(QMouseEvent* ereignis) {
    if (ereignis->button() == Qt::LeftButton)
        ZeigeAlles();
}

void Wasserfallbild::leaveEvent(QEvent* ereignis) {
    QWidget::leaveEvent(ereignis);
    if (zug == Zug::Keiner && !hasFocus())
        SetzeStelle({});
}

void Wasserfallbild::keyPressEvent(QKeyEvent* ereignis) {
    if (!Zoomtaste(*ereignis) && !Wahltaste(*ereignis) && !Cursortaste(*ereignis))
        QWidget::keyPressEvent(ereignis);
}

bool Wasserfallbild::Zoomtaste(const QKeyEvent& taste) {
    const bool naeher = taste.key() == Qt::Key_Plus || taste.key() == Qt::Key_Equal;
    if (taste.key() == Qt::Key_0 || taste.key() == Qt::Key_Backspace) {
        ZeigeAlles();
        return true;
    }
    if (!naeher && taste.key() != Qt::Key_Minus)
        return false;
    const Zeit mitte = fenster.Von() + fenster.spalten / 2 * fenster.breite;
    if (taste.modifiers().testFlag(Qt::ControlModifier))
        ZoomeStrahlen(marken.stelle ? marken.stelle->strahl + 0.5 : ausschnitt.unten + ausschnitt.anzahl / 2,
                      naeher ? StrahlzoomJeRaste : 1 / StrahlzoomJeRaste);
    else
        ZoomeZeit(marken.stelle ? marken.stelle->zeit : mitte, naeher ? -StufenJeRaste : StufenJeRaste);
    return true;
}

bool Wasserfallbild::Wahltaste(const QKeyEvent& taste) {
    switch (taste.key()) {
    case Qt::Key_Escape:
        if (!marken.gewaehlt)
            return false;
        Waehle({});
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (marken.stelle)
            emit ZeitAngeklickt(marken.stelle->zeit.count());
        return marken.stelle.has_value();
    default:
        return false;
    }
}

/// The cursor walks by columns and beams and takes the picture along. With Shift it chooses the time that it
/// walks over.
bool Wasserfallbild::Cursortaste(const QKeyEvent& taste) {
    const int schritt = taste.modifiers().testFlag(Qt::ControlModifier) ? GrosserSchritt : 1;
    Strahlstelle ziel = marken.stelle.value_or(
        Strahlstelle{fenster.Von() + fenster.spalten / 2 * fenster.breite, vorgabe.strahlen / 2});
    const Zeit vorher = ziel.zeit;
    switch (taste.key()) {
    case Qt::Key_Left:
        ziel.zeit -= schritt * fenster.breite;
        break;
    case Qt::Key_Right:
        ziel.zeit += schritt * fenster.breite;
        break;
    case Qt::Key_Up:
        ziel.strahl += schritt;
        break;
    case Qt::Key_Down:
        ziel.strahl -= schritt;
        break;
    case Qt::Key_PageUp:
        ziel.zeit -= fenster.spalten / 2 * fenster.breite;
        break;
    case Qt::Key_PageDown:
        ziel.zeit += fenster.spalten / 2 * fenster.breite;
        break;
    case Qt::Key_Home:
        ziel.zeit = anbieter != nullptr ? anbieter->Quelle().Spanne().von : Zeit{};
        break;
    case Qt::Key_End:
        ziel.zeit = anbieter != nullptr ? anbieter->Quelle().Spanne().bis : Zeit{};
        break;
    default:
        return false;
    }
    ziel.strahl = std::clamp(ziel.strahl, 0, std::max(0, vorgabe.strahlen - 1));
    SetzeAusschnitt(MitStrahl(ausschnitt, vorgabe.strahlen, ziel.strahl));
    if (ziel.zeit != vorher) {
        const std::int64_t spalte = fenster.SpalteUm(ziel.zeit);
        const std::int64_t links = std::max<std::int64_t>(0, fenster.erste - spalte);
        const std::int64_t rechts = std::max<std::int64_t>(0, spalte - fenster.erste - fenster.spalten + 1);
        if (links > 0 || rechts > 0) {
            Zeitfenster neues = fenster;
            neues.erste += rechts - links;
            SetzeFenster(neues);
        }
        if (taste.modifiers().testFlag(Qt::ShiftModifier)) {
            const Zeitspanne bisher = marken.gewaehlt.value_or(Zeitspanne{vorher, vorher});
            const Zeit fest = vorher == bisher.von ? bisher.bis : bisher.von;
            Waehle(Geordnet(fest, ziel.zeit));
        }
    }
    SetzeStelle(ziel);
    return true;
}

} // namespace varnoth
