#include "kurvenspur.h"

#include "kurvenstil.h"
#include "optikteilstatus.h"
#include "statusbits.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace varnoth {

namespace {

constexpr std::int16_t TextSchaltausgang = 6344;

constexpr double Strichstaerke = 2;    // logical pixels
constexpr double Zeichenabstand = 120; // between two signs of a curve
constexpr double Zeichenversatz = 17;  // from those of one curve to those of the next

/// From the smallest to the greatest value of a column, as places.
struct Strecke {
    int oben = 0;
    int unten = 0;

    bool operator==(const Strecke&) const = default;
};

/// Joins rectangles that lie side by side and are equally high.
void Haenge(std::vector<QRect>& spur, const QRect& neues) {
    if (!spur.empty() && spur.back().top() == neues.top() && spur.back().bottom() == neues.bottom() &&
        spur.back().right() + 1 == neues.left())
        spur.back().setRight(neues.right());
    else
        spur.push_back(neues);
}

/// What holds at a column begins with a value before it, however far to the left that is.
int LetzteGemessene(const Spurfeld& feld, int x) {
    do
        --x;
    while (feld.erste + x > feld.spalten.Erste() && feld.Sinn(x) == Spaltensinn::Gehalten);
    return x;
}

class Kurve {
public:
    Kurve(const Spurfeld& dasFeld, const Verlaufswahl& dieWahl, const Strahlabstaende& dieAbstaende,
          Messreihe dieReihe)
        : feld(dasFeld), wahl(dieWahl), abstaende(dieAbstaende), reihe(dieReihe),
          staerke(std::max(1, static_cast<int>(std::lround(Strichstaerke * feld.dichte)))) {}

    std::optional<Strecke> StreckeVon(int x, bool band = false) const {
        if (feld.Sinn(x) != Spaltensinn::Gemessen)
            return {};
        const Teilspalte& teil = feld.Spalte(x).teile[static_cast<std::size_t>(reihe.teil)];
        const auto k = static_cast<std::size_t>(reihe.wert);
        const Wertspanne& spanne = band ? teil.band[k] : teil.aktuell[k];
        if (spanne.IstLeer())
            return {};
        const auto unten = Achsenwert(wahl, abstaende, reihe, spanne.kleinster);
        const auto oben = Achsenwert(wahl, abstaende, reihe, spanne.groesster);
        return unten && oben ? std::optional(Strecke{feld.Y(*oben), feld.Y(*unten)}) : std::nullopt;
    }

    /// Walks over the columns and tells of each what is drawn there: its own values, or those that hold.
    void Geh(int von, bool band,
             const std::function<void(int x, const Strecke& eigene, bool gehalten)>& zeichne) const {
        int x = LetzteGemessene(feld, von);
        std::optional<Strecke> letzte;
        while (x < feld.breite) {
            int halt = x;
            while (halt < feld.breite && feld.Sinn(halt) == Spaltensinn::Gehalten)
                ++halt;
            const auto naechste = NaechsteStrecke(halt, band);
            if (letzte && naechste)
                for (; x < halt; ++x)
                    zeichne(x, Haltend(*letzte, *naechste), true);
            x = halt;
            if (x >= feld.breite)
                break;
            letzte = StreckeVon(x, band);
            if (letzte)
                zeichne(x, *letzte, false);
            ++x;
        }
    }

    int Staerke() const { return staerke; }

private:
    /// Also that of a column behind the right edge.
    std::optional<Strecke> NaechsteStrecke(int x, bool band) const {
        while (feld.Sinn(x) == Spaltensinn::Gehalten)
            ++x;
        return StreckeVon(x, band);
    }
    /// Of the values of the last column one that is nearest to the next ones.
    static Strecke Haltend(const Strecke& letzte, const Strecke& naechste) {
        const int y =
            std::clamp(std::clamp(naechste.oben, letzte.oben, letzte.unten), letzte.oben, letzte.unten);
        return {y, y};
    }

    const Spurfeld& feld;
    const Verlaufswahl& wahl;
    const Strahlabstaende& abstaende;
    Messreihe reihe;
    int staerke;
};

std::uint16_t BitsEinmal(const Spurfeld& feld, int x, const Zustandszeile& zeile) {
    const Messspalte& spalte = feld.Spalte(x);
    return zeile.teil < 0 ? spalte.geraetestatus.einmal
                          : spalte.teile[static_cast<std::size_t>(zeile.teil)].status.einmal;
}

std::uint16_t BitsImmer(const Spurfeld& feld, int x, const Zustandszeile& zeile) {
    const Messspalte& spalte = feld.Spalte(x);
    return zeile.teil < 0 ? spalte.geraetestatus.immer
                          : spalte.teile[static_cast<std::size_t>(zeile.teil)].status.immer;
}

} // namespace

Spaltensinn Spurfeld::Sinn(int x) const {
    const std::int64_t i = erste + x - spalten.Erste();
    return i >= 0 && i < static_cast<std::int64_t>(sinn.size()) ? sinn[static_cast<std::size_t>(i)]
                                                                : Spaltensinn::Leer;
}

