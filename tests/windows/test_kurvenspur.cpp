#include "kurvenspur.h"

#include "kurvenstil.h"
#include "optikteilstatus.h"
#include "pruefdurchgaenge.h"
#include "statusbits.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;
using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

constexpr Messreihe Tu{0, 0};

/// A hundred columns of 100 ms, values 0 to 100 a pixel each.
struct KurvenspurTest : testing::Test {
    KurvenspurTest() { wahl.Setze(Tu, true); }

    Spurfeld Feld() {
        spalten.Beginne(milliseconds(100));
        spalten.Decke(quelle, -40, 200);
        while (!spalten.IstFertig())
            spalten.Verfeinere(quelle, 100);
        sinn = spalten.Deute(quelle.Spanne().bis);
        return {.spalten = spalten, .sinn = sinn, .erste = 0, .breite = 100, .hoehe = 100, .werte = {0, 100}};
    }
    std::vector<QRect> Spur(Messreihe reihe = Tu) { return Kurvenspur(Feld(), wahl, abstaende, reihe, 0); }

    static bool Bedeckt(const std::vector<QRect>& spur, int x, int y) {
        return std::ranges::any_of(spur, [&](const QRect& teil) { return teil.contains(x, y); });
    }

    PruefMessquelle quelle;
    Spaltenspeicher spalten;
    std::vector<Spaltensinn> sinn;
    Verlaufswahl wahl;
    Strahlabstaende abstaende{};
};

} // namespace

TEST_F(KurvenspurTest, A_value_holds_from_pass_to_pass) {
    quelle.Nimm(PaketMit(seconds(0), 6, seconds(1), 30));
    const auto spur = Spur();
    for (int x = 0; x <= 50; ++x)
        EXPECT_TRUE(Bedeckt(spur, x, 70)) << x;
    EXPECT_FALSE(Bedeckt(spur, 51, 70));
}

TEST_F(KurvenspurTest, A_step_is_joined_to_what_was_before) {
    quelle.Nimm(PaketMit(seconds(0), 3, milliseconds(100), 30));
    quelle.Nimm(PaketMit(milliseconds(300), 3, milliseconds(100), 80));
    const auto spur = Spur();
    for (int y = 20; y <= 70; ++y)
        EXPECT_TRUE(Bedeckt(spur, 3, y)) << y;
    EXPECT_FALSE(Bedeckt(spur, 2, 40));
}

TEST_F(KurvenspurTest, A_step_of_one_is_as_thick_as_the_curve) {
    quelle.Nimm(PaketMit(seconds(0), 3, milliseconds(100), 30));
    quelle.Nimm(PaketMit(milliseconds(300), 3, milliseconds(100), 31));
    const auto spur = Spur();
    EXPECT_TRUE(Bedeckt(spur, 3, 70));
    EXPECT_TRUE(Bedeckt(spur, 4, 70)) << "the end of the step";
    EXPECT_FALSE(Bedeckt(spur, 5, 70));
}

TEST_F(KurvenspurTest, A_spike_of_one_pass_is_drawn_in_every_pattern) {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        for (int wann = 0; wann < 20; ++wann) {
            PruefMessquelle eigene;
            for (int i = 0; i < 30; ++i) {
                Messpaket paket = PaketMit(milliseconds(100 * i), 1, seconds(1), i == wann ? 90 : 20);
                std::swap(paket.durchgaenge[0].teile[0],
                          paket.durchgaenge[0].teile[static_cast<std::size_t>(teil)]);
                eigene.Nimm(std::move(paket));
            }
            spalten.Beginne(milliseconds(100));
            spalten.Decke(eigene, 0, 30);
            while (!spalten.IstFertig())
                spalten.Verfeinere(eigene, 100);
            sinn = spalten.Deute(seconds(3));
            const Spurfeld feld{
                .spalten = spalten, .sinn = sinn, .breite = 30, .hoehe = 100, .werte = {0, 100}};
            EXPECT_TRUE(Bedeckt(Kurvenspur(feld, wahl, abstaende, {teil, 0}, 0), wann, 10))
                << teil << ", " << wann;
        }
}

TEST_F(KurvenspurTest, A_gap_has_no_curve_and_is_marked) {
    quelle.Nimm(PaketMit(seconds(0), 2, milliseconds(100), 30));
    quelle.Nimm(PaketMit(seconds(6), 2, milliseconds(100), 30));
    const auto spur = Spur();
    EXPECT_FALSE(Bedeckt(spur, 30, 70));
    const auto luecken = Lueckenspur(Feld(), 100, 0);
    ASSERT_EQ(luecken.size(), 1U);
    EXPECT_EQ(luecken[0], QRect(2, 0, 58, 100));
}

TEST_F(KurvenspurTest, A_part_that_is_not_measured_for_a_while_has_no_curve_then) {
    quelle.Nimm(PaketMit(seconds(0), 10, milliseconds(100), 30));
    Messpaket ohne = PaketMit(seconds(1), 10, milliseconds(100), 30);
    for (Messdurchgang& durchgang : ohne.durchgaenge)
        durchgang.teile[0] = {};
    quelle.Nimm(std::move(ohne));
    quelle.Nimm(PaketMit(seconds(2), 10, milliseconds(100), 30));
    const auto spur = Spur();
    EXPECT_TRUE(Bedeckt(spur, 5, 70));
    EXPECT_FALSE(Bedeckt(spur, 15, 70));
    EXPECT_TRUE(Bedeckt(spur, 25, 70));
}

