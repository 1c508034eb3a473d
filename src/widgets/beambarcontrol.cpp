#include "beambarcontrol.h"

#include <QEvent>
#include <QFontInfo>
#include <QPainter>

#include <cmath>

namespace varnoth {

namespace {

// Makes one unit of a painter one device pixel with the origin on a whole one, and gives the pixels that a
// logical unit had: at 150 % a widget may begin between two pixels.
double StelleAufGeraetepixel(QPainter& maler) {
    const QTransform ganz = maler.deviceTransform();
    const QTransform danach = maler.worldTransform().inverted() * ganz;
    maler.setWorldTransform(QTransform::fromTranslate(std::round(ganz.dx()), std::round(ganz.dy())) *
                            danach.inverted());
    return ganz.m11();
}

} // namespace

BeamBarControl::BeamBarControl(QWidget* eltern) : QWidget(eltern) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(QStringLiteral("BeamBar"));
}

void BeamBarControl::SetzeStrahlanzahl(int anzahl) {
    if (anzahl < 0 || anzahl == Strahlanzahl())
        return;
    m_zustaende.resize(static_cast<std::size_t>(anzahl), Strahlzustand::Frei);
    m_ausschnitt = GanzerAusschnitt(anzahl);
    m_gewaehlt = IstStrahl(m_gewaehlt) ? m_gewaehlt : -1;
    m_cursor = IstStrahl(m_cursor) ? m_cursor : 0;
    m_zug = Zug::Keiner;
    ZeigeUnterMaus(IstStrahl(m_zeiger) ? m_zeiger : -1);
    Geaendert();
}

void BeamBarControl::SetzeStrahlabstand(int mm) {
    if (mm == m_abstandMm)
        return;
    m_abstandMm = mm;
    Geaendert();
}

void BeamBarControl::WaehleStrahl(int index) {
    m_gewaehlt = IstStrahl(index) ? index : -1;
}

void BeamBarControl::SetzeZustand(Strahlzustand zustand) {
    if (m_gewaehlt < 0)
        return;
    Strahlzustand& alter = m_zustaende[static_cast<std::size_t>(m_gewaehlt)];
    if (alter == zustand)
        return;
    alter = zustand;
    Geaendert();
}

Strahlzustand BeamBarControl::Zustand() const {
    return Zustand(m_gewaehlt);
}

Strahlzustand BeamBarControl::Zustand(int index) const {
    return IstStrahl(index) ? m_zustaende[static_cast<std::size_t>(index)] : Strahlzustand::Frei;
}

void BeamBarControl::SetzeAutomatischesZeichnen(bool an) {
    m_automatisch = an;
    if (an && m_geaendert)
        Geaendert();
}

void BeamBarControl::SetzeBedienart(Bedienart art) {
    m_bedienart = art;
}

void BeamBarControl::ZeigeAusschnitt(const Ausschnitt& ausschnitt) {
    const Ausschnitt neuer = Begrenzt(ausschnitt, Strahlanzahl());
    if (neuer == m_ausschnitt)
        return;
    m_ausschnitt = neuer;
    Geaendert();
}

void BeamBarControl::ZeigeAlles() {
    ZeigeAusschnitt(GanzerAusschnitt(Strahlanzahl()));
}

int BeamBarControl::StrahlBei(const QPointF& stelle) const {
    if (!QRectF(rect()).contains(stelle))
        return -1;
    return Plan().feld.StrahlBei(GeraeteY(stelle));
}

QPointF BeamBarControl::Strahlmitte(int strahl) const {
    const Aufteilung plan = Plan();
    return QPointF(plan.strahlenLinks + plan.strahlenBreite / 2.0, plan.feld.Y(strahl + 0.5)) /
           devicePixelRatioF();
}

QSize BeamBarControl::sizeHint() const {
    return {320, 420};
}

QSize BeamBarControl::minimumSizeHint() const {
    return {64, 80};
}

bool BeamBarControl::event(QEvent* ereignis) {
    if (ereignis->type() == QEvent::Leave)
        ZeigeUnterMaus(-1);
    return QWidget::event(ereignis);
}

void BeamBarControl::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    const double dichte = StelleAufGeraetepixel(maler);
    Marken marken;
    marken.zeiger = m_zeiger;
    marken.cursor = hasFocus() && m_zeigeCursor && IstStrahl(m_cursor) ? m_cursor : -1;
    if (m_zug == Zug::Band) {
        const int start = GeraeteY(m_zugStart);
        marken.bandOben = std::min(start, m_bandEnde);
        marken.bandHoehe = std::abs(start - m_bandEnde);
    }
    m_bild.Zeichne(maler, Vorgabe(dichte), palette(), m_zustaende, marken);
}

Bildvorgabe BeamBarControl::Vorgabe(double dichte) const {
    QFont schrift = font();
    schrift.setPixelSize(std::max(1, static_cast<int>(std::lround(QFontInfo(font()).pixelSize() * dichte))));
    const QSize groesse(static_cast<int>(std::ceil(width() * dichte)),
                        static_cast<int>(std::ceil(height() * dichte)));
    return {groesse, dichte, schrift, Strahlanzahl(), m_abstandMm, m_ausschnitt};
}

Aufteilung BeamBarControl::Plan() const {
    return TeileAuf(Vorgabe(devicePixelRatioF()));
}

int BeamBarControl::GeraeteY(const QPointF& stelle) const {
    return static_cast<int>(std::floor(stelle.y() * devicePixelRatioF()));
}

void BeamBarControl::Geaendert() {
    m_geaendert = !m_automatisch;
    if (m_automatisch)
        update();
}

} // namespace varnoth
