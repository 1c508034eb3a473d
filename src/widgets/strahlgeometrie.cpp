#include "strahlgeometrie.h"

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

// Rounding errors of a division must not push an edge one pixel down.
constexpr double Spiel = 1e-9;

int Vorrang(Strahlzustand zustand) {
    switch (zustand) {
    case Strahlzustand::Unterbrochen:
        return 2;
    case Strahlzustand::Geblankt:
        return 1;
    case Strahlzustand::Frei:
        break;
    }
    return 0;
}

// The first and last beam of which something is visible.
struct Bereich {
    int von;
    int bis;
};

Bereich Sichtbar(const Strahlfeld& feld) {
    const Ausschnitt& sicht = feld.ausschnitt;
    const int von = static_cast<int>(std::floor(sicht.unten + Spiel));
    const int bis = static_cast<int>(std::ceil(sicht.unten + sicht.anzahl - Spiel)) - 1;
    return {std::max(0, von), std::min(feld.strahlen - 1, bis)};
}

void Nimm(std::vector<Zeile>& zeilen, const Zeile& neue) {
    if (zeilen.empty() || zeilen.back().oben != neue.oben) {
        zeilen.push_back(neue);
        return;
    }
    if (Vorrang(neue.zustand) > Vorrang(zeilen.back().zustand))
        zeilen.back().zustand = neue.zustand;
}

int ErsteZiffer(int zahl) {
    while (zahl >= 10)
        zahl /= 10;
    return zahl;
}

int NaechsteStufe(int stufe) {
    return ErsteZiffer(stufe) == 2 ? stufe / 2 * 5 : stufe * 2;
}

int Unterteilung(int haupt) {
    return std::max(1, haupt / (ErsteZiffer(haupt) == 2 ? 4 : 5));
}

} // namespace

Ausschnitt GanzerAusschnitt(int strahlen) {
    return {0, static_cast<double>(strahlen)};
}

Ausschnitt Begrenzt(Ausschnitt ausschnitt, int strahlen) {
    const auto alle = static_cast<double>(strahlen);
    const double anzahl = std::clamp(ausschnitt.anzahl, std::min(MindestAusschnitt, alle), alle);
    return {std::clamp(ausschnitt.unten, 0.0, alle - anzahl), anzahl};
}

Ausschnitt Gezoomt(Ausschnitt ausschnitt, int strahlen, double um, double faktor) {
    const double anzahl = Begrenzt({0, ausschnitt.anzahl / faktor}, strahlen).anzahl;
    const double anteil = ausschnitt.anzahl > 0 ? (um - ausschnitt.unten) / ausschnitt.anzahl : 0;
    return Begrenzt({um - anteil * anzahl, anzahl}, strahlen);
}

Ausschnitt Verschoben(Ausschnitt ausschnitt, int strahlen, double um) {
    return Begrenzt({ausschnitt.unten + um, ausschnitt.anzahl}, strahlen);
}

Ausschnitt MitStrahl(Ausschnitt ausschnitt, int strahlen, int strahl) {
    const double zuTief = strahl - ausschnitt.unten;
    const double zuHoch = strahl + 1 - (ausschnitt.unten + ausschnitt.anzahl);
    return Verschoben(ausschnitt, strahlen, zuTief < 0 ? zuTief : std::max(zuHoch, 0.0));
}

double Strahlfeld::Teilung() const {
    return ausschnitt.anzahl > 0 ? hoehe / ausschnitt.anzahl : 0;
}

double Strahlfeld::Y(double position) const {
    return oben + hoehe - (position - ausschnitt.unten) * Teilung();
}

double Strahlfeld::Position(double y) const {
    return Teilung() > 0 ? ausschnitt.unten + (oben + hoehe - y) / Teilung() : 0;
}

int Strahlfeld::Unterkante(int strahl) const {
    return oben + hoehe - static_cast<int>(std::floor((strahl - ausschnitt.unten) * Teilung() + Spiel));
}

int Strahlfeld::StrahlBei(int y) const {
    if (strahlen <= 0 || y < oben || y >= oben + hoehe)
        return -1;
    int strahl = std::clamp(static_cast<int>(Position(y + 0.5)), 0, strahlen - 1);
    while (strahl > 0 && Unterkante(strahl) <= y)
        --strahl;
    while (strahl < strahlen - 1 && Unterkante(strahl + 1) > y)
        ++strahl;
    return strahl;
}

std::vector<Zeile> Zeilen(const Strahlfeld& feld, std::span<const Strahlzustand> zustaende) {
    std::vector<Zeile> zeilen;
    const Bereich sichtbar = Sichtbar(feld);
    if (feld.hoehe <= 0 || sichtbar.bis >= static_cast<int>(zustaende.size()))
        return zeilen;
    zeilen.reserve(static_cast<std::size_t>(std::max(0, sichtbar.bis - sichtbar.von + 1)));
    int unten = feld.Unterkante(sichtbar.von);
    for (int strahl = sichtbar.von; strahl <= sichtbar.bis; ++strahl) {
        const int naechste = feld.Unterkante(strahl + 1);
        const int oben = std::min(naechste, unten - 1);
        Nimm(zeilen, {oben, unten - oben, zustaende[static_cast<std::size_t>(strahl)]});
        unten = naechste;
    }
    return zeilen;
}

std::vector<Zeile> Uebersichtszeilen(const Strahlfeld& feld, std::span<const Strahlzustand> zustaende,
                                     int mindestens) {
    std::vector<Zeile> zeilen = Zeilen(feld, zustaende);
    const auto unterbrochene = std::stable_partition(zeilen.begin(), zeilen.end(), [](const Zeile& zeile) {
        return zeile.zustand != Strahlzustand::Unterbrochen;
    });
    for (auto zeile = unterbrochene; zeile != zeilen.end(); ++zeile) {
        const int hoehe = std::min(std::max(zeile->hoehe, mindestens), feld.hoehe);
        const int oben = zeile->oben - (hoehe - zeile->hoehe) / 2;
        *zeile = {std::clamp(oben, feld.oben, feld.oben + feld.hoehe - hoehe), hoehe, zeile->zustand};
    }
    return zeilen;
}

Teilstriche WaehleTeilstriche(double pixelJeEinheit, double zahlen, double striche) {
    constexpr int GroessteStufe = 1'000'000;
    int haupt = 1;
    while (haupt < GroessteStufe && haupt * pixelJeEinheit < zahlen)
        haupt = NaechsteStufe(haupt);
    const int neben = Unterteilung(haupt);
    return {haupt, neben * pixelJeEinheit >= striche ? neben : haupt};
}

std::vector<int> Strahlnummern(const Strahlfeld& feld, double abstand) {
    const Bereich sichtbar = Sichtbar(feld);
    if (sichtbar.bis < sichtbar.von || feld.Teilung() <= 0)
        return {};
    const int erste = sichtbar.von + 1;
    const int letzte = sichtbar.bis + 1;
    const int schritt = WaehleTeilstriche(feld.Teilung(), abstand, 0).haupt;
    std::vector<int> nummern{erste};
    for (int nummer = (erste / schritt + 1) * schritt; nummer < letzte; nummer += schritt)
        if ((nummer - erste) * feld.Teilung() >= abstand && (letzte - nummer) * feld.Teilung() >= abstand)
            nummern.push_back(nummer);
    if ((letzte - erste) * feld.Teilung() >= abstand)
        nummern.push_back(letzte);
    return nummern;
}

} // namespace varnoth
