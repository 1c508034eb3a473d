#include "beambarcontrol.h"

#include "strahlbalkenzugang.h"
#include "strahlmasse.h"

#include <QFontInfo>
#include <QPaintEvent>
#include <QPainter>

#include <cmath>
#include <utility>

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
    RichteStrahlbalkenzugangEin();
}

void BeamBarControl::SetzeStrahlanzahl(int anzahl) {
    if (anzahl < 0 || anzahl == Strahlanzahl())
        return;
    zustaende.resize(static_cast<std::size_t>(anzahl), Strahlzustand::Frei);
    NimmAusschnitt(GanzerAusschnitt(anzahl));
    gewaehlt = IstStrahl(gewaehlt) ? gewaehlt : -1;
    cursor = IstStrahl(cursor) ? cursor : 0;
    zug = Zug::Keiner;
    ZeigeUnterMaus(IstStrahl(zeiger) ? zeiger : -1);
    Geaendert();
}

void BeamBarControl::SetzeStrahlabstand(int mm) {
    if (mm == abstandMm)
        return;
    abstandMm = mm;
    Geaendert();
}

void BeamBarControl::WaehleStrahl(int index) {
    gewaehlt = IstStrahl(index) ? index : -1;
}

void BeamBarControl::SetzeZustand(Strahlzustand zustand) {
    if (gewaehlt < 0)
        return;
    Strahlzustand& alter = zustaende[static_cast<std::size_t>(gewaehlt)];
    if (alter == zustand)
        return;
    alter = zustand;
    StrahlGeaendert(gewaehlt);
}

Strahlzustand BeamBarControl::Zustand() const {
    return Zustand(gewaehlt);
}

Strahlzustand BeamBarControl::Zustand(int index) const {
    return IstStrahl(index) ? zustaende[static_cast<std::size_t>(index)] : Strahlzustand::Frei;
}

void BeamBarControl::SetzeAutomatischesZeichnen(bool an) {
    automatisch = an;
    if (an && geaendert)
        Geaendert();
    if (an)
        ErneuereStrahlen();
}

void BeamBarControl::SetzeDatenstand(Datenstand neuer) {
    if (neuer == stand)
        return;
    stand = neuer;
    Geaendert();
}

void BeamBarControl::SetzeBeobachtung(bool an) {
    beobachtung = an;
    Geaendert();
}

void BeamBarControl::SetzeBedienart(Bedienart art) {
    bedienart = art;
}

void BeamBarControl::ZeigeAusschnitt(const Ausschnitt& gewuenscht) {
    NimmAusschnitt(Begrenzt(gewuenscht, Strahlanzahl()));
}

void BeamBarControl::NimmAusschnitt(const Ausschnitt& neuer) {
    if (neuer == ausschnitt)
        return;
    ausschnitt = neuer;
    Geaendert();
    emit AusschnittGeaendert();
}

void BeamBarControl::ZeigeAlles() {
    ZeigeAusschnitt(GanzerAusschnitt(Strahlanzahl()));
}

int BeamBarControl::StrahlBei(const QPointF& stelle) const {
    if (!QRectF(rect()).contains(stelle) || AufUebersicht(stelle))
        return -1;
    return Plan().feld.StrahlBei(GeraeteY(stelle));
}

QRect BeamBarControl::Kopfzeile() const {
    const Aufteilung plan = Plan();
    const double dichte = devicePixelRatioF();
    const int links = plan.skala > 0 ? static_cast<int>(std::ceil(plan.senderLinks / dichte)) : 2;
    const int hoehe = static_cast<int>(plan.feld.oben / dichte - Masse::Ueberstand);
    return {links, 0, std::max(0, width() - links), hoehe};
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

void BeamBarControl::paintEvent(QPaintEvent* ereignis) {
    QPainter maler(this);
    const double dichte = StelleAufGeraetepixel(maler);
    Marken marken;
    marken.zeiger = zeiger;
    marken.cursor = hasFocus() && zeigeCursor && IstStrahl(cursor) ? cursor : -1;
    if (zug == Zug::Band) {
        const int start = GeraeteY(zugStart);
        marken.bandOben = std::min(start, bandEnde);
        marken.bandHoehe = std::abs(start - bandEnde);
    }
    std::vector<Streifen> streifen;
    for (const QRect& teil : ereignis->region())
        streifen.push_back({static_cast<int>(std::floor((teil.top() - 1) * dichte)),
                            static_cast<int>(std::ceil((teil.bottom() + 2) * dichte))});
    bild.Zeichne(maler, Vorgabe(dichte), palette(), zustaende, marken, streifen);
}

Bildvorgabe BeamBarControl::Vorgabe(double dichte) const {
    QFont schrift = font();
    schrift.setPixelSize(std::max(1, static_cast<int>(std::lround(QFontInfo(font()).pixelSize() * dichte))));
    const QSize groesse(static_cast<int>(std::ceil(width() * dichte)),
                        static_cast<int>(std::ceil(height() * dichte)));
    return {groesse,    dichte, schrift,     Strahlanzahl(),     abstandMm,
            ausschnitt, stand,  beobachtung, GetStrahlfarbsatz()};
}

Aufteilung BeamBarControl::Plan() const {
    return bild.Plan(Vorgabe(devicePixelRatioF()));
}

int BeamBarControl::GeraeteY(const QPointF& stelle) const {
    return static_cast<int>(std::floor(stelle.y() * devicePixelRatioF()));
}

void BeamBarControl::Geaendert() {
    geaendert = !automatisch;
    if (automatisch)
        update();
}

void BeamBarControl::StrahlGeaendert(int strahl) {
    geaenderteStrahlen.push_back(strahl);
    if (automatisch)
        ErneuereStrahlen();
}

// Only what shows a beam that has changed: from scan to scan these are few.
void BeamBarControl::ErneuereStrahlen() {
    if (geaenderteStrahlen.empty())
        return;
    const std::vector<int> strahlen = std::exchange(geaenderteStrahlen, {});
    const Bildvorgabe vorgabe = Vorgabe(devicePixelRatioF());
    update(Strahlgebiet(vorgabe, bild.Plan(vorgabe), strahlen));
}

} // namespace varnoth
