#include "strahlbild.h"

#include "strahlhintergrund.h"
#include "strahlmasse.h"
#include "strahlmuster.h"
#include "strahlschraffur.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

int Zahlenbreite(const QFontMetrics& masse, int groesste) {
    return masse.horizontalAdvance(QString(QString::number(groesste).size(), u'0'));
}

Strahlfeld TeileHoehe(const Bildvorgabe& vorgabe, int zeile) {
    const auto pixel = [&vorgabe](double logisch) { return Geraetepixel(logisch, vorgabe.dichte); };
    const bool mitKopf = vorgabe.abstandMm > 0 || vorgabe.beobachtung;
    const int oben = pixel(Masse::Rand + Masse::Ueberstand) + (mitKopf ? zeile : 0);
    const int unten = pixel(Masse::Rand + Masse::Ueberstand);
    return {oben, std::max(1, vorgabe.groesse.height() - oben - unten), vorgabe.strahlen, vorgabe.ausschnitt};
}

QColor Uebersichtsfarbe(const Strahlfarben& farben, Strahlzustand zustand) {
    if (zustand == Strahlzustand::Unterbrochen)
        return farben.unterbrochen;
    return AlsFlaeche(zustand == Strahlzustand::Geblankt ? farben.geblankt : farben.frei, farben.grund);
}

constexpr std::size_t MeisteStrecken = 8; // more are drawn faster as one

// Beams in a row, from the first to the last.
struct Strecke {
    int von;
    int bis;
};

std::vector<Strecke> Strecken(std::vector<int> strahlen) {
    std::ranges::sort(strahlen);
    std::vector<Strecke> strecken;
    for (const int strahl : strahlen)
        if (strecken.empty() || strahl > strecken.back().bis + 1)
            strecken.push_back({strahl, strahl});
        else
            strecken.back().bis = strahl;
    return strecken;
}

bool LiegtIn(std::span<const Streifen> streifen, const Zeile& zeile, int rand) {
    return std::ranges::any_of(streifen, [&](const Streifen& einer) {
        return zeile.oben - rand < einer.unten && zeile.oben + zeile.hoehe + rand > einer.oben;
    });
}

// A small triangle beside a beam.
void ZeichnePfeil(QPainter& maler, double x, double y, double breite, const QColor& farbe) {
    QPainterPath pfad;
    pfad.moveTo(x, y);
    pfad.lineTo(x - breite, y - std::abs(breite));
    pfad.lineTo(x - breite, y + std::abs(breite));
    maler.fillPath(pfad, farbe);
}

} // namespace

Aufteilung TeileAuf(const Bildvorgabe& vorgabe) {
    const auto pixel = [&vorgabe](double logisch) { return Geraetepixel(logisch, vorgabe.dichte); };
    const QFontMetrics masse(vorgabe.schrift);
    Aufteilung plan;
    plan.feld = TeileHoehe(vorgabe, masse.height());
    plan.gehaeuse = pixel(Masse::Gehaeuse);
    if (vorgabe.abstandMm > 0)
        plan.skala = std::max(Zahlenbreite(masse, vorgabe.abstandMm * vorgabe.strahlen),
                              masse.horizontalAdvance(QStringLiteral("mm"))) +
                     pixel(Masse::Rand) + pixel(Masse::Strich + 2 * Masse::Luecke);
    plan.nummern = Zahlenbreite(masse, vorgabe.strahlen) + pixel(Masse::Luecke);
    const int rand = pixel(Masse::Rand + Masse::Leiste);
    if (vorgabe.ZeigtUebersicht())
        plan.uebersicht = pixel(Masse::Uebersicht);
    const int rechterRand = plan.uebersicht > 0 ? plan.uebersicht + 2 * pixel(Masse::Luecke) : rand;
    const auto frei = [&] {
        return vorgabe.groesse.width() - plan.skala - plan.nummern - 2 * plan.gehaeuse - rand - rechterRand;
    };
    if (frei() < pixel(Masse::MindestStrahl))
        plan.nummern = 0;
    if (frei() < pixel(Masse::MindestStrahl))
        plan.skala = 0;
    plan.senderLinks = plan.skala > 0 ? plan.skala + pixel(Masse::Luecke) : rand;
    plan.strahlenLinks = plan.senderLinks + plan.gehaeuse;
    plan.strahlenBreite = std::max(1, vorgabe.groesse.width() - plan.strahlenLinks - plan.gehaeuse -
                                          plan.nummern - rechterRand);
    plan.uebersichtLinks = vorgabe.groesse.width() - plan.uebersicht - pixel(Masse::Luecke);
    return plan;
}

