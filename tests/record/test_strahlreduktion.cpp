#include "messfolge.h"
#include "strahlproben.h"
#include "strahlreduktion.h"

#include <gtest/gtest.h>

#include <random>

namespace varnoth {

using namespace strahlproben;
using namespace std::chrono_literals;

namespace {

constexpr int Viele = 1000000; // packets: as many as there are

/// What a column is to show, found by looking at every pass and event anew.
Strahlspalte Nachgesehen(const pruefung::PruefMessquelle& quelle, int teil, Zeit von, Zeit bis) {
    Blankingkenntnis blanking;
    Strahlspalte spalte;
    bool gilt = false;
    Zeit seit{};
    Strahlsicht letzte;
    bool letzteGemessen = false;
    for (std::uint64_t nummer = quelle.Erstes(); nummer < quelle.Ende(); ++nummer)
        InZeitfolge(
            quelle.Paket(nummer),
            [&](const Messdurchgang& durchgang) {
                if (durchgang.uhr >= bis)
                    return;
                const Teilmessung& messung = durchgang.teile.at(static_cast<std::size_t>(teil));
                const Strahlsicht sicht =
                    messung.gemessen ? SichtAus(messung, blanking.Um(quelle, nummer, teil)) : Strahlsicht{};
                if (durchgang.uhr >= von) {
                    spalte.sicht.Nimm(sicht);
                    spalte.art = std::max(spalte.art, messung.gemessen ? Spaltenart::Gemessen
                                                                       : Spaltenart::NichtGemessen);
                } else {
                    gilt = true;
                    seit = durchgang.uhr;
                    letzte = sicht;
                    letzteGemessen = messung.gemessen;
                }
            },
            [&](const Messereignis& ereignis) {
                if (ereignis.laufzeit >= bis || !BeginntLuecke(ereignis.art))
                    return;
                spalte.luecke = spalte.luecke || ereignis.laufzeit >= von;
                if (ereignis.laufzeit < von)
                    gilt = false;
            });
    spalte.genau = true;
    if (spalte.art != Spaltenart::Leer || von > quelle.Spanne().bis || bis <= quelle.Spanne().von)
        return spalte;
    if (gilt && von - seit <= MessungGiltHoechstens) {
        spalte.art = letzteGemessen ? Spaltenart::Gemessen : Spaltenart::NichtGemessen;
        spalte.sicht = letzte;
        return spalte;
    }
    spalte.art = Spaltenart::Luecke;
    spalte.luecke = true;
    return spalte;
}

Messpaket Paket(Zeit von, Zeit bis) {
    Messpaket paket;
    paket.spanne = {von, bis};
    return paket;
}

/// Seconds of passes at odd times, in which parts are missing now and then, with breaks and a second without
/// anything.
void FuelleZufaellig(pruefung::PruefMessquelle& quelle, unsigned saat, int strahlen) {
    std::mt19937 zufall(saat);
    const auto eins = [&](int von) { return static_cast<int>(zufall() % static_cast<unsigned>(von)) == 0; };
    Blanke(quelle.konfiguration, 1, {2, 3, 40});
    Zeit uhr{};
    for (int sekunde = 0; sekunde < 40; ++sekunde) {
        Messpaket paket = Paket(sekunde * 1s, sekunde * 1s + 999999us);
        for (uhr = std::max(uhr, paket.spanne.von); uhr < paket.spanne.bis;
             uhr += 7ms + zufall() % 90 * 1ms) {
            if (eins(60)) {
                paket.ereignisse.push_back({.art = Messereignisart::Verloren, .laufzeit = uhr});
                uhr += eins(3) ? 9s : 1s;
                paket.ereignisse.push_back({.art = Messereignisart::Zurueck, .laufzeit = uhr});
                if (uhr >= paket.spanne.bis)
                    break;
            }
            Messdurchgang durchgang = Durchgang(uhr, 1, strahlen, [&](int) { return eins(9); });
            durchgang.teile[1].gemessen = !eins(15);
            paket.durchgaenge.push_back(durchgang);
        }
        if (!paket.durchgaenge.empty() || !paket.ereignisse.empty()) {
            paket.spanne.bis = std::max(paket.spanne.bis, uhr);
            uhr = paket.spanne.bis + 1us;
            quelle.Nimm(std::move(paket));
        }
    }
}

class StrahlreduktionTest : public testing::Test {
protected:
    const Strahlspalte& Spalte(std::int64_t nummer) { return reduktion.Spalte(nummer); }

