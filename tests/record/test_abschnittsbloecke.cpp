#include "uebersicht.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace varnoth {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

class Wuerfel {
public:
    explicit Wuerfel(unsigned saat) : zufall(saat) {}
    int operator()(int hoechstens) { return std::uniform_int_distribution<>(0, hoechstens)(zufall); }

private:
    std::mt19937 zufall;
};

Messdurchgang ZufaelligerDurchgang(Wuerfel& wuerfle, Zeit uhr) {
    Messdurchgang durchgang{.uhr = uhr, .anzahlTeile = AnzahlOptikteile};
    durchgang.geraetestatus = static_cast<std::uint16_t>(wuerfle(0xFFFF));
    for (Teilmessung& teil : durchgang.teile) {
        teil.gemessen = wuerfle(3) > 0;
        teil.status = static_cast<std::uint16_t>(wuerfle(0xFF));
        teil.strahlen = static_cast<std::int16_t>(wuerfle(64));
        for (std::uint16_t& wert : teil.werte)
            wert = static_cast<std::uint16_t>(wuerfle(512));
    }
    return durchgang;
}

/// Stretches with silence between some of them, gaps, and now and then what is forgotten at the beginning:
/// now and then all of it.
void FuelleZufaellig(Uebersicht& uebersicht, Wuerfel& wuerfle, int durchgaenge) {
    Zeit uhr{0};
    for (int i = 0; i < durchgaenge; ++i) {
        uebersicht.Nimm(ZufaelligerDurchgang(wuerfle, uhr));
        if (wuerfle(60) == 0)
            uebersicht.NimmLuecke();
        uhr += wuerfle(40) == 0 ? Zeit(seconds(wuerfle(30))) : Zeit(milliseconds(200 + wuerfle(1500)));
        if (wuerfle(90) == 0)
            uebersicht.VergissBis(uhr - Zeit(seconds(wuerfle(2) == 0 ? 0 : 300)));
    }
}

/// Stretch by stretch.
std::map<std::int64_t, Messspalte> Einzeln(const Uebersicht& uebersicht, const Uebersicht::Spalten& spalten) {
    std::map<std::int64_t, Messspalte> gefuellte;
    for (std::size_t i = 0; i < uebersicht.Anzahl(); ++i) {
        Messspalte abschnitt;
        abschnitt.durchgang = true;
        abschnitt.luecke = uebersicht.HatLuecke(i);
        abschnitt.geraetestatus = uebersicht.Geraetestatus(i);
        for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
            Teilspalte& seine = abschnitt.teile[static_cast<std::size_t>(teil)];
            if (uebersicht.Durchgaenge(i, teil) == 0)
                continue;
            seine.gemessen = true;
            seine.status = uebersicht.Status(i, teil);
            seine.strahlen = static_cast<std::int16_t>(uebersicht.Strahlen(i, teil));
            for (std::size_t k = 0; k < AnzahlKurvenwerte; ++k) {
                seine.aktuell[k] = uebersicht.Werte(i, teil)[k];
                seine.band[k] = uebersicht.Werte(i, teil)[ErstesMinimum + k];
                seine.band[k].Nimm(uebersicht.Werte(i, teil)[ErstesMaximum + k]);
            }
        }
        const Zeitspanne spanne = uebersicht.Spanne(i);
        for (auto n = spanne.von / spalten.breite; n <= spanne.bis / spalten.breite; ++n)
            if (n >= spalten.von && n < spalten.bis)
                gefuellte[n].Nimm(abschnitt, spalten.teile);
    }
    return gefuellte;
}

