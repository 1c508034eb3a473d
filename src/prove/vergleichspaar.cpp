#include "vergleichspaar.h"

#include "standardkonfiguration.h"
#include "texte.h"
#include "textmitwerten.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextTitel = 9560;
constexpr std::int16_t TextLinks = 9588;
constexpr std::int16_t TextRechts = 9589;
constexpr std::int16_t TextNichtUebernommen = 9591;

std::string Kopfzeile(std::int16_t beschriftung, const Vergleichsseite& seite) {
    const std::string einzelheit = seite.einzelheit.empty() ? "" : ", " + seite.einzelheit;
    return LadeText(beschriftung) + ": " + Quellenname(seite.quelle) + einzelheit + "\n";
}

} // namespace

Vergleichspaar::Vergleichspaar() {
    Vergleiche();
}

void Vergleichspaar::Setze(Seitenwahl wahl, Vergleichsseite seite) {
    DieSeite(wahl) = std::move(seite);
    Vergleiche();
}

const Vergleichsseite& Vergleichspaar::Seite(Seitenwahl wahl) const {
    return seiten.at(static_cast<std::size_t>(wahl));
}

void Vergleichspaar::Vergleiche() {
    for (const Seitenwahl wahl : BeideSeiten)
        if (Seite(wahl).quelle == Vergleichsquelle::Werksvorgabe)
            DieSeite(wahl).abbild = StandardkonfigurationWie(Seite(Gegenueber(wahl)).abbild);
    const Vergleichsseite& a = Seite(Seitenwahl::A);
    const Vergleichsseite& b = Seite(Seitenwahl::B);
    ergebnis = varnoth::Vergleiche(a.abbild, b.abbild, {a.ungelesen, b.ungelesen});
}

std::vector<Vergleichsworte> Vergleichspaar::Zeilen() const {
    const Vergleichsseite& a = Seite(Seitenwahl::A);
    const Vergleichsseite& b = Seite(Seitenwahl::B);
    return InWorten(ergebnis, {a.abbild, a.ungelesen}, {b.abbild, b.ungelesen});
}

std::string Vergleichspaar::Titel() const {
    const Vergleichsseite& a = Seite(Seitenwahl::A);
    const Vergleichsseite& b = Seite(Seitenwahl::B);
    if (IstVonDatei(a) && IstVonDatei(b) && a.einzelheit != b.einzelheit && Seitenname(a) == Seitenname(b))
        return LadeTextMit(TextTitel, {a.einzelheit, b.einzelheit});
    return LadeTextMit(TextTitel, {Seitenname(a), Seitenname(b)});
}

std::string Vergleichspaar::Text(const std::vector<Vergleichsworte>& zeilen) const {
    return Titel() + "\n\n" + Kopfzeile(TextLinks, Seite(Seitenwahl::A)) +
           Kopfzeile(TextRechts, Seite(Seitenwahl::B)) + "\n" + Vergleichsbefund(ergebnis) + "\n" +
           Klassenanzahlen(ergebnis) + "\n\n" + AlsText(zeilen, LadeText(TextLinks), LadeText(TextRechts));
}

std::optional<Seitenwahl> Vergleichspaar::Geberseite() const {
    const auto wirdBearbeitet = [this](Seitenwahl wahl) {
        return Seite(wahl).quelle == Vergleichsquelle::InBearbeitung;
    };
    if (wirdBearbeitet(Seitenwahl::A) == wirdBearbeitet(Seitenwahl::B))
        return std::nullopt;
    return wirdBearbeitet(Seitenwahl::A) ? Seitenwahl::B : Seitenwahl::A;
}

bool Vergleichspaar::IstUebernehmbar(const Parameterstelle& stelle) const {
    const auto zeile = std::ranges::lower_bound(ergebnis.zeilen, stelle, {}, &Vergleichszeile::stelle);
    return Geberseite() && zeile != ergebnis.zeilen.end() && zeile->stelle == stelle &&
           varnoth::IstUebernehmbar(*zeile);
}

Uebernahme Vergleichspaar::Uebernimm(const Abbild& inBearbeitung, const Parametermenge& stellen) const {
    return varnoth::Uebernimm(inBearbeitung, Seite(Geberseite().value()).abbild, stellen);
}

std::string Ablehnung(const Uebernahme& uebernahme) {
    return LadeText(TextNichtUebernommen) + Wertzeilen(uebernahme.abbild, uebernahme.unplausible);
}

} // namespace varnoth