    pruefung::PruefMessquelle quelle;
    Strahlreduktion reduktion;
};

} // namespace

TEST_F(StrahlreduktionTest, Narrow_columns_show_what_looking_at_every_pass_finds) {
    for (const unsigned saat : {1U, 2U, 3U}) {
        pruefung::PruefMessquelle zufaellige;
        FuelleZufaellig(zufaellige, saat, 70);
        for (const Zeit breite : {Zeit(3ms), Zeit(40ms), Zeit(310ms)}) {
            const int anzahl = static_cast<int>(Zeit(44s) / breite);
            Strahlreduktion gleich;
            gleich.Setze(1, breite);
            ASSERT_TRUE(gleich.Rechne(zufaellige, -5, anzahl, Viele));
            for (std::int64_t k = -5; k < anzahl - 5; k += breite < 10ms ? 11 : 1)
                ASSERT_EQ(gleich.Spalte(k), Nachgesehen(zufaellige, 1, k * breite, (k + 1) * breite))
                    << saat << ' ' << breite.count() << ' ' << k;
        }
    }
}

TEST_F(StrahlreduktionTest, Columns_come_out_the_same_when_few_packets_are_read_at_a_time) {
    FuelleZufaellig(quelle, 4, 70);
    reduktion.Setze(1, 40ms);
    int aufrufe = 1;
    while (!reduktion.Rechne(quelle, 0, 900, 8))
        ASSERT_LT(++aufrufe, 100);
    EXPECT_GT(aufrufe, 4);
    for (std::int64_t k = 0; k < 900; ++k)
        ASSERT_EQ(Spalte(k), Nachgesehen(quelle, 1, k * 40ms, (k + 1) * 40ms)) << k;
}

TEST_F(StrahlreduktionTest, A_call_reads_no_more_packets_than_it_may) {
    Fuelle(quelle, 2000, 16, [](int, int) { return false; });
    reduktion.Setze(0, 20ms);
    EXPECT_FALSE(reduktion.Rechne(quelle, 0, 5000, 5));
    EXPECT_LE(quelle.gelesen, 5);
}

TEST_F(StrahlreduktionTest, Until_its_packets_are_read_a_column_shows_the_overview) {
    Fuelle(quelle, 400, 16, [](int, int strahl) { return strahl == 3; });
    reduktion.Setze(0, 20ms);
    EXPECT_FALSE(reduktion.Rechne(quelle, 0, 900, 0));
    EXPECT_EQ(quelle.gelesen, 0);
    EXPECT_FALSE(Spalte(500).genau);
    EXPECT_EQ(Strahlzelle(Spalte(500), 3), Zellenart::Unterbrochen);
    EXPECT_EQ(Strahlzelle(Spalte(500), 4), Zellenart::Frei);
}

TEST_F(StrahlreduktionTest, Wide_columns_need_no_packets_and_lose_no_interrupted_beam) {
    Fuelle(quelle, 40 * 60 * 20, 512,
           [](int durchgang, int strahl) { return durchgang == 12345 && strahl == 77; });
    reduktion.Setze(0, 10s);
    EXPECT_TRUE(reduktion.Rechne(quelle, 0, 240, 0));
    EXPECT_EQ(quelle.gelesen, 0);
    const Zeit wann = 12345 * Takt;
    for (std::int64_t k = 0; k < 240; ++k)
        for (int strahl = 0; strahl < 512; ++strahl)
            ASSERT_EQ(Strahlzelle(Spalte(k), strahl),
                      strahl == 77 && k == wann / 10s ? Zellenart::Zeitweise : Zellenart::Frei)
                << k << ' ' << strahl;
}

TEST_F(StrahlreduktionTest, Blanked_wins_over_interrupted_in_wide_and_narrow_columns) {
    Blanke(quelle.konfiguration, 0, {5});
    Fuelle(quelle, 200, 16, [](int, int strahl) { return strahl == 5 || strahl == 6; });
    for (const Zeit breite : {Zeit(20ms), Zeit(2s)}) {
        reduktion.Setze(0, breite);
        ASSERT_TRUE(reduktion.Rechne(quelle, 0, 3, Viele));
        EXPECT_EQ(Strahlzelle(Spalte(1), 5), Zellenart::Geblankt);
        EXPECT_EQ(Strahlzelle(Spalte(1), 6), Zellenart::Unterbrochen);
        EXPECT_EQ(Strahlzelle(Spalte(1), 7), Zellenart::Frei);
    }
}

TEST_F(StrahlreduktionTest, What_lies_outside_of_the_source_is_empty_and_a_lost_connection_is_a_gap) {
    Messpaket paket = Paket(1s, 2s);
    paket.durchgaenge.push_back(Durchgang(1s, 0, 8, [](int) { return false; }));
    paket.ereignisse.push_back({.art = Messereignisart::Verloren, .laufzeit = 1500ms});
    quelle.Nimm(paket);
    Messpaket spaeter = Paket(30s, 31s);
    spaeter.durchgaenge.push_back(Durchgang(30s, 0, 8, [](int) { return true; }));
    quelle.Nimm(spaeter);
    reduktion.Setze(0, 100ms);
    ASSERT_TRUE(reduktion.Rechne(quelle, 0, 400, Viele));
    EXPECT_EQ(Spalte(9).art, Spaltenart::Leer);
    EXPECT_EQ(Spalte(12).art, Spaltenart::Gemessen);
    EXPECT_FALSE(Spalte(12).luecke);
    EXPECT_EQ(Spalte(16).art, Spaltenart::Luecke);
    EXPECT_EQ(Spalte(200).art, Spaltenart::Luecke);
    EXPECT_TRUE(Spalte(200).luecke);
    EXPECT_EQ(Strahlzelle(Spalte(305), 0), Zellenart::Unterbrochen);
    EXPECT_EQ(Spalte(320).art, Spaltenart::Leer);
}

TEST_F(StrahlreduktionTest, A_gap_is_one_in_wide_columns_too) {
    Fuelle(quelle, 20, 8, [](int, int) { return false; });
    Fuelle(
        quelle, 20, 8, [](int, int) { return false; }, 0, 60s);
    reduktion.Setze(0, 2s);
    ASSERT_TRUE(reduktion.Rechne(quelle, 0, 35, 0));
    EXPECT_EQ(Spalte(0).art, Spaltenart::Gemessen);
    EXPECT_EQ(Spalte(15).art, Spaltenart::Luecke);
    EXPECT_TRUE(Spalte(15).luecke);
    EXPECT_EQ(Spalte(30).art, Spaltenart::Gemessen);
}

TEST_F(StrahlreduktionTest, A_wide_column_that_was_measured_but_for_a_while_says_so) {
    Fuelle(quelle, 20, 8, [](int, int) { return false; });
    quelle.pakete.back().ereignisse = {{.art = Messereignisart::Verloren, .laufzeit = 500ms}};
    quelle.uebersicht.Nimm(quelle.pakete.back().ereignisse.front());
    Fuelle(
        quelle, 60, 8, [](int, int) { return false; }, 0, 1s);
    reduktion.Setze(0, 2s);
    ASSERT_TRUE(reduktion.Rechne(quelle, 0, 2, 0));
    EXPECT_EQ(Spalte(0).art, Spaltenart::Gemessen);
    EXPECT_TRUE(Spalte(0).luecke);
    EXPECT_FALSE(Spalte(1).luecke);
}

TEST_F(StrahlreduktionTest, A_part_that_the_passes_leave_out_is_not_measured) {
    Fuelle(
        quelle, 100, 8, [](int, int) { return true; }, 2);
    for (const Zeit breite : {Zeit(50ms), Zeit(2s)}) {
        reduktion.Setze(1, breite);
        ASSERT_TRUE(reduktion.Rechne(quelle, 0, 2, Viele));
        EXPECT_EQ(Spalte(1).art, Spaltenart::NichtGemessen);
        EXPECT_EQ(Strahlzelle(Spalte(1), 3), Zellenart::NichtGemessen);
    }
}

TEST_F(StrahlreduktionTest, A_damaged_packet_is_a_gap_and_the_next_one_shows_again) {
    Fuelle(quelle, 100, 8, [](int, int strahl) { return strahl == 1; });
    quelle.beschaedigte = {2};
    reduktion.Setze(0, 50ms);
    ASSERT_TRUE(reduktion.Rechne(quelle, 0, 100, Viele));
    EXPECT_EQ(Spalte(39).art, Spaltenart::Gemessen);
    EXPECT_EQ(Spalte(50).art, Spaltenart::Luecke);
    EXPECT_EQ(Strahlzelle(Spalte(60), 1), Zellenart::Unterbrochen);
}

TEST_F(StrahlreduktionTest, Sliding_calculates_only_what_is_new) {
    Fuelle(quelle, 2000, 8, [](int, int strahl) { return strahl == 1; });
    reduktion.Setze(0, 2s);
    ASSERT_TRUE(reduktion.Rechne(quelle, 0, 40, 0));
    const auto vorher = reduktion.Gerechnete();
    Fuelle(
        quelle, 100, 8, [](int, int strahl) { return strahl == 2; }, 0, 100s);
    ASSERT_TRUE(reduktion.Rechne(quelle, 8, 40, 0));
    EXPECT_LE(reduktion.Gerechnete() - vorher, 9);
    EXPECT_EQ(Strahlzelle(Spalte(20), 1), Zellenart::Unterbrochen);
}

TEST_F(StrahlreduktionTest, A_column_that_still_grows_is_calculated_again) {
    Fuelle(quelle, 25, 8, [](int, int) { return false; });
    reduktion.Setze(0, 2s);
    ASSERT_TRUE(reduktion.Rechne(quelle, 0, 2, 0));
    EXPECT_EQ(Strahlzelle(Spalte(0), 4), Zellenart::Frei);
    Fuelle(
        quelle, 10, 8, [](int, int strahl) { return strahl == 4; }, 0, 1250ms);
    ASSERT_TRUE(reduktion.Rechne(quelle, 0, 2, 0));
    EXPECT_EQ(Strahlzelle(Spalte(0), 4), Zellenart::Zeitweise);
}

TEST_F(StrahlreduktionTest, While_it_grows_it_shows_what_calculating_it_anew_shows) {
    const auto selten = [](int i) {
        return [i](int, int strahl) { return i % 5 == 3 && strahl == i / 5 % 8; };
    };
    // The overview's stretches of a second reach over the ends of such columns.
    reduktion.Setze(0, 1500ms);
    for (int i = 0; i < 60; ++i) {
        Fuelle(quelle, 2, 8, selten(i), 0, 30ms + i * 100ms);
        ASSERT_TRUE(reduktion.Rechne(quelle, 0, 4, 0));
        Strahlreduktion neue;
        neue.Setze(0, 1500ms);
        ASSERT_TRUE(neue.Rechne(quelle, 0, 4, 0));
        for (std::int64_t k = 0; k < 4; ++k)
            EXPECT_EQ(Spalte(k), neue.Spalte(k)) << "column " << k << " behind packet " << i;
    }
}

TEST_F(StrahlreduktionTest, Another_part_or_source_shows_nothing_of_the_former) {
    Fuelle(quelle, 100, 8, [](int, int) { return true; });
    reduktion.Setze(0, 2s);
    ASSERT_TRUE(reduktion.Rechne(quelle, 0, 2, 0));
    reduktion.Setze(3, 2s);
    EXPECT_EQ(Spalte(0).art, Spaltenart::Leer);
    reduktion.Setze(0, 2s);
    ASSERT_TRUE(reduktion.Rechne(quelle, 0, 2, 0));
    reduktion.Vergiss();
    EXPECT_EQ(Spalte(0).art, Spaltenart::Leer);
    const pruefung::PruefMessquelle leere;
    EXPECT_TRUE(reduktion.Rechne(leere, 0, 2, Viele));
    EXPECT_EQ(Spalte(0).art, Spaltenart::Leer);
}

TEST(Strahlreihen, With_more_beams_than_rows_no_interrupted_beam_disappears) {
    const auto reihen = Strahlreihen(300, 0, 512, 512);
    Strahlspalte spalte{.art = Spaltenart::Gemessen};
    std::vector<Zellenart> zellen;
    for (int strahl = 0; strahl < 512; ++strahl) {
        spalte.sicht = {.strahlen = 512, .frei = ErsteStrahlen(512)};
        FuegeHinzu(spalte.sicht.unterbrochen, strahl);
        FuelleZellen(spalte, reihen, zellen);
        EXPECT_GE(std::ranges::count(zellen, Zellenart::Zeitweise), 1) << strahl;
    }
}

TEST(Strahlreihen, With_more_rows_than_beams_each_row_shows_one_and_the_lowest_stands_at_the_bottom) {
    const auto reihen = Strahlreihen(100, 10, 8, 512);
    EXPECT_EQ(reihen.front(), (Strahlreihe{17, 17}));
    EXPECT_EQ(reihen.back(), (Strahlreihe{10, 10}));
    for (int strahl = 10; strahl < 18; ++strahl)
        EXPECT_NEAR(static_cast<double>(std::ranges::count(reihen, Strahlreihe{strahl, strahl})), 12.5, 1);
}

TEST(Strahlreihen, Of_beams_that_share_a_row_the_most_interrupted_one_is_shown) {
    Strahlspalte spalte{.art = Spaltenart::Gemessen};
    spalte.sicht.strahlen = 4;
    FuegeHinzu(spalte.sicht.frei, 0);
    const std::vector<Strahlreihe> eine{{0, 3}};
    std::vector<Zellenart> zellen;
    FuelleZellen(spalte, eine, zellen);
    EXPECT_EQ(zellen.front(), Zellenart::Geblankt);
    FuegeHinzu(spalte.sicht.unterbrochen, 0);
    FuelleZellen(spalte, eine, zellen);
    EXPECT_EQ(zellen.front(), Zellenart::Zeitweise);
    FuegeHinzu(spalte.sicht.unterbrochen, 3);
    FuelleZellen(spalte, eine, zellen);
    EXPECT_EQ(zellen.front(), Zellenart::Unterbrochen);
}

} // namespace varnoth