QRegion Strahlgebiet(const Bildvorgabe& vorgabe, const Aufteilung& plan, std::span<const int> strahlen) {
    const std::vector<Strecke> strecken = Strecken({strahlen.begin(), strahlen.end()});
    const QRect alles(QPoint(), (QSizeF(vorgabe.groesse) / vorgabe.dichte).toSize() + QSize(1, 1));
    if (plan.uebersicht > 0 || strecken.size() > MeisteStrecken)
        return alles;
    const int rand = Geraetepixel(Masse::Meldung, vorgabe.dichte) + 1;
    QRegion gebiet;
    for (const auto& [von, bis] : strecken) {
        const int oben = plan.feld.Unterkante(bis + 1) - rand;
        const int hoehe = plan.feld.Unterkante(von) + rand - oben;
        const QRectF flaeche(plan.strahlenLinks, oben, plan.strahlenBreite + plan.gehaeuse, hoehe);
        const QRectF logisch(flaeche.topLeft() / vorgabe.dichte, flaeche.size() / vorgabe.dichte);
        gebiet += logisch.toAlignedRect().adjusted(-1, -1, 1, 1) & alles;
    }
    return gebiet;
}

void Strahlbild::Zeichne(QPainter& maler, const Bildvorgabe& neueVorgabe, const QPalette& neuePalette,
                         std::span<const Strahlzustand> zustaende, const Marken& marken,
                         std::span<const Streifen> streifen) {
    Bereite(neueVorgabe, neuePalette);
    maler.drawPixmap(0, 0, hintergrund);
    if (vorgabe.stand != Datenstand::Ungueltig)
        ZeichneStrahlen(maler, zustaende, streifen);
    if (aufteilung.uebersicht > 0)
        ZeichneUebersicht(maler, zustaende);
    ZeichneMarken(maler, marken);
}

Aufteilung Strahlbild::Plan(const Bildvorgabe& gesucht) const {
    return gesucht == vorgabe ? aufteilung : TeileAuf(gesucht);
}

void Strahlbild::Bereite(const Bildvorgabe& neueVorgabe, const QPalette& neuePalette) {
    if (!hintergrund.isNull() && neueVorgabe == vorgabe && neuePalette == palette)
        return;
    vorgabe = neueVorgabe;
    palette = neuePalette;
    farben = FarbenAus(palette, vorgabe.stand, vorgabe.farbsatz);
    aufteilung = TeileAuf(vorgabe);
    hintergrund = Hintergrund(vorgabe, aufteilung, farben);
    if (vorgabe.stand == Datenstand::Ungueltig) {
        QPainter maler(&hintergrund);
        Schraffiere(maler, aufteilung, farben, vorgabe.dichte);
    }
    muster = Musterbogen({aufteilung.strahlenBreite, aufteilung.feld.Teilung(), vorgabe.dichte}, farben);
}

void Strahlbild::ZeichneStrahlen(QPainter& maler, std::span<const Strahlzustand> zustaende,
                                 std::span<const Streifen> streifen) const {
    const Strahlfeld& feld = aufteilung.feld;
    const Musterformat format{aufteilung.strahlenBreite, feld.Teilung(), vorgabe.dichte};
    const int links = aufteilung.strahlenLinks;
    const int rand = Geraetepixel(Masse::Meldung, vorgabe.dichte);
    std::vector<Zeile> zeilen = Zeilen(feld, zustaende);
    std::erase_if(zeilen, [=](const Zeile& zeile) { return !LiegtIn(streifen, zeile, rand); });
    maler.save();
    maler.setClipRect(links, feld.oben, aufteilung.strahlenBreite, feld.hoehe);
    for (const Zeile& zeile : zeilen)
        maler.drawPixmap(QPoint(links, zeile.oben), muster, format.Stelle(zeile.zustand, zeile.hoehe));
    maler.setClipRect(aufteilung.EmpfaengerLinks(), feld.oben, aufteilung.gehaeuse, feld.hoehe);
    MeldeUnterbrochene(maler, zeilen);
    maler.restore();
}

