#include "verlaufsbild.h"

#include "durchgangssuche.h"
#include "texte.h"
#include "umgebung.h"
#include "verlaufsworte.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextLeer = 6330, TextKeineKurve = 6331, TextBild = 6333, TextKeinAbstand = 6358;

constexpr int WunschbreiteZeichen = 90;
constexpr int WunschhoeheZeilen = 26;
constexpr int MindestbreiteZeichen = 60;
constexpr int MindesthoeheZeilen = 12;
constexpr double Kopffreiheit = 1.03; // above the highest value that there can be
constexpr int UeblicheStrahlen = 100; // as long as none were measured

// What is done at one go, so that the next request never waits for it.
constexpr int PaketeJeBlick = 4;
constexpr Zeit LaengsterSchritt = std::chrono::milliseconds(2);

QString Text(std::int16_t id) {
    return QString::fromStdString(LadeText(id));
}

} // namespace

Verlaufsbild::Verlaufsbild(QWidget* eltern) : QWidget(eltern) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    Lokalisiere();
}

void Verlaufsbild::SetzeAnbieter(Messanbieter& neuer) {
    anbieter = &neuer;
    Beginne();
}

void Verlaufsbild::Beginne() {
    notizen.Beginne();
    blatt.notizen.clear();
    strahlen = {};
    blatt.zeiger = blatt.markeA = blatt.markeB = {};
    amZeiger = anMarkeA = anMarkeB = {};
    spalten.Beginne(Zeit(1));
    Erneuere();
    update();
    emit Angesehen();
}

void Verlaufsbild::Erneuere() {
    if (anbieter == nullptr)
        return;
    blatt.angaben = anbieter->Quelle().Angaben();
    blatt.abstaende = StrahlabstaendeVon(anbieter->Quelle());
    Richte();
    // A little that is new is exact before it is first drawn.
    MerkeGeaendert(spalten.Verfeinere(anbieter->Quelle(), PaketeJeBlick));
    Richte();
    Plane();
}

void Verlaufsbild::SetzeWahl(const Verlaufswahl& neue) {
    blatt.wahl = neue;
    Richte();
    emit Angesehen();
}

/// Brings view, columns and layout to what there is, what is chosen and how large the picture is.
void Verlaufsbild::Richte() {
    if (anbieter == nullptr)
        return;
    const Messquelle& quelle = anbieter->Quelle();
    const bool folgte = blick.Folgt();
    blick.SetzeGanzes(quelle.Spanne(), anbieter->Jetzt(), GanzeWerte());
    blatt.werte = blick.Werte();
    blatt.jetzt = anbieter->IstWiedergabe() ? std::optional(anbieter->Jetzt()) : std::nullopt;
    blatt.hinweis.clear();
    if (quelle.Erstes() == quelle.Ende())
        blatt.hinweis = Text(TextLeer);
    else if (blatt.wahl.kurven == 0)
        blatt.hinweis = Text(TextKeineKurve);
    else if (std::ranges::none_of(blatt.wahl.Reihen(), [&](Messreihe reihe) {
                 return Achsenwert(blatt.wahl, blatt.abstaende, reihe, 1).has_value();
             }))
        blatt.hinweis = Text(TextKeinAbstand);
    RichteFeld();
    RichteSpalten();
    MerkeStrahlen();
    if (folgte != blick.Folgt())
        emit Geblickt();
    FordereBild();
}

void Verlaufsbild::RichteFeld() {
    const Feldgrund grund{blatt.wahl, blatt.werte, size(), devicePixelRatioF()};
    if (std::exchange(feldVon, grund) != grund)
        feld = FeldFuer(blatt, QFontMetricsF(font()), size(), grund.dichte);
}

/// Has that drawn which looks otherwise than before: the columns that have changed, all that slides, or
/// everything.
void Verlaufsbild::FordereBild() {
    const Gezeigtes neues{Jetziges(), feld.kurven, blatt.jetzt, blatt.hinweis};
    Gezeigtes vorher = std::exchange(gefordert, neues);
    const bool geschoben = std::exchange(vorher.spuren.erste, neues.spuren.erste) != neues.spuren.erste;
    if (vorher != neues)
        update();
    else if (geschoben)
        update(feld.Laufendes(size()).toAlignedRect());
    else if (zuMalenAb != KeineSpalte)
        update(feld.Spaltenplatz(ErsteZuMalende()).toAlignedRect());
}

