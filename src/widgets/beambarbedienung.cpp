// What mouse and keyboard do on a beam bar.

#include "beambarcontrol.h"

#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

constexpr int MindestBand = 4;
constexpr int Seite = 10;
constexpr double Zoomstufe = 1.25;
constexpr double Raststufe = 120;

} // namespace

void BeamBarControl::mousePressEvent(QMouseEvent* ereignis) {
    const QPointF stelle = ereignis->position();
    const int strahl = StrahlBei(stelle);
    const Aufteilung plan = Plan();
    const bool aufSkala = stelle.x() * devicePixelRatioF() < plan.senderLinks;
    zugStart = stelle;
    zugAusschnitt = ausschnitt;
    bandEnde = GeraeteY(stelle);
    if (ereignis->button() == Qt::LeftButton && AufUebersicht(stelle)) {
        zug = Zug::Uebersicht;
        GeheInUebersicht(stelle);
    } else if (ereignis->button() == Qt::MiddleButton || (ereignis->button() == Qt::LeftButton && aufSkala)) {
        zug = Zug::Schieben;
    } else if (ereignis->button() == Qt::LeftButton && strahl >= 0) {
        SetzeCursor(strahl);
        zug = bedienart == Bedienart::Zoom ? Zug::Band : Zug::Malen;
        if (zug == Zug::Malen)
            BeginneMalen(strahl);
    }
}

void BeamBarControl::mouseMoveEvent(QMouseEvent* ereignis) {
    ZieheWeiter(ereignis->position());
    zeigerstelle = ereignis->position();
    ZeigeUnterMaus(StrahlBei(ereignis->position()));
}

void BeamBarControl::mouseReleaseEvent(QMouseEvent* /*ereignis*/) {
    if (zug == Zug::Band)
        BeendeBand();
    zug = Zug::Keiner;
    Geaendert();
}

void BeamBarControl::mouseDoubleClickEvent(QMouseEvent* ereignis) {
    const bool zweiterKlick = bedienart == Bedienart::Blanking && StrahlBei(ereignis->position()) >= 0;
    if (zweiterKlick)
        mousePressEvent(ereignis);
    else if (ereignis->button() == Qt::LeftButton)
        ZeigeAlles();
}

void BeamBarControl::wheelEvent(QWheelEvent* ereignis) {
    const double rasten = ereignis->angleDelta().y() / Raststufe;
    const Ausschnitt vorher = ausschnitt;
    if (ereignis->modifiers().testFlag(Qt::ShiftModifier)) {
        ZeigeAusschnitt(Verschoben(ausschnitt, Strahlanzahl(), rasten * ausschnitt.anzahl / Seite));
    } else {
        const double y = ereignis->position().y() * devicePixelRatioF();
        const double um =
            std::clamp(Plan().feld.Position(y), ausschnitt.unten, ausschnitt.unten + ausschnitt.anzahl);
        ZeigeAusschnitt(Gezoomt(ausschnitt, Strahlanzahl(), um, std::pow(Zoomstufe, rasten)));
    }
    ereignis->setAccepted(vorher != ausschnitt);
    zeigerstelle = ereignis->position();
    ZeigeUnterMaus(StrahlBei(ereignis->position()));
}

void BeamBarControl::keyPressEvent(QKeyEvent* ereignis) {
    if (Strahlanzahl() == 0)
        return QWidget::keyPressEvent(ereignis);
    if (Zoomtaste(ereignis->key()))
        return;
    if (const std::optional<int> ziel = Cursorziel(ereignis->key())) {
        zeigeCursor = true;
        SetzeCursor(std::clamp(*ziel, 0, Strahlanzahl() - 1));
        zeigerstelle = Strahlmitte(cursor);
        ZeigeUnterMaus(cursor);
    } else if (ereignis->key() == Qt::Key_Space && bedienart == Bedienart::Blanking) {
        BeginneMalen(cursor);
    } else {
        QWidget::keyPressEvent(ereignis);
    }
}

// The cursor shows to those who use the keyboard.
void BeamBarControl::focusInEvent(QFocusEvent* ereignis) {
    QWidget::focusInEvent(ereignis);
    zeigeCursor = ereignis->reason() == Qt::TabFocusReason || ereignis->reason() == Qt::BacktabFocusReason;
    Geaendert();
}

void BeamBarControl::focusOutEvent(QFocusEvent* ereignis) {
    QWidget::focusOutEvent(ereignis);
    Geaendert();
}