// On the receiver's long lens, where nothing else is hidden, a single row gets a mark high enough to be
// found.
void Strahlbild::MeldeUnterbrochene(QPainter& maler, const std::vector<Zeile>& zeilen) const {
    if (aufteilung.feld.Teilung() >= Masse::MeldungUnter * vorgabe.dichte)
        return;
    const auto pixel = [this](double logisch) { return Geraetepixel(logisch, vorgabe.dichte); };
    const int links = aufteilung.EmpfaengerLinks() + pixel(Masse::Luecke) - pixel(1);
    const int mindestens = pixel(Masse::Meldung);
    for (const Zeile& zeile : zeilen) {
        if (zeile.zustand != Strahlzustand::Unterbrochen)
            continue;
        const int mehr = std::max(0, mindestens - zeile.hoehe);
        maler.fillRect(links, zeile.oben - mehr / 2, pixel(2 * Masse::Luecke), zeile.hoehe + mehr,
                       farben.unterbrochen);
    }
}

// The shown range is a mark beside the strip, so that it covers no beam.
void Strahlbild::ZeichneUebersicht(QPainter& maler, std::span<const Strahlzustand> zustaende) const {
    const auto pixel = [this](double logisch) { return Geraetepixel(logisch, vorgabe.dichte); };
    const Strahlfeld alles{aufteilung.feld.oben, aufteilung.feld.hoehe, vorgabe.strahlen,
                           GanzerAusschnitt(vorgabe.strahlen)};
    const int marke = pixel(Masse::Leiste);
    const int links = aufteilung.uebersichtLinks + marke + pixel(1);
    const int breite = std::max(1, aufteilung.uebersichtLinks + aufteilung.uebersicht - links);
    maler.fillRect(links, alles.oben, breite, alles.hoehe, farben.gehaeuse);
    if (vorgabe.stand != Datenstand::Ungueltig)
        for (const Zeile& zeile : Uebersichtszeilen(alles, zustaende, pixel(Masse::Meldung)))
            maler.fillRect(links, zeile.oben, breite, zeile.hoehe, Uebersichtsfarbe(farben, zeile.zustand));
    const double oben = alles.Y(vorgabe.ausschnitt.unten + vorgabe.ausschnitt.anzahl);
    const double unten = std::max(alles.Y(vorgabe.ausschnitt.unten), oben + marke);
    maler.fillRect(QRectF(aufteilung.uebersichtLinks, oben, marke, unten - oben).toAlignedRect(),
                   farben.marke);
}

// Across scale, beams and numbers, high enough to be seen where a beam is a single row.
void Strahlbild::ZeichneZeiger(QPainter& maler, int strahl) const {
    const Strahlfeld& feld = aufteilung.feld;
    const int unten = feld.Unterkante(strahl);
    const int hoehe =
        std::max(unten - feld.Unterkante(strahl + 1), Geraetepixel(Masse::Meldung, vorgabe.dichte));
    const int mitte = static_cast<int>(std::lround(feld.Y(strahl + 0.5)));
    const int rechts = aufteilung.uebersicht > 0 ? aufteilung.uebersichtLinks : vorgabe.groesse.width();
    QColor band = farben.marke;
    band.setAlphaF(0.3F);
    maler.fillRect(0, mitte - hoehe / 2, rechts, hoehe, band);
}

void Strahlbild::ZeichneMarken(QPainter& maler, const Marken& marken) const {
    const Strahlfeld& feld = aufteilung.feld;
    const int links = aufteilung.strahlenLinks;
    const int breite = aufteilung.strahlenBreite;
    const double dichte = vorgabe.dichte;
    if (marken.cursor >= 0) {
        const int unten = feld.Unterkante(marken.cursor);
        const int oben = std::min(feld.Unterkante(marken.cursor + 1), unten - 1);
        maler.setPen(QPen(farben.marke, Geraetepixel(1, dichte), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        maler.setBrush(Qt::NoBrush);
        maler.drawRect(links, oben - 1, breite - 1, unten - oben + 1);
    }
    if (marken.zeiger >= 0 && vorgabe.beobachtung)
        ZeichneZeiger(maler, marken.zeiger);
    if (marken.zeiger >= 0) {
        const double y = feld.Y(marken.zeiger + 0.5);
        maler.setRenderHint(QPainter::Antialiasing);
        ZeichnePfeil(maler, links - 1, y, 5 * dichte, farben.marke);
        ZeichnePfeil(maler, links + breite + 1, y, -5 * dichte, farben.marke);
        maler.setRenderHint(QPainter::Antialiasing, false);
    }
    if (marken.bandHoehe > 0) {
        QColor band = farben.marke;
        band.setAlphaF(0.25F);
        maler.fillRect(links, marken.bandOben, breite, marken.bandHoehe, band);
    }
}

} // namespace varnoth