TEST_F(KurvenspurTest, Values_are_drawn_in_millimetres_where_the_spacing_is_known) {
    quelle.Nimm(PaketMit(seconds(0), 5, milliseconds(100), 11));
    wahl.millimeter = true;
    EXPECT_TRUE(Spur().empty());
    abstaende[0] = 5;
    EXPECT_TRUE(Bedeckt(Spur(), 2, 50));
}

TEST_F(KurvenspurTest, The_band_reaches_from_the_minimum_to_the_maximum_registers) {
    quelle.Nimm(PaketMit(seconds(0), 5, milliseconds(100), 30));
    Spurfeld feld = Feld();
    feld.werte = {0, 200};
    const auto band = Bandspur(feld, wahl, abstaende, Tu, 0);
    ASSERT_EQ(band.size(), 1U);
    EXPECT_EQ(band[0], QRect(0, 40, 5, 59));
}

TEST_F(KurvenspurTest, Only_columns_from_the_one_asked_for_are_drawn_and_as_in_the_whole) {
    for (int i = 0; i < 60; ++i)
        quelle.Nimm(PaketMit(milliseconds(150 * i), 1, seconds(1), static_cast<std::uint16_t>(20 + i % 7)));
    const Spurfeld feld = Feld();
    const auto ganz = Kurvenspur(feld, wahl, abstaende, Tu, 0);
    const auto rest = Kurvenspur(feld, wahl, abstaende, Tu, 40);
    for (int y = 60; y < 90; ++y) {
        for (int x = 0; x < 40; ++x)
            EXPECT_FALSE(Bedeckt(rest, x, y)) << x << ", " << y;
        for (int x = 41; x < 100; ++x)
            EXPECT_EQ(Bedeckt(rest, x, y), Bedeckt(ganz, x, y)) << x << ", " << y;
    }
}

TEST_F(KurvenspurTest, A_bit_that_was_always_1_fills_its_row_and_one_that_changed_half_of_it) {
    Messpaket paket = PaketMit(seconds(0), 20, milliseconds(50), 30);
    for (std::size_t i = 0; i < 20; ++i)
        paket.durchgaenge[i].geraetestatus = i < 7 ? geraetestatus::PnpAktiv : 0;
    quelle.Nimm(std::move(paket));
    const Zustandszeile zeile = Zustandszeilen(wahl).front();
    const Zustandsspur spur = SpurDerZeile(Feld(), zeile, 100, 10, 0);
    EXPECT_EQ(spur.immer, (std::vector<QRect>{{0, 100, 3, 10}}));
    EXPECT_EQ(spur.einmal, (std::vector<QRect>{{3, 105, 1, 5}}));
}

TEST_F(KurvenspurTest, Rows_are_the_switching_output_and_the_states_of_parts_that_have_a_curve) {
    wahl.Setze({2, 4}, true);
    const auto zeilen = Zustandszeilen(wahl);
    ASSERT_EQ(zeilen.size(), 1 + 2 * std::size(Optikteilmerkmale));
    EXPECT_EQ(zeilen[0].teil, -1);
    EXPECT_EQ(zeilen[1].teil, 0);
    EXPECT_EQ(zeilen[7].teil, 2);
    wahl.zustaende = false;
    EXPECT_TRUE(Zustandszeilen(wahl).empty());
}

TEST_F(KurvenspurTest, Each_curve_bears_its_sign_again_and_again_at_places_of_its_own) {
    quelle.Nimm(PaketMit(seconds(0), 100, milliseconds(100), 30));
    Spurfeld feld = Feld();
    feld.dichte = 0.4;
    const auto tu = Zeichenspur(feld, wahl, abstaende, Tu, 0);
    const auto hu = Zeichenspur(feld, wahl, abstaende, {0, 1}, 0);
    ASSERT_FALSE(tu.empty());
    ASSERT_FALSE(hu.empty());
    EXPECT_EQ(tu[0].y(), 70);
    EXPECT_NE(tu[0].x(), hu[0].x());
}

TEST(Kurvenstil, Parts_differ_by_their_pattern) {
    std::vector<std::string> muster;
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        std::string bild;
        for (int i = -30; i < 60; ++i)
            bild += MusterDesTeils(teil).IstGezeichnet(i) ? '#' : ' ';
        EXPECT_FALSE(std::ranges::count(muster, bild));
        muster.push_back(bild);
    }
    EXPECT_EQ(muster[0].find(' '), std::string::npos);
}

TEST(Kurvenstil, A_pattern_without_lengths_is_a_whole_line) {
    for (const int stelle : {-1, 0, 7})
        EXPECT_TRUE(Strichmuster{}.IstGezeichnet(stelle));
}

} // namespace varnoth