void Vergleiche(const Uebersicht& uebersicht, Zeit breite, std::int64_t von, std::int64_t anzahl,
                unsigned teile) {
    std::map<std::int64_t, Messspalte> gefuellte;
    Uebersicht::Spalten spalten{
        .breite = breite, .von = von, .bis = von + anzahl, .teile = teile, .hole = {}};
    spalten.hole = [&](std::int64_t nummer) -> Messspalte& {
        EXPECT_GE(nummer, spalten.von);
        EXPECT_LT(nummer, spalten.bis);
        return gefuellte[nummer];
    };
    uebersicht.Trage(spalten);
    ASSERT_EQ(gefuellte, Einzeln(uebersicht, spalten))
        << breite.count() << " us from " << von << ", " << anzahl << " columns, parts " << teile;
}

void VergleicheZufaellige(const Uebersicht& uebersicht, Wuerfel& wuerfle) {
    const Zeit ende = uebersicht.Spanne(uebersicht.Anzahl() - 1).bis;
    for (int i = 0; i < 60; ++i) {
        const Zeit breite = Zeit(1'000 * (1 + wuerfle(wuerfle(1) == 0 ? 5'000 : 200'000)));
        const auto ganz = static_cast<int>(ende / breite);
        Vergleiche(uebersicht, breite, wuerfle(ganz + 10) - 5, 1 + wuerfle(ganz + 20),
                   static_cast<unsigned>(wuerfle(15)));
    }
}

} // namespace

TEST(Abschnittsbloecke, A_column_made_of_blocks_holds_what_it_would_hold_stretch_by_stretch) {
    for (unsigned saat = 1; saat <= 12; ++saat) {
        Wuerfel wuerfle(saat);
        Uebersicht uebersicht;
        FuelleZufaellig(uebersicht, wuerfle, 700);
        VergleicheZufaellige(uebersicht, wuerfle);
    }
}

TEST(Abschnittsbloecke, So_does_one_of_an_overview_whose_stretches_have_become_longer) {
    for (unsigned saat = 1; saat <= 6; ++saat) {
        Wuerfel wuerfle(saat);
        Uebersicht uebersicht(100'000);
        FuelleZufaellig(uebersicht, wuerfle, 1500);
        ASSERT_GT(uebersicht.Spanne(0).bis - uebersicht.Spanne(0).von, seconds(1));
        VergleicheZufaellige(uebersicht, wuerfle);
    }
}

TEST(Abschnittsbloecke, A_wide_column_is_made_of_few_pieces) {
    Abschnittsbloecke bloecke;
    for (int i = 0; i < 40; ++i) {
        Messspalte inhalt{.durchgang = true};
        inhalt.luecke = i == 21;
        bloecke.Nimm(10 + i, inhalt);
    }
    const auto bis = [](std::int64_t letzter) {
        return [letzter](const Abschnittsbloecke::Block& block) { return block.letzter <= letzter; };
    };
    ASSERT_NE(bloecke.Ab(0, bis(100)), nullptr);
    EXPECT_EQ(bloecke.Ab(0, bis(100))->anzahl, 16U);
    EXPECT_EQ(bloecke.Ab(16, bis(100))->erster, 26);
    EXPECT_EQ(bloecke.Ab(16, bis(100))->letzter, 41);
    EXPECT_TRUE(bloecke.Ab(16, bis(100))->inhalt.luecke);
    EXPECT_EQ(bloecke.Ab(16, bis(40))->anzahl, 4U) << "the larger one ends too late";
    EXPECT_FALSE(bloecke.Ab(16, bis(40))->inhalt.luecke);
    EXPECT_EQ(bloecke.Ab(32, bis(100))->anzahl, 4U) << "the larger one is not full";
    EXPECT_EQ(bloecke.Ab(1, bis(100)), nullptr);
    EXPECT_EQ(bloecke.Ab(16, bis(28)), nullptr);
    EXPECT_EQ(bloecke.Ab(40, bis(100)), nullptr);
    bloecke.Vergiss(17);
    EXPECT_EQ(bloecke.Ab(16, bis(100)), nullptr);
    EXPECT_EQ(bloecke.Ab(20, bis(100))->anzahl, 4U);
}

} // namespace varnoth
