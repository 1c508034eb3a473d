#include "durchgangsbild.h"
#include "registeradressen.h"
#include "wiedergabe.h"
#include "wiedergabeproben.h"

#include <gtest/gtest.h>

#include <limits>

namespace varnoth {

using namespace pruefung;
using namespace std::chrono_literals;
using enum Messereignisart;

namespace {

/// Passes each 100 ms from 1 s to 4.9 s, ten to a packet.
void Fuelle(PruefMessquelle& quelle) {
    for (Zeit von = 1s; von < 5s; von += 1s) {
        Messpaket paket;
        for (int i = 0; i < 10; ++i)
            paket.durchgaenge.push_back(Durchgang(von + i * 100ms));
        quelle.Nimm(paket);
    }
}

struct WiedergabeTest : testing::Test {
    WiedergabeTest() { Fuelle(quelle); }

    Zeit Gezeigter() const {
        const auto stelle = StelleUm(quelle, wiedergabe.Position());
        return stelle.Durchgang() != nullptr ? stelle.Durchgang()->uhr : Zeit{-1};
    }

    PruefMessquelle quelle;
    PruefMessquelle anfang;
    Wiedergabe wiedergabe{(Fuelle(anfang), anfang)};
};

struct StelleTest : testing::Test {
    Wiedergabelage Lage(Zeit laufzeit) const { return StelleUm(quelle, laufzeit).lage; }