int Spurfeld::Y(double wert) const {
    return static_cast<int>(std::lround((werte.oben - wert) / (werte.oben - werte.unten) * hoehe));
}

std::vector<QRect> Kurvenspur(const Spurfeld& feld, const Verlaufswahl& wahl,
                              const Strahlabstaende& abstaende, Messreihe reihe, int von) {
    const Kurve kurve(feld, wahl, abstaende, reihe);
    const Strichmuster& muster = MusterDesTeils(reihe.teil);
    const auto stelle = [&](int x) {
        return static_cast<std::int64_t>(std::floor(static_cast<double>(feld.erste + x) / feld.dichte));
    };
    const int staerke = kurve.Staerke();
    std::vector<QRect> spur;
    Strecke letzte;
    int letztesX = -2;
    kurve.Geh(von, false, [&](int x, const Strecke& eigene, bool) {
        Strecke strecke = eigene;
        const bool anschluss = letztesX == x - 1;
        if (anschluss) {
            strecke.oben = std::min(strecke.oben, letzte.unten);
            strecke.unten = std::max(strecke.unten, letzte.oben);
        }
        const bool eben = anschluss && strecke.oben == strecke.unten;
        letzte = eigene;
        letztesX = x;
        if (x >= von && (!eben || muster.IstGezeichnet(stelle(x))))
            Haenge(spur, QRect(x, strecke.oben - staerke / 2, 1, strecke.unten - strecke.oben + staerke));
    });
    return spur;
}

std::vector<QRect> Bandspur(const Spurfeld& feld, const Verlaufswahl& wahl, const Strahlabstaende& abstaende,
                            Messreihe reihe, int von) {
    const Kurve kurve(feld, wahl, abstaende, reihe);
    std::vector<QRect> spur;
    Strecke letzte;
    kurve.Geh(von, true, [&](int x, const Strecke& eigene, bool gehalten) {
        if (!gehalten)
            letzte = eigene;
        if (x >= von)
            Haenge(spur, QRect(x, letzte.oben, 1, std::max(1, letzte.unten - letzte.oben)));
    });
    return spur;
}

std::vector<QPoint> Zeichenspur(const Spurfeld& feld, const Verlaufswahl& wahl,
                                const Strahlabstaende& abstaende, Messreihe reihe, int von) {
    const Kurve kurve(feld, wahl, abstaende, reihe);
    const auto abstand = static_cast<std::int64_t>(Zeichenabstand * feld.dichte);
    const auto versatz = static_cast<std::int64_t>(Zeichenversatz * feld.dichte *
                                                   (reihe.teil * AnzahlKurvenwerte + reihe.wert));
    std::vector<QPoint> spur;
    kurve.Geh(von, false, [&](int x, const Strecke& eigene, bool) {
        if ((feld.erste + x + versatz) % abstand == 0)
            spur.emplace_back(x, eigene.oben);
    });
    return spur;
}

std::vector<Zustandszeile> Zustandszeilen(const Verlaufswahl& wahl) {
    if (!wahl.zustaende)
        return {};
    std::vector<Zustandszeile> zeilen{{-1, geraetestatus::PnpAktiv, TextSchaltausgang}};
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        for (const Option& merkmal : Optikteilmerkmale)
            if (wahl.HatTeil(teil))
                zeilen.push_back({teil, static_cast<std::uint16_t>(merkmal.wert), merkmal.text});
    return zeilen;
}

Zustandsspur SpurDerZeile(const Spurfeld& feld, const Zustandszeile& zeile, int oben, int hoehe, int von) {
    Zustandsspur spur;
    const int halb = hoehe / 2;
    bool zuletzt = false; // 1 at the end of the last pass
    for (int x = LetzteGemessene(feld, von); x < feld.breite; ++x) {
        const Spaltensinn sinn = feld.Sinn(x);
        if (sinn != Spaltensinn::Gemessen && sinn != Spaltensinn::Gehalten)
            zuletzt = false;
        bool einmal = zuletzt;
        bool immer = zuletzt;
        if (sinn == Spaltensinn::Gemessen) {
            einmal = (BitsEinmal(feld, x, zeile) & zeile.bit) != 0;
            immer = einmal && (BitsImmer(feld, x, zeile) & zeile.bit) != 0;
            zuletzt = immer;
        }
        if (x < von || !einmal)
            continue;
        if (immer)
            Haenge(spur.immer, QRect(x, oben, 1, hoehe));
        else
            Haenge(spur.einmal, QRect(x, oben + hoehe - halb, 1, halb));
    }
    return spur;
}

std::vector<QRect> Lueckenspur(const Spurfeld& feld, int hoehe, int von) {
    std::vector<QRect> spur;
    for (int x = von; x < feld.breite; ++x) {
        const Spaltensinn sinn = feld.Sinn(x);
        if (sinn == Spaltensinn::Luecke || (sinn == Spaltensinn::Gemessen && feld.Spalte(x).luecke))
            Haenge(spur, QRect(x, 0, 1, hoehe));
    }
    return spur;
}

} // namespace varnoth
