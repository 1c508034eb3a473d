#include "strahlstatistik.h"

#include "messfolge.h"
#include "registeradressen.h"
#include "strahlbits.h"

#include <algorithm>
#include <cstddef>

namespace varnoth {

namespace {

constexpr std::size_t KurzeFolge = 2; // beams

} // namespace

void Strahlzaehler::Nimm(Zeit zeit, const Strahlsicht& sicht) {
    if (letzteZeit) {
        const Zeit dauer = std::min(zeit - *letzteZeit, MessungGiltHoechstens);
        ungebucht += dauer;
        gemessen += dauer;
        if (zeit - *letzteZeit > MessungGiltHoechstens)
            Unterbrich(zeit);
    }
    if (!letzteZeit || sicht != letzte)
        Stelle(sicht, zeit);
    letzteZeit = zeit;
    ++durchgaenge;
}

void Strahlzaehler::Unterbrich(Zeit zeit) {
    if (letzteZeit && zeit > *letzteZeit && zeit - *letzteZeit <= MessungGiltHoechstens) {
        ungebucht += zeit - *letzteZeit;
        gemessen += zeit - *letzteZeit;
    }
    Verbuche(ungebucht);
    ungebucht = {};
    letzteZeit.reset();
    std::ranges::fill(staende, Stand::Unbekannt);
    std::ranges::fill(unterbrochenSeit, Zeit{});
}

std::vector<Strahlwerte> Strahlzaehler::Bis(Zeit zeit) const {
    Strahlzaehler weiter = *this;
    if (weiter.letzteZeit && zeit > *weiter.letzteZeit)
        weiter.ungebucht += std::min(zeit - *weiter.letzteZeit, MessungGiltHoechstens);
    weiter.Verbuche(weiter.ungebucht);
    return weiter.werte;
}

void Strahlzaehler::Verbuche(Zeit dauer) {
    for (std::size_t i = 0; i < staende.size() && dauer > Zeit{}; ++i) {
        Strahlwerte& strahl = werte[i];
        if (staende[i] == Stand::Geblankt)
            strahl.geblankt += dauer;
        if (staende[i] == Stand::Geblankt || staende[i] == Stand::Unbekannt)
            continue;
        const bool frei = staende[i] == Stand::Frei;
        strahl.gemessen += dauer;
        if (!frei) {
            strahl.unterbrochen += dauer;
            unterbrochenSeit[i] += dauer;
            strahl.laengste = std::max(strahl.laengste, unterbrochenSeit[i]);
        }
        if (umfelder[i] == Umfeld::Frei) {
            strahl.umFrei += dauer;
            strahl.alleinUnterbrochen += frei ? Zeit{} : dauer;
        } else if (umfelder[i] == Umfeld::Unterbrochen) {
            strahl.umUnterbrochen += dauer;
            strahl.alleinFrei += frei ? dauer : Zeit{};
        }
    }
}

void Strahlzaehler::Stelle(const Strahlsicht& sicht, Zeit zeit) {
    Verbuche(ungebucht);
    ungebucht = {};
    const auto anzahl = static_cast<std::size_t>(std::max(0, sicht.strahlen));
    werte.resize(std::max(werte.size(), anzahl));
    staende.resize(werte.size());
    unterbrochenSeit.resize(werte.size());
    const std::vector<Stand> vorher = staende;
    for (std::size_t i = 0; i < staende.size(); ++i) {
        const int strahl = static_cast<int>(i);
        if (i >= anzahl)
            staende[i] = Stand::Unbekannt;
        else if (Enthaelt(sicht.unterbrochen, strahl))
            staende[i] = Stand::Unterbrochen;
        else
            staende[i] = Enthaelt(sicht.frei, strahl) ? Stand::Frei : Stand::Geblankt;
        if (staende[i] != Stand::Unterbrochen)
            unterbrochenSeit[i] = {};
    }
    letzte = sicht;
    ZaehleWechsel(vorher, zeit);
    BestimmeUmfeld();
}

/// The nearest beam on a side that is not blanked; nothing beyond the curtain's end.
std::optional<std::size_t> Strahlzaehler::Nachbar(std::size_t strahl, bool oben) const {
    for (std::size_t i = strahl; oben ? i + 1 < staende.size() : i > 0;) {
        i = oben ? i + 1 : i - 1;
        if (staende[i] != Stand::Geblankt)
            return i;
    }
    return {};
}

void Strahlzaehler::ZaehleWechsel(const std::vector<Stand>& vorher, Zeit zeit) {
    const auto bleibt = [&](std::size_t i) { return vorher[i] == staende[i]; };
    for (std::size_t i = 0; i < staende.size(); ++i) {
        const bool vonFrei = vorher[i] == Stand::Frei && staende[i] == Stand::Unterbrochen;
        const bool zuFrei = vorher[i] == Stand::Unterbrochen && staende[i] == Stand::Frei;
        if (!vonFrei && !zuFrei)
            continue;
        ++werte[i].wechsel;
        werte[i].letzterWechsel = zeit;
        const auto unten = Nachbar(i, false);
        const auto oben = Nachbar(i, true);
        if (unten && oben && staende[*unten] == staende[*oben] && bleibt(*unten) && bleibt(*oben))
            ++werte[i].alleinWechsel;
    }
}

/// Runs of beams in one state. Blanked ones tell nothing of what is between the beams: they are left out as
/// if they were not there.
std::vector<Strahlzaehler::Folge> Strahlzaehler::Folgen() const {
    std::vector<Folge> folgen;
    for (std::size_t i = 0; i < staende.size(); ++i) {
        if (staende[i] != Stand::Frei && staende[i] != Stand::Unterbrochen)
            continue;
        if (folgen.empty() || folgen.back().stand != staende[i])
            folgen.push_back({staende[i], {}});
        folgen.back().strahlen.push_back(i);
    }
    return folgen;
}

/// The ends of the curtain count as free.
void Strahlzaehler::BestimmeUmfeld() {
    umfelder.assign(staende.size(), Umfeld::Gemischt);
    const std::vector<Folge> folgen = Folgen();
    const auto laenge = [&](std::size_t f) { return folgen[f].strahlen.size(); };
    for (std::size_t f = 0; f < folgen.size(); ++f) {
        const bool frei = folgen[f].stand == Stand::Frei;
        const bool hatUntere = f > 0;
        const bool hatObere = f + 1 < folgen.size();
        if (laenge(f) > KurzeFolge) {
            const std::size_t von = hatUntere && laenge(f - 1) > KurzeFolge ? 1 : 0;
            const std::size_t bis = laenge(f) - (hatObere && laenge(f + 1) > KurzeFolge ? 1 : 0);
            for (std::size_t k = von; k < bis; ++k)
                umfelder[folgen[f].strahlen[k]] = frei ? Umfeld::Frei : Umfeld::Unterbrochen;
            continue;
        }
        const std::size_t mindestens = frei ? KurzeFolge + 1 : KurzeFolge;
        const bool unten = hatUntere ? laenge(f - 1) >= mindestens : !frei;
        const bool oben = hatObere ? laenge(f + 1) >= mindestens : !frei;
        if (unten && oben && (hatUntere || hatObere))
            for (const std::size_t strahl : folgen[f].strahlen)
                umfelder[strahl] = frei ? Umfeld::Unterbrochen : Umfeld::Frei;
    }
}

Strahlauswertung::Strahlauswertung(int derTeil, Zeitspanne derZeitraum)
    : teil(derTeil), zeitraum(derZeitraum), betrachtetBis(derZeitraum.von) {}

bool Strahlauswertung::Weiter(const Messquelle& quelle, int pakete) {
    if (quelle.Ende() == quelle.Erstes())
        return false;
    std::uint64_t nummer = std::max(naechstes.value_or(quelle.PaketUm(zeitraum.von)), quelle.Erstes());
    for (; pakete > 0 && nummer < quelle.Ende() && quelle.Spanne(nummer).von <= zeitraum.bis; --pakete) {
        Nimm(quelle, nummer);
        betrachtetBis = std::clamp(quelle.Spanne(nummer).bis, zeitraum.von, zeitraum.bis);
        ++nummer;
    }
    const bool mehr = nummer < quelle.Ende() && quelle.Spanne(nummer).von <= zeitraum.bis;
    naechstes = mehr || nummer == quelle.Erstes() ? nummer : nummer - 1; // the newest may still grow
    return mehr;
}

void Strahlauswertung::Nimm(const Messquelle& quelle, std::uint64_t nummer) {
    const auto paket = quelle.Lies(nummer);
    const Zeit beginn = quelle.Spanne(nummer).von;
    if (paket == nullptr) {
        if (!zuletzt || beginn > *zuletzt)
            zaehler.Unterbrich(beginn);
        return;
    }
    const auto istNeu = [this](Zeit zeit) {
        return zeit >= zeitraum.von && zeit <= zeitraum.bis && (!zuletzt || zeit > *zuletzt);
    };
    Zeit letztes = zuletzt.value_or(Zeit::min());
    const Strahlmenge& geblankt = blanking.Um(quelle, nummer, teil);
    InZeitfolge(
        *paket,
        [&](const Messdurchgang& durchgang) {
            if (!istNeu(durchgang.uhr))
                return;
            const Teilmessung& messung = durchgang.teile.at(static_cast<std::size_t>(teil));
            if (messung.gemessen)
                zaehler.Nimm(durchgang.uhr, SichtAus(messung, geblankt));
            else
                zaehler.Unterbrich(durchgang.uhr);
            letztes = std::max(letztes, durchgang.uhr);
        },
        [&](const Messereignis& ereignis) {
            if (!istNeu(ereignis.laufzeit) || !BeginntLuecke(ereignis.art))
                return;
            zaehler.Unterbrich(ereignis.laufzeit);
            letztes = std::max(letztes, ereignis.laufzeit);
        });
    if (letztes > Zeit::min())
        zuletzt = letztes;
}

double Strahlauswertung::Fortschritt(const Messquelle& quelle) const {
    const Zeitspanne alles = quelle.Spanne();
    const Zeit von = std::max(zeitraum.von, alles.von);
    const Zeit bis = std::min(zeitraum.bis, alles.bis);
    if (bis <= von)
        return 1;
    const auto anteil =
        static_cast<double>((betrachtetBis - von).count()) / static_cast<double>((bis - von).count());
    return std::clamp(anteil, 0.0, 1.0);
}

std::vector<Strahlwerte> Strahlauswertung::Werte() const {
    return zaehler.Bis(betrachtetBis);
}

Werte ZuBlankendes(std::span<const Strahlwerte> strahlen) {
    Werte muster(spezifisch::Blankingregister, 0);
    for (std::size_t i = 0; i < strahlen.size(); ++i) {
        const bool warGeblankt = strahlen[i].gemessen == Zeit{} && strahlen[i].geblankt > Zeit{};
        if (strahlen[i].WarImmerUnterbrochen() || warGeblankt)
            SetzeStrahlBit(muster, static_cast<int>(i), true);
    }
    return muster;
}

int AnzahlImmerUnterbrochene(std::span<const Strahlwerte> strahlen) {
    return static_cast<int>(std::ranges::count_if(strahlen, &Strahlwerte::WarImmerUnterbrochen));
}

} // namespace varnoth
