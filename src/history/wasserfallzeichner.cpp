#include "wasserfallzeichner.h"

#include "strahlmasse.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace varnoth {

namespace {

constexpr double Nummernabstand = 1.3; // in heights of a line
constexpr int Strichluft = 12;         // between two times, logical pixels

void Setze(QPainter& maler, const QRect& platz, int ausrichtung, const QString& text) {
    maler.drawText(platz, ausrichtung | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

} // namespace

void Wasserfallzeichner::Zeichne(QPainter& maler, const Wasserfallvorgabe& neueVorgabe,
                                 const QPalette& neuePalette, const Wasserfallinhalt& inhalt,
                                 const Wasserfallmarken& marken) {
    const Stand stand{.vorgabe = neueVorgabe,
                      .spaltenbreite = inhalt.fenster.breite,
                      .spalten = inhalt.fenster.spalten,
                      .ausschnitt = inhalt.ausschnitt,
                      .satz = GetStrahlfarbsatz(),
                      .teil = inhalt.spalten.Teil()};
    if (stand != gebaut || neuePalette != palette) {
        vorgabe = neueVorgabe;
        palette = neuePalette;
        gebaut = stand;
        Bereite();
    }
    BaueZellen(inhalt);
    maler.fillRect(QRect({}, vorgabe.groesse), farben.grund);
    maler.setFont(vorgabe.schrift);
    maler.setPen(farben.schrift);
    const Strahlfeld feld = plan.Feld(vorgabe.strahlen, inhalt.ausschnitt);
    maler.drawImage(plan.flaeche.topLeft(), bild);
    ZeichneLuecken(maler, inhalt);
    ZeichneNummern(maler, feld);
    ZeichneSkala(maler, feld);
    ZeichneZeiten(maler, inhalt);
    ZeichneMarken(maler, inhalt, feld, marken);
}

void Wasserfallzeichner::Bereite() {
    farben = FarbenAus(palette);
    muster = Zellenmuster(farben, vorgabe.dichte);
    plan = TeileAuf(vorgabe);
    reihen = Strahlreihen(plan.flaeche.height(), gebaut.ausschnitt.unten, gebaut.ausschnitt.anzahl,
                          vorgabe.strahlen);
    bild = QImage(plan.flaeche.size(), QImage::Format_RGB32);
    gezeichnete.assign(static_cast<std::size_t>(bild.width()), std::nullopt);
}

/// What was drawn moves along with the window, and only columns that show something else are drawn.
void Wasserfallzeichner::BaueZellen(const Wasserfallinhalt& inhalt) {
    Verschiebe(inhalt.fenster.erste - ersteSpalte);
    ersteSpalte = inhalt.fenster.erste;
    std::vector<int> neue;
    for (int x = 0; x < bild.width(); ++x) {
        const Strahlspalte& spalte = inhalt.spalten.Spalte(ersteSpalte + x);
        auto& gezeichnet = gezeichnete[static_cast<std::size_t>(x)];
        if (gezeichnet && *gezeichnet == spalte)
            continue;
        gezeichnet = spalte;
        neue.push_back(x);
    }
    Faerbe(neue);
}

void Wasserfallzeichner::Verschiebe(std::int64_t spalten) {
    const auto breite = static_cast<std::int64_t>(gezeichnete.size());
    if (spalten == 0)
        return;
    if (std::abs(spalten) >= breite)
        return gezeichnete.assign(gezeichnete.size(), std::nullopt);
    const int nachLinks = static_cast<int>(spalten);
    if (nachLinks > 0) {
        std::shift_left(gezeichnete.begin(), gezeichnete.end(), nachLinks);
        std::fill(gezeichnete.end() - nachLinks, gezeichnete.end(), std::nullopt);
    } else {
        std::shift_right(gezeichnete.begin(), gezeichnete.end(), -nachLinks);
        std::fill(gezeichnete.begin(), gezeichnete.begin() - nachLinks, std::nullopt);
    }
    for (int y = 0; y < bild.height(); ++y) {
        auto* const zeile = reinterpret_cast<QRgb*>(bild.scanLine(y));
        if (nachLinks > 0)
            std::copy(zeile + nachLinks, zeile + breite, zeile);
        else
            std::copy_backward(zeile, zeile + breite + nachLinks, zeile + breite);
    }
}

/// Row by row, as the picture lies in memory.
void Wasserfallzeichner::Faerbe(const std::vector<int>& spalten) {
    const auto hoehe = static_cast<std::size_t>(bild.height());
    std::vector<Zellenart> raster(spalten.size() * hoehe);
    std::vector<Zellenart> zellen;
    for (std::size_t i = 0; i < spalten.size(); ++i) {
        FuelleZellen(*gezeichnete[static_cast<std::size_t>(spalten[i])], reihen, zellen);
        std::ranges::copy(zellen, raster.begin() + static_cast<std::ptrdiff_t>(i * hoehe));
    }
    const int seite = muster.Seite();
    const int versatz = static_cast<int>((ersteSpalte % seite + seite) % seite);
    for (int y = 0; y < bild.height() && !spalten.empty(); ++y) {
        std::array<const QRgb*, Zellenmuster::AnzahlArten> zeilen{};
        for (std::size_t art = 0; art < zeilen.size(); ++art)
            zeilen.at(art) = muster.Zeile(static_cast<Zellenart>(art), y);
        auto* const pixel = reinterpret_cast<QRgb*>(bild.scanLine(y));
        std::size_t zelle = static_cast<std::size_t>(y);
        for (const int x : spalten) {
            pixel[x] = zeilen[static_cast<std::size_t>(raster[zelle])][(versatz + x) % seite];
            zelle += hoehe;
        }
    }
}

int Wasserfallzeichner::X(const Zeitfenster& fenster, Zeit zeit) const {
    const auto spalte = std::clamp<std::int64_t>(fenster.SpalteUm(zeit) - fenster.erste, -1, fenster.spalten);
    return plan.flaeche.left() + static_cast<int>(spalte);
}

/// Where live data did not run or the controller did not answer, however short that was.
void Wasserfallzeichner::ZeichneLuecken(QPainter& maler, const Wasserfallinhalt& inhalt) const {
    const int mindestens = Geraetepixel(2, vorgabe.dichte);
    for (int x = 0; x < plan.luecken.width(); ++x)
        if (inhalt.spalten.Spalte(inhalt.fenster.erste + x).luecke)
            maler.fillRect(plan.luecken.left() + x, plan.luecken.top(),
                           std::min(mindestens, plan.luecken.right() - plan.luecken.left() - x + 1),
                           plan.luecken.height(), farben.schrift);
}

void Wasserfallzeichner::ZeichneNummern(QPainter& maler, const Strahlfeld& feld) const {
    const QFontMetrics masse(vorgabe.schrift);
    const int strich = Geraetepixel(Masse::Strich, vorgabe.dichte);
    const int breite = plan.flaeche.left() - strich - plan.nummernLinks;
    for (const int nummer : Strahlnummern(feld, Nummernabstand * masse.height())) {
        const int y = static_cast<int>(std::lround(feld.Y(nummer - 0.5)));
        maler.fillRect(plan.flaeche.left() - strich / 2, y, strich / 2, Geraetepixel(1, vorgabe.dichte),
                       farben.striche);
        Setze(maler, {plan.nummernLinks, y - masse.height() / 2, breite, masse.height()}, Qt::AlignRight,
              QString::number(nummer));
    }
}

void Wasserfallzeichner::ZeichneSkala(QPainter& maler, const Strahlfeld& feld) const {
    if (plan.skalaRechts == 0 || feld.strahlen == 0)
        return;
    const QFontMetrics masse(vorgabe.schrift);
    const double jeMm = feld.Teilung() / vorgabe.abstandMm;
    const auto teilung =
        WaehleTeilstriche(jeMm, 2 * masse.height(), Geraetepixel(Masse::Strichabstand, vorgabe.dichte));
    const int links = plan.flaeche.right() + 1;
    const int strich = Geraetepixel(Masse::Strich, vorgabe.dichte);
    const double von = (feld.ausschnitt.unten - 0.5) * vorgabe.abstandMm;
    const double bis = von + feld.ausschnitt.anzahl * vorgabe.abstandMm;
    for (int mm = static_cast<int>(std::ceil(von / teilung.neben)) * teilung.neben; mm <= bis;
         mm += teilung.neben) {
        const int y =
            static_cast<int>(std::lround(feld.Y(static_cast<double>(mm) / vorgabe.abstandMm + 0.5)));
        const bool haupt = mm % teilung.haupt == 0;
        maler.fillRect(links, y, haupt ? strich : strich / 2, Geraetepixel(1, vorgabe.dichte),
                       farben.striche);
        if (haupt)
            Setze(maler,
                  {links + strich + Geraetepixel(2, vorgabe.dichte), y - masse.height() / 2, plan.skalaRechts,
                   masse.height()},
                  Qt::AlignLeft, QStringLiteral("%1 mm").arg(mm));
    }
}

void Wasserfallzeichner::ZeichneZeiten(QPainter& maler, const Wasserfallinhalt& inhalt) const {
    const QFontMetrics masse(vorgabe.schrift);
    const int breite = masse.horizontalAdvance(QStringLiteral("00:00:00,000"));
    const int strich = Geraetepixel(Masse::Strich, vorgabe.dichte);
    for (const Fensterstrich& teil :
         Fensterstriche(inhalt.fenster, breite + Geraetepixel(Strichluft, vorgabe.dichte), inhalt.angaben)) {
        const int x = X(inhalt.fenster, teil.zeit);
        maler.fillRect(x, plan.zeiten.top(), Geraetepixel(1, vorgabe.dichte), strich, farben.striche);
        QRect platz(x - breite / 2, plan.zeiten.top() + strich, breite, masse.height());
        platz.moveLeft(std::clamp(platz.left(), 0, std::max(0, vorgabe.groesse.width() - breite)));
        Setze(maler, platz, Qt::AlignHCenter, QString::fromStdString(teil.text));
    }
}

void Wasserfallzeichner::ZeichneMarken(QPainter& maler, const Wasserfallinhalt& inhalt,
                                       const Strahlfeld& feld, const Wasserfallmarken& marken) const {
    const QRect& flaeche = plan.flaeche;
    const int fein = Geraetepixel(1, vorgabe.dichte);
    const auto senkrecht = [&](Zeit zeit, int dicke, const QColor& farbe) {
        const int x = X(inhalt.fenster, zeit);
        if (x >= flaeche.left() && x <= flaeche.right())
            maler.fillRect(x - dicke / 2, flaeche.top(), dicke, flaeche.height() + plan.luecken.height(),
                           farbe);
    };
    QColor ton = farben.marke;
    ton.setAlphaF(0.22F);
    if (marken.gewaehlt) {
        const int von = std::max(X(inhalt.fenster, marken.gewaehlt->von), flaeche.left());
        const int bis = std::min(X(inhalt.fenster, marken.gewaehlt->bis), flaeche.right());
        if (von <= bis)
            maler.fillRect(von, flaeche.top(), bis - von + 1, flaeche.height(), ton);
        senkrecht(marken.gewaehlt->von, 2 * fein, farben.marke);
        senkrecht(marken.gewaehlt->bis, 2 * fein, farben.marke);
    }
    if (marken.wiedergabe)
        senkrecht(*marken.wiedergabe, 3 * fein, farben.schrift);
    if (!marken.band.isEmpty()) {
        maler.fillRect(marken.band, ton);
        maler.setPen(QPen(farben.marke, fein));
        maler.drawRect(marken.band.adjusted(0, 0, -1, -1));
    }
    if (!marken.stelle)
        return;
    senkrecht(marken.stelle->zeit, fein, farben.schrift);
    const int unten = feld.Unterkante(marken.stelle->strahl);
    const int oben = std::min(feld.Unterkante(marken.stelle->strahl + 1), unten - 1);
    for (const int y : {oben - fein, unten})
        if (y >= flaeche.top() - fein && y <= flaeche.bottom() + fein)
            maler.fillRect(flaeche.left(), y, flaeche.width(), fein, farben.schrift);
}

} // namespace varnoth