/// Counted from the left edge.
int Verlaufsbild::ErsteZuMalende() const {
    const std::int64_t ab = zuMalenAb - blatt.ersteSpalte - Reichweite(feld.dichte);
    return static_cast<int>(std::clamp<std::int64_t>(ab, 0, feld.Spalten()));
}

const Verlaufsfarben& Verlaufsbild::Farben() {
    const Farbgrund grund{palette(), GetStrahlfarbsatz()};
    if (std::exchange(farbenVon, grund) != grund) {
        farben = VerlaufsfarbenAus(grund.palette);
        gemaltVon = {};
    }
    return farben;
}

/// Columns lie where they lay before as long as their width is the same, so that they can be kept.
void Verlaufsbild::RichteSpalten() {
    const int anzahl = feld.Spalten();
    const Zeit breite = std::max(Zeit(1), (blick.Breite() + Zeit(anzahl - 1)) / anzahl);
    unsigned teile = 0;
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        teile |= blatt.wahl.HatTeil(teil) ? 1U << static_cast<unsigned>(teil) : 0U;
    if (breite != spalten.Breite() || teile != spalten.Teile())
        spalten.Beginne(breite, teile);
    blatt.ersteSpalte = spalten.NummerUm(blick.Spanne().bis) - anzahl + 1;
    blatt.spanne = {spalten.Beginn(blatt.ersteSpalte), spalten.Beginn(blatt.ersteSpalte + anzahl)};
    // What holds at the edges begins before them.
    const std::int64_t rand = Spaltenspeicher::LaengstePause / breite + 2;
    MerkeGeaendert(spalten.Decke(anbieter->Quelle(), blatt.ersteSpalte - rand, anzahl + 2 * rand));
    Deute();
}

void Verlaufsbild::MerkeGeaendert(std::optional<std::int64_t> ab) {
    geaendertAb = std::min(geaendertAb, ab.value_or(KeineSpalte));
}

/// Finds the first column that has to be drawn: what holds up to one that has changed may end otherwise.
void Verlaufsbild::Deute() {
    const auto vorher = std::exchange(sinn, spalten.Deute(anbieter->Jetzt()));
    const std::int64_t versatz = spalten.Erste() - std::exchange(sinnAb, spalten.Erste());
    std::int64_t ab = std::exchange(geaendertAb, KeineSpalte);
    const auto anzahl = static_cast<std::int64_t>(sinn.size());
    for (std::int64_t i = std::max<std::int64_t>(0, -versatz); i < anzahl && sinnAb + i < ab; ++i)
        if (i + versatz >= static_cast<std::int64_t>(vorher.size()) ||
            vorher[static_cast<std::size_t>(i + versatz)] != sinn[static_cast<std::size_t>(i)])
            ab = sinnAb + i;
    if (ab == KeineSpalte)
        return;
    while (ab > sinnAb && sinn[static_cast<std::size_t>(ab - sinnAb - 1)] != Spaltensinn::Gemessen)
        --ab;
    zuMalenAb = std::min(zuMalenAb, ab);
}

Wertebereich Verlaufsbild::GanzeWerte() const {
    double oben = 0;
    for (const Messreihe reihe : blatt.wahl.Reihen()) {
        const int anzahl = strahlen[static_cast<std::size_t>(reihe.teil)];
        oben = std::max(oben, Achsenwert(blatt.wahl, blatt.abstaende, reihe, anzahl).value_or(0));
    }
    return {0, (oben > 0 ? oben : UeblicheStrahlen) * Kopffreiheit};
}

/// The axis reaches over all beams that a part ever had.
void Verlaufsbild::MerkeStrahlen() {
    const auto vorher = strahlen;
    for (std::int64_t i = spalten.Erste(); i < spalten.Erste() + spalten.Anzahl(); ++i)
        for (std::size_t teil = 0; teil < strahlen.size(); ++teil)
            strahlen[teil] = std::max<int>(strahlen[teil], spalten.Spalte(i).teile[teil].strahlen);
    if (strahlen != vorher)
        Richte();
}

