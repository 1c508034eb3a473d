#include "wasserfallbild.h"

#include "messanbieter.h"
#include "registeradressen.h"
#include "strahlworte.h"
#include "texte.h"
#include "textmitwerten.h"
#include "uebersicht.h"
#include "umgebung.h"
#include "zeitworte.h"

#include <QEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextStelle = 6446, TextKeineDaten = 6447, TextAnsage = 6470;

constexpr Zeit LiveDauer = std::chrono::minutes(2); // that is in view at first
constexpr int PaketeJeBild = 24;                    // so that a picture never waits for long

} // namespace

Wasserfallbild::Wasserfallbild(QWidget* eltern) : QWidget(eltern) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Wasserfallbild::SetzeAnbieter(Messanbieter& neuer) {
    anbieter = &neuer;
    NimmNeueQuelle();
}

void Wasserfallbild::SetzeTeil(int neuer) {
    if (neuer == teil)
        return;
    teil = neuer;
    ausschnitt = {};
    LiesStrahlen();
    SetzeStelle({});
    update();
}

void Wasserfallbild::NimmNeueQuelle() {
    reduktion.Vergiss();
    neuZuZeigen = true;
    ausschnitt = {};
    Waehle({});
    SetzeStelle({});
    LiesStrahlen();
    SetzeBlick(anbieter != nullptr && anbieter->IstWiedergabe() ? Blick::Alles : Blick::Folgt);
}

void Wasserfallbild::NimmZuwachs() {
    LiesStrahlen();
    FolgeQuelle();
    update();
}

/// As many beams as the configuration says, or as were measured where those are more.
void Wasserfallbild::LiesStrahlen() {
    if (anbieter == nullptr)
        return;
    const Messquelle& quelle = anbieter->Quelle();
    int strahlen = 0;
    int abstand = 0;
    if (quelle.Ende() > quelle.Erstes()) {
        const std::uint64_t paket = quelle.PaketUm(anbieter->Jetzt());
        if (const auto abbild = quelle.Konfiguration(paket)) {
            strahlen = abbild->HoleRegister(Spezifisch, spezifisch::Strahlenzahl, teil);
            abstand = abbild->HoleRegister(Spezifisch, spezifisch::Aufloesung, teil);
        }
        const Uebersicht& uebersicht = quelle.DieUebersicht();
        if (uebersicht.Anzahl() > 0)
            strahlen =
                std::max(strahlen, uebersicht.Strahlen(uebersicht.AbschnittUm(anbieter->Jetzt()), teil));
    }
    strahlen = std::clamp(strahlen, 0, MaxStrahlregister * 16);
    if (strahlen != vorgabe.strahlen || ausschnitt == Ausschnitt{})
        ausschnitt = GanzerAusschnitt(strahlen);
    vorgabe.strahlen = strahlen;
    vorgabe.abstandMm = std::max(0, abstand);
    Richte();
}

void Wasserfallbild::Richte() {
    vorgabe.dichte = devicePixelRatioF();
    vorgabe.groesse = size() * vorgabe.dichte;
    vorgabe.schrift = font();
    if (const double punkte = font().pointSizeF(); punkte > 0)
        vorgabe.schrift.setPixelSize(
            std::max(1, static_cast<int>(std::lround(punkte * logicalDpiY() / 72 * vorgabe.dichte))));
    plan = TeileAuf(vorgabe);
    if (plan.flaeche.width() != fenster.spalten)
        fenster = MitSpalten(fenster, plan.flaeche.width());
}

void Wasserfallbild::FolgeQuelle() {
    if (anbieter == nullptr || anbieter->Quelle().Ende() == anbieter->Quelle().Erstes())
        return;
    const Zeitspanne alles = anbieter->Quelle().Spanne();
    const Zeit jetzt = anbieter->Jetzt();
    if (blick == Blick::Alles && (neuZuZeigen || fenster.Bis() <= alles.bis || fenster.Von() > alles.von))
        fenster = FensterUm(alles, plan.flaeche.width());
    if (blick == Blick::Folgt && neuZuZeigen)
        fenster.breite = Spaltenstufe(LiveDauer / std::max(1, fenster.spalten));
    if (blick == Blick::Folgt)
        fenster = BisZu(fenster, jetzt);
    neuZuZeigen = !isVisible(); // only then it has its size
}

void Wasserfallbild::SetzeBlick(Blick neuer) {
    const bool anderer = neuer != blick;
    blick = neuer;
    if (neuer == Blick::Alles && anbieter != nullptr && !neuZuZeigen)
        fenster = FensterUm(anbieter->Quelle().Spanne(), plan.flaeche.width());
    FolgeQuelle();
    update();
    if (anderer)
        emit BlickGeaendert();
}

void Wasserfallbild::ZeigeAlles() {
    SetzeAusschnitt(GanzerAusschnitt(vorgabe.strahlen));
    SetzeBlick(Blick::Alles);
}

void Wasserfallbild::SetzeFenster(const Zeitfenster& neues) {
    fenster = MitSpalten(neues, plan.flaeche.width());
    SetzeBlick(Blick::Fest);
}

void Wasserfallbild::SetzeAusschnitt(const Ausschnitt& neuer) {
    ausschnitt = Begrenzt(neuer, vorgabe.strahlen);
    update();
}

void Wasserfallbild::Waehle(std::optional<Zeitspanne> zeitraum) {
    if (zeitraum == marken.gewaehlt)
        return;
    marken.gewaehlt = zeitraum;
    update();
    emit ZeitraumGeaendert();
}

