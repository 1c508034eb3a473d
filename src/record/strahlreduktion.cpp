#include "strahlreduktion.h"

#include "messfolge.h"
#include "uebersicht.h"

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

constexpr int PaketeZurueck = 6; // in which the last pass before a column is looked for

Strahlsicht SichtAus(const Uebersicht& uebersicht, std::size_t i, int teil, const Strahlmenge& geblankt) {
    Strahlsicht sicht{.strahlen = uebersicht.Strahlen(i, teil)};
    const Strahlmenge alle = ErsteStrahlen(sicht.strahlen);
    const auto einmal = uebersicht.UnterbrochenEinmal(i, teil);
    const auto immer = uebersicht.UnterbrochenImmer(i, teil);
    for (std::size_t r = 0; r < std::min({alle.size(), einmal.size(), immer.size()}); ++r) {
        const auto sichtbar = static_cast<std::uint16_t>(alle.at(r) & ~geblankt.at(r));
        sicht.unterbrochen.at(r) = einmal[r] & sichtbar;
        sicht.frei.at(r) = static_cast<std::uint16_t>(~immer[r] & sichtbar);
    }
    return sicht;
}

} // namespace

/// What holds at a time: the last pass, unless something has ended it.
struct Strahlreduktion::Lage {
    bool bekannt = false;
    Zeit seit{};
    bool gemessen = false;
    Strahlsicht sicht{};

    void Nimm(const Messdurchgang& durchgang, const Teilmessung& messung, const Strahlmenge& geblankt) {
        bekannt = true;
        seit = durchgang.uhr;
        gemessen = messung.gemessen;
        sicht = gemessen ? SichtAus(messung, geblankt) : Strahlsicht{};
    }
    bool Gilt(Zeit zeit) const { return bekannt && zeit - seit <= MessungGiltHoechstens; }
};

/// Reads packets, no more than it may; those read last are kept.
class Strahlreduktion::Leser {
public:
    Leser(const Messquelle& woher, int hoechstens) : quelle(woher), uebrig(hoechstens) {}

    /// False when no more may be read.
    bool Lies(std::uint64_t nummer, std::shared_ptr<const Messpaket>& paket) {
        const auto da = std::ranges::find(gelesene, nummer, &Gelesenes::first);
        if (da != gelesene.end()) {
            paket = da->second;
            return true;
        }
        if (uebrig <= 0)
            return false;
        --uebrig;
        paket = quelle.Lies(nummer);
        if (gelesene.size() > PaketeZurueck)
            gelesene.erase(gelesene.begin());
        gelesene.emplace_back(nummer, paket);
        return true;
    }

private:
    using Gelesenes = std::pair<std::uint64_t, std::shared_ptr<const Messpaket>>;

    const Messquelle& quelle;
    int uebrig;
    std::vector<Gelesenes> gelesene;
};

void Strahlreduktion::Setze(int neuerTeil, Zeit neueBreite) {
    if (neuerTeil == teil && neueBreite == breite)
        return;
    teil = neuerTeil;
    breite = neueBreite;
    Vergiss();
}

void Strahlreduktion::Vergiss() {
    spalten.clear();
    fertig.clear();
    blanking = {};
}

const Strahlspalte& Strahlreduktion::Spalte(std::int64_t nummer) const {
    static const Strahlspalte leere;
    const std::int64_t stelle = nummer - erste;
    return stelle >= 0 && stelle < static_cast<std::int64_t>(spalten.size())
               ? spalten[static_cast<std::size_t>(stelle)]
               : leere;
}

/// Keeps the columns that are in the new window too.
void Strahlreduktion::Verschiebe(std::int64_t neueErste, int anzahl) {
    std::vector<Strahlspalte> neue(static_cast<std::size_t>(anzahl));
    std::vector<bool> neueFertige(neue.size(), false);
    for (std::size_t i = 0; i < neue.size(); ++i) {
        const std::int64_t alt = neueErste + static_cast<std::int64_t>(i) - erste;
        if (alt < 0 || alt >= static_cast<std::int64_t>(spalten.size()))
            continue;
        neue[i] = spalten[static_cast<std::size_t>(alt)];
        neueFertige[i] = fertig[static_cast<std::size_t>(alt)];
    }
    spalten = std::move(neue);
    fertig = std::move(neueFertige);
    erste = neueErste;
}

/// Only where the overview's stretches reach further than the column does.
bool Strahlreduktion::BrauchtPakete(const Messquelle& quelle, std::int64_t nummer) const {
    const Uebersicht& uebersicht = quelle.DieUebersicht();
    if (uebersicht.Anzahl() == 0)
        return true;
    const Zeitspanne spanne = uebersicht.Spanne(uebersicht.AbschnittUm(Beginn(nummer)));
    return spanne.bis - spanne.von > breite;
}