void Verlaufsbild::Plane() {
    if (IstFertig() || std::exchange(geplant, true))
        return;
    DieUmgebung().FuerWartezeit([bild = QPointer(this)] {
        if (bild == nullptr)
            return;
        bild->geplant = false;
        bild->Arbeite();
    });
}

bool Verlaufsbild::IstFertig() const {
    return anbieter == nullptr || (spalten.IstFertig() && notizen.IstFertig(anbieter->Quelle()));
}

void Verlaufsbild::Arbeite() {
    const Messquelle& quelle = anbieter->Quelle();
    const Zeit ende = DieUmgebung().Uhr() + LaengsterSchritt;
    bool anders = false;
    do {
        const auto ab = spalten.Verfeinere(quelle, PaketeJeBlick);
        MerkeGeaendert(ab);
        anders |= ab.has_value();
        if (spalten.IstFertig() && notizen.Suche(quelle, PaketeJeBlick)) {
            blatt.notizen = notizen.Notizen();
            update();
        }
    } while (!IstFertig() && DieUmgebung().Uhr() < ende);
    if (anders)
        Richte();
    Plane();
}

void Verlaufsbild::SiehNotizNach(Zeit laufzeit) {
    if (!notizen.SiehNach(anbieter->Quelle(), laufzeit))
        return;
    blatt.notizen = notizen.Notizen();
    update();
}

void Verlaufsbild::Nach(const std::function<void()>& bewegung) {
    bewegung();
    Richte();
    Plane();
    emit Geblickt();
}

void Verlaufsbild::Folge(bool neu) {
    Nach([&] { blick.Folge(neu); });
}

void Verlaufsbild::SetzeBreite(Zeit breite) {
    Nach([&] { blick.SetzeBreite(breite); });
}

void Verlaufsbild::ZeigeAlles() {
    Nach([&] { blick.ZeigeAlles(), blick.ZeigeAlleWerte(); });
}

void Verlaufsbild::SetzeZeiger(Zeit laufzeit) {
    if (anbieter == nullptr)
        return;
    amZeiger = DurchgangUm(anbieter->Quelle(), laufzeit);
    blatt.zeiger = amZeiger ? std::optional(amZeiger->uhr) : std::nullopt;
    setAccessibleDescription(Zeigerworte());
    update();
    emit Angesehen();
}

void Verlaufsbild::SetzeMarke(bool zweite) {
    (zweite ? anMarkeB : anMarkeA) = amZeiger;
    (zweite ? blatt.markeB : blatt.markeA) = blatt.zeiger;
    update();
    emit Angesehen();
}

void Verlaufsbild::LoescheMarken() {
    blatt.markeA = blatt.markeB = {};
    anMarkeA = anMarkeB = {};
    update();
    emit Angesehen();
}

QString Verlaufsbild::Zeigerworte() const {
    return amZeiger ? QString::fromStdString(
                          varnoth::Zeigerworte(blatt.angaben, *amZeiger, blatt.wahl, blatt.abstaende))
                    : QString();
}

QString Verlaufsbild::Markenworte() const {
    const auto zeiger = [](const auto& durchgang) { return durchgang ? &*durchgang : nullptr; };
    return QString::fromStdString(
        varnoth::Markenworte(blatt.angaben, zeiger(anMarkeA), zeiger(anMarkeB), blatt.wahl, blatt.abstaende));
}

QPointF Verlaufsbild::Stelle(Zeit laufzeit, double wert) const {
    return {feld.XBei(laufzeit, blatt.spanne), feld.YBei(wert, blatt.werte)};
}

void Verlaufsbild::Lokalisiere() {
    setAccessibleName(Text(TextBild));
    gemaltVon = {};
    feldVon.reset();
    Richte();
    update();
    setAccessibleDescription(Zeigerworte());
    emit Angesehen();
}