void Wasserfallbild::SetzeStelle(std::optional<Strahlstelle> neue) {
    if (neue == marken.stelle)
        return;
    marken.stelle = neue;
    update();
    emit StelleGeaendert();
}

Zeit Wasserfallbild::ZeitBei(double x) const {
    return Zeit(static_cast<Zeit::rep>((static_cast<double>(fenster.erste) + x - plan.flaeche.left()) *
                                       static_cast<double>(fenster.breite.count())));
}

QPointF Wasserfallbild::PunktVon(const Strahlstelle& stelle) const {
    const double x =
        plan.flaeche.left() + static_cast<double>(fenster.SpalteUm(stelle.zeit) - fenster.erste) + 0.5;
    return QPointF(x, Feld().Y(stelle.strahl + 0.5)) / vorgabe.dichte;
}

std::optional<Strahlstelle> Wasserfallbild::StelleBei(const QPointF& punkt) const {
    const QPointF stelle = Geraetepunkt(punkt);
    const int strahl = Feld().StrahlBei(static_cast<int>(std::floor(stelle.y())));
    if (strahl < 0 || stelle.x() < plan.flaeche.left() || stelle.x() >= plan.flaeche.right() + 1)
        return {};
    return Strahlstelle{ZeitBei(stelle.x()), strahl};
}

QString Wasserfallbild::Stellentext() const {
    if (!marken.stelle || anbieter == nullptr)
        return {};
    const auto [zeit, strahl] = *marken.stelle;
    const Zellenart zelle = Stellenzelle().value_or(Zellenart::Leer);
    const std::string platz = Strahlplatz(strahl, vorgabe.abstandMm);
    return QString::fromStdString(
        LadeTextMit(TextStelle, {Strahlname(strahl, strahl) + (platz.empty() ? "" : ", " + platz),
                                 Zeitworte(anbieter->Quelle().Angaben(), zeit), Zellenworte(zelle)}));
}

QString Wasserfallbild::Ansage() const {
    if (anbieter == nullptr || vorgabe.strahlen == 0)
        return QString::fromStdString(LadeText(TextKeineDaten));
    const Messangaben angaben = anbieter->Quelle().Angaben();
    const std::string text =
        LadeTextMit(TextAnsage, {std::to_string(vorgabe.strahlen), Zeitworte(angaben, fenster.Von()),
                                 Zeitworte(angaben, fenster.Bis())});
    const QString stelle = Stellentext();
    return QString::fromStdString(text) + (stelle.isEmpty() ? QString() : QStringLiteral("; ") + stelle);
}

/// What is drawn at the place; nothing where it has not been drawn yet.
std::optional<Zellenart> Wasserfallbild::Stellenzelle() const {
    if (!marken.stelle || reduktion.Breite() != fenster.breite || reduktion.Teil() != teil)
        return {};
    return Strahlzelle(reduktion.Spalte(fenster.SpalteUm(marken.stelle->zeit)), marken.stelle->strahl);
}

/// Who tells of the place hears when there is something else to tell.
void Wasserfallbild::VergleicheStelle() {
    if (std::exchange(erzaehlteZelle, Stellenzelle()) != erzaehlteZelle)
        QMetaObject::invokeMethod(this, &Wasserfallbild::StelleGeaendert, Qt::QueuedConnection);
}

void Wasserfallbild::Rechne() {
    reduktion.Setze(teil, fenster.breite);
    unvollstaendig = !reduktion.Rechne(anbieter->Quelle(), fenster.erste, fenster.spalten, PaketeJeBild);
    if (unvollstaendig)
        PlaneMehr();
}

/// What could not be read for this picture is read for the next one, while the line is busy.
void Wasserfallbild::PlaneMehr() {
    if (std::exchange(mehrGeplant, true))
        return;
    DieUmgebung().FuerWartezeit([bild = QPointer(this)] {
        if (bild == nullptr)
            return;
        bild->mehrGeplant = false;
        bild->update();
    });
}

void Wasserfallbild::paintEvent(QPaintEvent* /*ereignis*/) {
    Richte();
    QPainter maler(this);
    if (anbieter == nullptr || vorgabe.strahlen == 0) {
        maler.fillRect(rect(), palette().base());
        maler.setPen(palette().color(QPalette::Text));
        maler.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap,
                       QString::fromStdString(LadeText(TextKeineDaten)));
        return;
    }
    Rechne();
    VergleicheStelle();
    maler.scale(1 / vorgabe.dichte, 1 / vorgabe.dichte);
    Wasserfallmarken gezeigte = marken;
    if (anbieter->IstWiedergabe())
        gezeigte.wiedergabe = anbieter->Jetzt();
    zeichner.Zeichne(maler, vorgabe, palette(),
                     {.spalten = reduktion,
                      .fenster = fenster,
                      .ausschnitt = ausschnitt,
                      .angaben = anbieter->Quelle().Angaben()},
                     gezeigte);
}

QImage Wasserfallbild::AlsBild() {
    QImage bild(size() * devicePixelRatioF(), QImage::Format_RGB32);
    bild.setDevicePixelRatio(devicePixelRatioF());
    render(&bild);
    return bild;
}

void Wasserfallbild::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    Richte();
    if (blick == Blick::Alles && anbieter != nullptr && !neuZuZeigen)
        fenster = FensterUm(anbieter->Quelle().Spanne(), plan.flaeche.width());
    FolgeQuelle();
}

bool Wasserfallbild::event(QEvent* ereignis) {
    if (ereignis->type() == QEvent::FontChange || ereignis->type() == QEvent::PaletteChange ||
        ereignis->type() == QEvent::StyleChange)
        update();
    return QWidget::event(ereignis);
}

} // namespace varnoth