bool Strahlreduktion::Rechne(const Messquelle& quelle, std::int64_t neueErste, int anzahl, int pakete) {
    if (neueErste != erste || anzahl != static_cast<int>(spalten.size()))
        Verschiebe(neueErste, anzahl);
    if (quelle.Ende() == quelle.Erstes()) {
        std::ranges::fill(spalten, Strahlspalte{});
        return true;
    }
    const Uebersicht& uebersicht = quelle.DieUebersicht();
    Zeit sicherBis = quelle.Spanne(quelle.Ende() - 1).von;
    if (uebersicht.Anzahl() > 0)
        sicherBis = std::min(sicherBis, uebersicht.Spanne(uebersicht.Anzahl() - 1).von);
    Leser leser(quelle, pakete);
    const std::int64_t ende = erste + anzahl;
    const auto istOffen = [&](std::int64_t k) { return k < ende && !fertig[Platz(k)]; };
    const auto schliesseAb = [&](std::int64_t k) { fertig[Platz(k)] = Beginn(k + 1) <= sicherBis; };
    bool alles = true;
    for (std::int64_t nummer = erste; nummer < ende;) {
        std::int64_t bis = nummer;
        while (istOffen(bis) && BrauchtPakete(quelle, bis))
            ++bis;
        const std::int64_t gelesenBis = bis > nummer ? RechneAusPaketen(quelle, leser, nummer, bis) : bis;
        alles = alles && gelesenBis == bis;
        for (; nummer < gelesenBis; ++nummer)
            schliesseAb(nummer);
        for (; nummer < bis; ++nummer)
            RechneAusUebersicht(quelle, nummer);
        if (istOffen(nummer) && !BrauchtPakete(quelle, nummer)) {
            RechneAusUebersicht(quelle, nummer);
            schliesseAb(nummer);
            ++nummer;
        } else if (nummer < ende && fertig[Platz(nummer)]) {
            ++nummer;
        }
    }
    return alles;
}

void Strahlreduktion::RechneAusUebersicht(const Messquelle& quelle, std::int64_t nummer) {
    ++gerechnete;
    const Uebersicht& uebersicht = quelle.DieUebersicht();
    const Zeit von = Beginn(nummer);
    const Zeit bis = Beginn(nummer + 1);
    Strahlspalte spalte;
    const Zeitspanne alles = quelle.Spanne();
    if (bis > alles.von && von <= alles.bis)
        spalte.art = Spaltenart::Luecke;
    for (std::size_t i = uebersicht.Anzahl() > 0 ? uebersicht.AbschnittUm(von) : 0; i < uebersicht.Anzahl();
         ++i) {
        const Zeitspanne spanne = uebersicht.Spanne(i);
        if (spanne.von >= bis)
            break;
        if (spanne.bis < von)
            continue;
        spalte.luecke = spalte.luecke || uebersicht.HatLuecke(i);
        if (uebersicht.Durchgaenge(i, teil) > 0) {
            spalte.art = Spaltenart::Gemessen;
            const std::uint64_t paket = quelle.PaketUm(std::max(von, spanne.von));
            spalte.sicht.Nimm(SichtAus(uebersicht, i, teil, blanking.Um(quelle, paket, teil)));
        } else if (spalte.art != Spaltenart::Gemessen && !uebersicht.HatLuecke(i)) {
            spalte.art = Spaltenart::NichtGemessen;
        }
    }
    spalte.luecke = spalte.luecke || spalte.art == Spaltenart::Luecke;
    Hole(nummer) = spalte;
}

Strahlreduktion::Lage Strahlreduktion::LageVor(const Messquelle& quelle, Leser& leser, Zeit zeit) {
    Lage lage;
    const std::uint64_t bis = quelle.PaketUm(zeit);
    for (std::uint64_t zurueck = 0; zurueck < PaketeZurueck && bis - zurueck >= quelle.Erstes(); ++zurueck) {
        std::shared_ptr<const Messpaket> paket;
        if (!leser.Lies(bis - zurueck, paket) || paket == nullptr)
            return lage;
        bool etwas = false;
        const Strahlmenge& geblankt = blanking.Um(quelle, bis - zurueck, teil);
        InZeitfolge(
            *paket,
            [&](const Messdurchgang& durchgang) {
                if (durchgang.uhr >= zeit)
                    return;
                etwas = true;
                lage.Nimm(durchgang, durchgang.teile.at(static_cast<std::size_t>(teil)), geblankt);
            },
            [&](const Messereignis& ereignis) {
                if (ereignis.laufzeit >= zeit || !BeginntLuecke(ereignis.art))
                    return;
                etwas = true;
                lage = {};
            });
        if (etwas || bis == zurueck)
            break;
    }
    return lage;
}

/// A column without a pass of its own shows the one that still holds.
void Strahlreduktion::Schliesse(const Messquelle& quelle, std::int64_t nummer, const Lage& lage) {
    ++gerechnete;
    Strahlspalte& spalte = Hole(nummer);
    spalte.genau = true;
    if (spalte.art != Spaltenart::Leer)
        return;
    const Zeitspanne alles = quelle.Spanne();
    if (Beginn(nummer) > alles.bis || Beginn(nummer + 1) <= alles.von)
        return;
    if (lage.Gilt(Beginn(nummer))) {
        spalte.art = lage.gemessen ? Spaltenart::Gemessen : Spaltenart::NichtGemessen;
        spalte.sicht = lage.sicht;
        return;
    }
    spalte.art = Spaltenart::Luecke;
    spalte.luecke = true;
}