QSize Verlaufsbild::sizeHint() const {
    const QFontMetrics masse = fontMetrics();
    return {masse.averageCharWidth() * WunschbreiteZeichen, masse.height() * WunschhoeheZeilen};
}

QSize Verlaufsbild::minimumSizeHint() const {
    const QFontMetrics masse = fontMetrics();
    return {masse.averageCharWidth() * MindestbreiteZeichen, masse.height() * MindesthoeheZeilen};
}

void Verlaufsbild::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    Richte();
    Plane();
}

void Verlaufsbild::changeEvent(QEvent* ereignis) {
    QWidget::changeEvent(ereignis);
    gemaltVon = {};
    if (ereignis->type() == QEvent::FontChange) {
        feldVon.reset();
        Richte();
    }
    update();
}

Verlaufsbild::Gemaltes Verlaufsbild::Jetziges() const {
    return {.erste = blatt.ersteSpalte,
            .spaltenbreite = spalten.Breite(),
            .groesse = QSize(feld.Spalten(), feld.Hoehe()),
            .werte = blatt.werte,
            .wahl = blatt.wahl,
            .abstaende = blatt.abstaende,
            .angaben = blatt.angaben};
}

/// Moves what was drawn, and draws what is new or has changed since.
void Verlaufsbild::ErneuereGemaltes() {
    const Verlaufsfarben& jetzigeFarben = Farben();
    Gemaltes jetziges = Jetziges();
    const std::int64_t um = jetziges.erste - gemaltVon.erste;
    gemaltVon.erste = jetziges.erste;
    const bool passt = gemaltVon == jetziges && um >= 0 && um < jetziges.groesse.width();
    gemaltVon = jetziges;
    int von = 0;
    if (passt) {
        if (um > 0)
            gemaltes.scroll(static_cast<int>(-um), 0, gemaltes.rect());
        const std::int64_t neu = jetziges.groesse.width() - um;
        const std::int64_t ab = zuMalenAb == KeineSpalte ? neu : std::min(neu, zuMalenAb - jetziges.erste);
        von = ab < jetziges.groesse.width()
                  ? static_cast<int>(std::max<std::int64_t>(0, ab - Reichweite(feld.dichte)))
                  : jetziges.groesse.width();
    } else {
        gemaltes = QPixmap(jetziges.groesse);
    }
    zuMalenAb = KeineSpalte;
    if (von >= jetziges.groesse.width())
        return;
    QPainter maler(&gemaltes);
    maler.setFont(font());
    ZeichneSpuren(maler, spalten, sinn, blatt, feld, jetzigeFarben, von);
}

void Verlaufsbild::paintEvent(QPaintEvent* ereignis) {
    if (sinn.size() == static_cast<std::size_t>(spalten.Anzahl()))
        ErneuereGemaltes();
    const QRect platz = ereignis->rect();
    QPainter maler(this);
    maler.fillRect(platz, palette().color(QPalette::Base));
    maler.save();
    maler.scale(1 / feld.dichte, 1 / feld.dichte); // pixel by pixel, it is copied fast
    maler.drawPixmap(feld.kurven.topLeft() * feld.dichte, gemaltes);
    maler.restore();
    const Verlaufszeichner zeichner(maler, blatt, feld, Farben());
    zeichner.ZeichneRahmen(platz);
    zeichner.ZeichneDarueber();
}

void Verlaufsbild::Male(QPainter& maler, const QPalette& vorbild) {
    const Verlaufsfarben seine = VerlaufsfarbenAus(vorbild);
    QFont schrift = font(); // as high as on the screen, whatever the resolution of the device
    schrift.setPixelSize(QFontInfo(font()).pixelSize());
    maler.setFont(schrift);
    maler.fillRect(rect(), vorbild.color(QPalette::Base));
    maler.save();
    maler.translate(feld.kurven.topLeft());
    maler.scale(1 / feld.dichte, 1 / feld.dichte);
    ZeichneSpuren(maler, spalten, sinn, blatt, feld, seine, 0);
    maler.restore();
    const Verlaufszeichner zeichner(maler, blatt, feld, seine);
    zeichner.ZeichneRahmen(rect());
    zeichner.ZeichneDarueber();
}

} // namespace varnoth
