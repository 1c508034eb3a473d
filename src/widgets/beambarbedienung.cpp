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
    m_zugStart = stelle;
    m_zugAusschnitt = m_ausschnitt;
    m_bandEnde = GeraeteY(stelle);
    if (ereignis->button() == Qt::MiddleButton || (ereignis->button() == Qt::LeftButton && aufSkala)) {
        m_zug = Zug::Schieben;
    } else if (ereignis->button() == Qt::LeftButton && strahl >= 0) {
        SetzeCursor(strahl);
        m_zug = m_bedienart == Bedienart::Zoom ? Zug::Band : Zug::Malen;
        if (m_zug == Zug::Malen)
            BeginneMalen(strahl);
    }
}

void BeamBarControl::mouseMoveEvent(QMouseEvent* ereignis) {
    ZieheWeiter(ereignis->position());
    ZeigeUnterMaus(StrahlBei(ereignis->position()));
}

void BeamBarControl::mouseReleaseEvent(QMouseEvent* /*ereignis*/) {
    if (m_zug == Zug::Band)
        BeendeBand();
    m_zug = Zug::Keiner;
    Geaendert();
}

void BeamBarControl::mouseDoubleClickEvent(QMouseEvent* ereignis) {
    const bool zweiterKlick = m_bedienart == Bedienart::Blanking && StrahlBei(ereignis->position()) >= 0;
    if (zweiterKlick)
        mousePressEvent(ereignis);
    else if (ereignis->button() == Qt::LeftButton)
        ZeigeAlles();
}

void BeamBarControl::wheelEvent(QWheelEvent* ereignis) {
    const double rasten = ereignis->angleDelta().y() / Raststufe;
    const Ausschnitt vorher = m_ausschnitt;
    if (ereignis->modifiers().testFlag(Qt::ShiftModifier)) {
        ZeigeAusschnitt(Verschoben(m_ausschnitt, Strahlanzahl(), rasten * m_ausschnitt.anzahl / Seite));
    } else {
        const double y = ereignis->position().y() * devicePixelRatioF();
        const double um =
            std::clamp(Plan().feld.Position(y), m_ausschnitt.unten, m_ausschnitt.unten + m_ausschnitt.anzahl);
        ZeigeAusschnitt(Gezoomt(m_ausschnitt, Strahlanzahl(), um, std::pow(Zoomstufe, rasten)));
    }
    ereignis->setAccepted(vorher != m_ausschnitt);
    ZeigeUnterMaus(StrahlBei(ereignis->position()));
}

void BeamBarControl::keyPressEvent(QKeyEvent* ereignis) {
    if (Strahlanzahl() == 0)
        return QWidget::keyPressEvent(ereignis);
    if (Zoomtaste(ereignis->key()))
        return;
    if (const std::optional<int> ziel = Cursorziel(ereignis->key())) {
        m_zeigeCursor = true;
        SetzeCursor(std::clamp(*ziel, 0, Strahlanzahl() - 1));
        ZeigeUnterMaus(m_cursor);
    } else if (ereignis->key() == Qt::Key_Space && m_bedienart == Bedienart::Blanking) {
        BeginneMalen(m_cursor);
    } else {
        QWidget::keyPressEvent(ereignis);
    }
}

// The cursor shows to those who use the keyboard.
void BeamBarControl::focusInEvent(QFocusEvent* ereignis) {
    QWidget::focusInEvent(ereignis);
    m_zeigeCursor = ereignis->reason() == Qt::TabFocusReason || ereignis->reason() == Qt::BacktabFocusReason;
    Geaendert();
}

void BeamBarControl::focusOutEvent(QFocusEvent* ereignis) {
    QWidget::focusOutEvent(ereignis);
    Geaendert();
}

bool BeamBarControl::Zoomtaste(int taste) {
    const double mitte = m_cursor + 0.5;
    if (taste == Qt::Key_Plus)
        ZeigeAusschnitt(Gezoomt(m_ausschnitt, Strahlanzahl(), mitte, Zoomstufe));
    else if (taste == Qt::Key_Minus)
        ZeigeAusschnitt(Gezoomt(m_ausschnitt, Strahlanzahl(), mitte, 1 / Zoomstufe));
    else if (taste == Qt::Key_0)
        ZeigeAlles();
    else
        return false;
    return true;
}

std::optional<int> BeamBarControl::Cursorziel(int taste) const {
    switch (taste) {
    case Qt::Key_Up:
        return m_cursor + 1;
    case Qt::Key_Down:
        return m_cursor - 1;
    case Qt::Key_PageUp:
        return m_cursor + Seite;
    case Qt::Key_PageDown:
        return m_cursor - Seite;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return Strahlanzahl() - 1;
    default:
        return std::nullopt;
    }
}

void BeamBarControl::SetzeCursor(int strahl) {
    m_cursor = strahl;
    m_ausschnitt = MitStrahl(m_ausschnitt, Strahlanzahl(), strahl);
    Geaendert();
}

void BeamBarControl::ZeigeUnterMaus(int strahl) {
    if (strahl == m_zeiger)
        return;
    m_zeiger = strahl;
    emit StrahlUnterMaus(strahl);
    Geaendert();
}

void BeamBarControl::Blanke(int strahl, bool geblankt) {
    const Strahlzustand zustand = geblankt ? Strahlzustand::Geblankt : Strahlzustand::Frei;
    Strahlzustand& alter = m_zustaende[static_cast<std::size_t>(strahl)];
    if (alter == zustand)
        return;
    alter = zustand;
    Geaendert();
    emit BlankingGeaendert(strahl, geblankt);
}

void BeamBarControl::BeginneMalen(int strahl) {
    m_malzustand = Zustand(strahl) != Strahlzustand::Geblankt;
    m_letzterGemalt = strahl;
    Male(strahl, strahl);
}

void BeamBarControl::Male(int von, int bis) {
    for (int strahl = std::min(von, bis); strahl <= std::max(von, bis); ++strahl)
        Blanke(strahl, m_malzustand);
}

void BeamBarControl::ZieheWeiter(const QPointF& stelle) {
    if (m_zug == Zug::Keiner)
        return;
    const Strahlfeld feld = Plan().feld;
    const int y = std::clamp(GeraeteY(stelle), feld.oben, feld.oben + feld.hoehe - 1);
    if (m_zug == Zug::Schieben) {
        const double um =
            (stelle.y() - m_zugStart.y()) * devicePixelRatioF() / std::max(feld.Teilung(), 1e-6);
        ZeigeAusschnitt(Verschoben(m_zugAusschnitt, Strahlanzahl(), um));
    } else if (m_zug == Zug::Band) {
        m_bandEnde = y;
        Geaendert();
    } else if (const int strahl = feld.StrahlBei(y); strahl >= 0) {
        Male(m_letzterGemalt, strahl);
        m_letzterGemalt = strahl;
    }
}

void BeamBarControl::BeendeBand() {
    const int start = GeraeteY(m_zugStart);
    if (std::abs(start - m_bandEnde) < MindestBand * devicePixelRatioF())
        return;
    const Strahlfeld feld = Plan().feld;
    const double unten = std::floor(feld.Position(std::max(start, m_bandEnde)));
    const double oben = std::ceil(feld.Position(std::min(start, m_bandEnde)));
    const double mitte = (unten + oben) / 2;
    const double anzahl = std::max(oben - unten, MindestAusschnitt);
    ZeigeAusschnitt({mitte - anzahl / 2, anzahl});
}

} // namespace varnoth