/// Gives the first column that it could not read.
std::int64_t Strahlreduktion::RechneAusPaketen(const Messquelle& quelle, Leser& leser, std::int64_t von,
                                               std::int64_t bis) {
    const Zeit anfang = Beginn(von);
    const Zeit ende = Beginn(bis);
    Lage lage = LageVor(quelle, leser, anfang);
    Lage vorSpalte = lage;
    std::int64_t nummer = von;
    Strahlspalte offene;
    const auto gehBis = [&](Zeit zeit) {
        for (; nummer < bis && Beginn(nummer + 1) <= zeit; ++nummer) {
            Hole(nummer) = std::exchange(offene, {});
            Schliesse(quelle, nummer, vorSpalte);
            vorSpalte = lage;
        }
    };
    const auto nimmDurchgang = [&](const Messdurchgang& durchgang, const Strahlmenge& geblankt) {
        if (durchgang.uhr < anfang || durchgang.uhr >= ende)
            return;
        gehBis(durchgang.uhr);
        lage.Nimm(durchgang, durchgang.teile.at(static_cast<std::size_t>(teil)), geblankt);
        offene.art = std::max(offene.art, lage.gemessen ? Spaltenart::Gemessen : Spaltenart::NichtGemessen);
        offene.sicht.Nimm(lage.sicht);
    };
    const auto nimmEreignis = [&](const Messereignis& ereignis) {
        if (ereignis.laufzeit < anfang || ereignis.laufzeit >= ende || !BeginntLuecke(ereignis.art))
            return;
        gehBis(ereignis.laufzeit);
        lage = {};
        offene.luecke = true;
    };
    for (std::uint64_t paketnummer = quelle.PaketUm(anfang);
         paketnummer < quelle.Ende() && quelle.Spanne(paketnummer).von < ende; ++paketnummer) {
        std::shared_ptr<const Messpaket> paket;
        if (!leser.Lies(paketnummer, paket)) {
            gehBis(quelle.Spanne(paketnummer).von);
            return nummer;
        }
        if (paket == nullptr) {
            gehBis(std::max(anfang, quelle.Spanne(paketnummer).von));
            lage = {};
            offene.luecke = true;
            continue;
        }
        const Strahlmenge geblankt = blanking.Um(quelle, paketnummer, teil);
        InZeitfolge(
            *paket, [&](const Messdurchgang& durchgang) { nimmDurchgang(durchgang, geblankt); },
            nimmEreignis);
    }
    gehBis(ende);
    return nummer;
}

std::vector<Strahlreihe> Strahlreihen(int hoehe, double unten, double anzahl, int strahlen) {
    constexpr double Spiel = 1e-9; // rounding must not push an edge one beam further
    std::vector<Strahlreihe> reihen(static_cast<std::size_t>(std::max(0, hoehe)));
    const double jeReihe = hoehe > 0 ? anzahl / hoehe : 0;
    for (int i = 0; i < hoehe; ++i) {
        const double tief = unten + (hoehe - 1 - i) * jeReihe;
        Strahlreihe& reihe = reihen[static_cast<std::size_t>(i)];
        if (jeReihe <= 1) {
            reihe.von = reihe.bis = static_cast<int>(std::floor(tief + jeReihe / 2));
        } else {
            reihe.von = static_cast<int>(std::floor(tief + Spiel));
            reihe.bis = static_cast<int>(std::ceil(tief + jeReihe - Spiel)) - 1;
        }
        reihe.von = std::max(0, reihe.von);
        reihe.bis = std::min(reihe.bis, strahlen - 1);
    }
    return reihen;
}

Zellenart Strahlzelle(const Strahlspalte& spalte, int strahl) {
    if (spalte.art != Spaltenart::Gemessen)
        return static_cast<Zellenart>(spalte.art);
    if (strahl < 0 || strahl >= spalte.sicht.strahlen)
        return Zellenart::NichtGemessen;
    if (Enthaelt(spalte.sicht.unterbrochen, strahl))
        return Enthaelt(spalte.sicht.frei, strahl) ? Zellenart::Zeitweise : Zellenart::Unterbrochen;
    return Enthaelt(spalte.sicht.frei, strahl) ? Zellenart::Frei : Zellenart::Geblankt;
}

void FuelleZellen(const Strahlspalte& spalte, const std::vector<Strahlreihe>& reihen,
                  std::vector<Zellenart>& zellen) {
    zellen.assign(reihen.size(), Zellenart::Leer);
    for (std::size_t i = 0; i < reihen.size(); ++i)
        for (int strahl = reihen[i].von; strahl <= reihen[i].bis; ++strahl)
            zellen[i] = std::max(zellen[i], Strahlzelle(spalte, strahl));
}

} // namespace varnoth