    PruefMessquelle quelle;
};

} // namespace

TEST_F(StelleTest, Shows_the_last_pass_that_had_ended_by_then) {
    Fuelle(quelle);
    EXPECT_EQ(StelleUm(quelle, 2'349ms).Durchgang()->uhr, 2'300ms);
    EXPECT_EQ(StelleUm(quelle, 2'300ms).Durchgang()->uhr, 2'300ms);
    EXPECT_EQ(StelleUm(quelle, 90s).Durchgang()->uhr, 4'900ms);
    EXPECT_EQ(StelleUm(quelle, 2'300ms).nummer, 1U);
}

TEST_F(StelleTest, Before_the_first_pass_there_is_nothing) {
    Fuelle(quelle);
    EXPECT_EQ(Lage(500ms), Wiedergabelage::Leer);
    EXPECT_EQ(StelleUm(PruefMessquelle(), 1s).lage, Wiedergabelage::Leer);
}

TEST_F(StelleTest, A_lost_connection_is_no_last_pass_until_one_comes_again) {
    quelle.Nimm(
        Paket(0s, 4s, {Durchgang(1s), Durchgang(4s)}, {Ereignis(Verloren, 2s), Ereignis(Zurueck, 3s)}));
    EXPECT_EQ(Lage(1'999ms), Wiedergabelage::Messwert);
    EXPECT_EQ(Lage(2s), Wiedergabelage::Verloren);
    EXPECT_EQ(StelleUm(quelle, 2s).Durchgang(), nullptr);
    EXPECT_EQ(Lage(3s), Wiedergabelage::Leer);
    EXPECT_EQ(Lage(4s), Wiedergabelage::Messwert);
}

TEST_F(StelleTest, A_gap_goes_on_into_later_packets) {
    quelle.Nimm(Paket(1s, 2s, {Durchgang(1s)}, {Ereignis(LiveBeendet, 2s)}));
    quelle.Nimm(Paket(50s, 51s, {Durchgang(51s)}, {Ereignis(Notiz, 50s, "x")}));
    EXPECT_EQ(Lage(49s), Wiedergabelage::Beendet);
    EXPECT_EQ(Lage(50s), Wiedergabelage::Beendet) << "a note is no return";
    EXPECT_EQ(Lage(51s), Wiedergabelage::Messwert);
}

TEST_F(StelleTest, A_break_at_the_time_of_a_pass_comes_behind_it_and_a_return_before_it) {
    quelle.Nimm(
        Paket(1s, 3s, {Durchgang(1s), Durchgang(3s)}, {Ereignis(Verloren, 1s), Ereignis(Zurueck, 3s)}));
    EXPECT_EQ(Lage(1s), Wiedergabelage::Verloren);
    EXPECT_EQ(Lage(3s), Wiedergabelage::Messwert);
}

TEST_F(StelleTest, A_damaged_packet_shows_nothing_of_the_one_before) {
    Fuelle(quelle);
    quelle.beschaedigte = {1};
    EXPECT_EQ(Lage(2'500ms), Wiedergabelage::Unlesbar);
    EXPECT_EQ(Lage(1'999ms), Wiedergabelage::Messwert);
    EXPECT_EQ(Lage(3s), Wiedergabelage::Messwert);
}

TEST_F(StelleTest, Reads_few_packets_of_however_many) {
    for (int i = 0; i < 5000; ++i)
        quelle.Nimm(Paket(i * 1s, i * 1s, {}, {Ereignis(Notiz, i * 1s)}));
    quelle.gelesen = 0;
    EXPECT_EQ(Lage(4'999s), Wiedergabelage::Leer);
    EXPECT_LE(quelle.gelesen, 64);
}

TEST_F(WiedergabeTest, Stands_still_at_the_beginning_until_it_is_played) {
    wiedergabe.Ruecke(10s);
    EXPECT_EQ(wiedergabe.Position(), 1s);
    EXPECT_FALSE(wiedergabe.Laeuft());
}

TEST_F(WiedergabeTest, A_second_takes_a_second) {
    wiedergabe.Spiele(100s);
    wiedergabe.Ruecke(100'300ms);
    wiedergabe.Ruecke(101s);
    EXPECT_EQ(wiedergabe.Position(), 2s);
    EXPECT_EQ(Gezeigter(), 2s);
}

TEST_F(WiedergabeTest, Speed_holds_from_the_moment_it_is_set) {
    wiedergabe.Spiele(0s);
    wiedergabe.SetzeTempo(0.1, 500ms);
    wiedergabe.Ruecke(1'500ms);
    EXPECT_EQ(wiedergabe.Position(), 1'600ms);
    wiedergabe.SetzeTempo(100, 1'500ms);
    wiedergabe.Ruecke(1'510ms);
    EXPECT_EQ(wiedergabe.Position(), 2'600ms);
}

TEST_F(WiedergabeTest, Speed_is_brought_into_its_range) {
    const std::pair<double, double> proben[] = {
        {0, 0.1}, {-5, 0.1}, {1e9, 100}, {7, 7}, {std::numeric_limits<double>::quiet_NaN(), 1}};
    for (const auto& [soll, ist] : proben) {
        wiedergabe.SetzeTempo(soll, 0s);
        EXPECT_EQ(wiedergabe.Tempo(), ist) << soll;
    }
}

TEST_F(WiedergabeTest, Ends_at_the_last_pass_and_begins_anew_from_there) {
    wiedergabe.Spiele(0s);
    wiedergabe.Ruecke(1h);
    EXPECT_EQ(wiedergabe.Position(), 4'900ms);
    EXPECT_FALSE(wiedergabe.Laeuft());
    wiedergabe.Spiele(2h);
    EXPECT_EQ(wiedergabe.Position(), 1s);
    EXPECT_TRUE(wiedergabe.Laeuft());
}

TEST_F(WiedergabeTest, A_pause_keeps_the_place_and_time_that_passes_in_it_does_not_count) {
    wiedergabe.Spiele(0s);
    wiedergabe.HalteAn(700ms);
    wiedergabe.Ruecke(50s);
    EXPECT_EQ(wiedergabe.Position(), 1'700ms);
    wiedergabe.Spiele(60s);
    wiedergabe.Ruecke(60'100ms);
    EXPECT_EQ(wiedergabe.Position(), 1'800ms);
}

TEST_F(WiedergabeTest, A_drag_goes_on_from_there_and_stays_in_the_record) {
    wiedergabe.Spiele(0s);
    wiedergabe.GeheZu(3s, 200ms);
    wiedergabe.Ruecke(300ms);
    EXPECT_EQ(wiedergabe.Position(), 3'100ms);
    wiedergabe.GeheZu(-7s, 300ms);
    EXPECT_EQ(wiedergabe.Position(), 1s);
    wiedergabe.GeheZu(1h, 300ms);
    EXPECT_EQ(wiedergabe.Position(), 4'900ms);
}

TEST_F(WiedergabeTest, A_clock_that_stands_or_goes_back_moves_nothing) {
    wiedergabe.Spiele(10s);
    wiedergabe.Ruecke(9s);
    EXPECT_EQ(wiedergabe.Position(), 1s);
}

TEST_F(WiedergabeTest, Single_passes_go_from_pass_to_pass_over_packets) {
    wiedergabe.GeheZu(1'950ms, 0s);
    wiedergabe.Schritt(true, 0s);
    EXPECT_EQ(wiedergabe.Position(), 2s);
    wiedergabe.Schritt(true, 0s);
    EXPECT_EQ(wiedergabe.Position(), 2'100ms);
    wiedergabe.Schritt(false, 0s);
    wiedergabe.Schritt(false, 0s);
    EXPECT_EQ(wiedergabe.Position(), 1'900ms);
}

TEST_F(WiedergabeTest, One_pass_back_is_the_one_before_that_which_is_shown) {
    wiedergabe.GeheZu(2'350ms, 0s);
    EXPECT_EQ(Gezeigter(), 2'300ms);
    wiedergabe.Schritt(false, 0s);
    EXPECT_EQ(wiedergabe.Position(), 2'200ms);
}

TEST_F(WiedergabeTest, Single_passes_stop_it_and_end_with_the_record) {
    wiedergabe.Spiele(0s);
    wiedergabe.GeheZu(4'900ms, 0s);
    wiedergabe.Schritt(true, 0s);
    EXPECT_FALSE(wiedergabe.Laeuft());
    EXPECT_EQ(wiedergabe.Position(), 4'900ms);
    wiedergabe.GeheZu(0s, 0s);
    wiedergabe.Schritt(false, 0s);
    EXPECT_EQ(wiedergabe.Position(), 1s);
}

TEST_F(WiedergabeTest, Single_passes_go_over_a_damaged_packet) {
    anfang.beschaedigte = {1};
    wiedergabe.GeheZu(1'900ms, 0s);
    wiedergabe.Schritt(true, 0s);
    EXPECT_EQ(wiedergabe.Position(), 3s);
    wiedergabe.Schritt(false, 0s);
    EXPECT_EQ(wiedergabe.Position(), 1'900ms);
}

TEST(DurchgangsbildTest, A_pass_stands_on_the_configuration_it_was_measured_with) {
    Abbild konfiguration;
    ASSERT_TRUE(konfiguration.SetzeRegister(Spezifisch, spezifisch::Aufloesung, 5, 0));
    ASSERT_TRUE(konfiguration.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 64, 1));
    Messdurchgang durchgang = Durchgang(0s, 4, true);
    durchgang.teile[0].werte[17] = 13;
    durchgang.teile[0].strahlregister[0] = 0xFF01;
    const Abbild bild = AlsAbbild(konfiguration, durchgang);
    EXPECT_EQ(bild.HoleRegister(Spezifisch, spezifisch::Aufloesung, 0), 5);
    EXPECT_EQ(bild.HoleRegister(Spezifisch, spezifisch::Strahlenzahl, 0), 16);
    EXPECT_EQ(bild.HoleRegister(Spezifisch, spezifisch::Strahlenzahl, 1), 0) << "the pass did not ask it";
    EXPECT_EQ(bild.HoleRegister(Spezifisch, spezifisch::Optikteilstatus, 0), 0x84);
    EXPECT_EQ(bild.HoleParameter(Spezifisch, spezifisch::Messwerte, 0).at(17), 13);
    EXPECT_EQ(bild.HoleStrahlzustaende(1, 0), (Werte{0xFF01}));
    EXPECT_EQ(bild.HoleRegister(Speicherbereich::GlobaleGeraetedaten, global::Geraetestatus), 2);
}

} // namespace varnoth