bool BeamBarControl::Zoomtaste(int taste) {
    const double mitte = cursor + 0.5;
    if (taste == Qt::Key_Plus)
        ZeigeAusschnitt(Gezoomt(ausschnitt, Strahlanzahl(), mitte, Zoomstufe));
    else if (taste == Qt::Key_Minus)
        ZeigeAusschnitt(Gezoomt(ausschnitt, Strahlanzahl(), mitte, 1 / Zoomstufe));
    else if (taste == Qt::Key_0)
        ZeigeAlles();
    else
        return false;
    return true;
}

std::optional<int> BeamBarControl::Cursorziel(int taste) const {
    switch (taste) {
    case Qt::Key_Up:
        return cursor + 1;
    case Qt::Key_Down:
        return cursor - 1;
    case Qt::Key_PageUp:
        return cursor + Seite;
    case Qt::Key_PageDown:
        return cursor - Seite;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return Strahlanzahl() - 1;
    default:
        return std::nullopt;
    }
}

void BeamBarControl::SetzeCursor(int strahl) {
    cursor = strahl;
    NimmAusschnitt(MitStrahl(ausschnitt, Strahlanzahl(), strahl));
    Geaendert();
}

void BeamBarControl::ZeigeUnterMaus(int strahl) {
    if (strahl == zeiger)
        return;
    zeiger = strahl;
    emit StrahlUnterMaus(strahl);
    Geaendert();
}

void BeamBarControl::Blanke(int strahl, bool geblankt) {
    const Strahlzustand zustand = geblankt ? Strahlzustand::Geblankt : Strahlzustand::Frei;
    Strahlzustand& alter = zustaende[static_cast<std::size_t>(strahl)];
    if (alter == zustand)
        return;
    alter = zustand;
    Geaendert();
    emit BlankingGeaendert(strahl, geblankt);
}

void BeamBarControl::BeginneMalen(int strahl) {
    malzustand = Zustand(strahl) != Strahlzustand::Geblankt;
    letzterGemalt = strahl;
    Male(strahl, strahl);
}

void BeamBarControl::Male(int von, int bis) {
    for (int strahl = std::min(von, bis); strahl <= std::max(von, bis); ++strahl)
        Blanke(strahl, malzustand);
}

void BeamBarControl::ZieheWeiter(const QPointF& stelle) {
    if (zug == Zug::Keiner)
        return;
    const Strahlfeld feld = Plan().feld;
    const int y = std::clamp(GeraeteY(stelle), feld.oben, feld.oben + feld.hoehe - 1);
    if (zug == Zug::Uebersicht) {
        GeheInUebersicht(stelle);
    } else if (zug == Zug::Schieben) {
        const double um = (stelle.y() - zugStart.y()) * devicePixelRatioF() / std::max(feld.Teilung(), 1e-6);
        ZeigeAusschnitt(Verschoben(zugAusschnitt, Strahlanzahl(), um));
    } else if (zug == Zug::Band) {
        bandEnde = y;
        Geaendert();
    } else if (const int strahl = feld.StrahlBei(y); strahl >= 0) {
        Male(letzterGemalt, strahl);
        letzterGemalt = strahl;
    }
}

bool BeamBarControl::AufUebersicht(const QPointF& stelle) const {
    const Aufteilung plan = Plan();
    return plan.uebersicht > 0 && stelle.x() * devicePixelRatioF() >= plan.uebersichtLinks;
}

// The view moves so that its middle lies where the pointer is in the strip.
void BeamBarControl::GeheInUebersicht(const QPointF& stelle) {
    const Strahlfeld feld = Plan().feld;
    const Strahlfeld alles{feld.oben, feld.hoehe, Strahlanzahl(), GanzerAusschnitt(Strahlanzahl())};
    const double mitte = alles.Position(GeraeteY(stelle));
    ZeigeAusschnitt({mitte - ausschnitt.anzahl / 2, ausschnitt.anzahl});
}

void BeamBarControl::BeendeBand() {
    const int start = GeraeteY(zugStart);
    if (std::abs(start - bandEnde) < MindestBand * devicePixelRatioF())
        return;
    const Strahlfeld feld = Plan().feld;
    const double unten = std::floor(feld.Position(std::max(start, bandEnde)));
    const double oben = std::ceil(feld.Position(std::min(start, bandEnde)));
    const double mitte = (unten + oben) / 2;
    const double anzahl = std::max(oben - unten, MindestAusschnitt);
    ZeigeAusschnitt({mitte - anzahl / 2, anzahl});
}

} // namespace varnoth
