#include "uebersicht.h"

#include "probedurchgaenge.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;
using namespace std::chrono_literals;

namespace {

/// A pass of one part of 20 beams, the first two registers of which are given.
Messdurchgang Einer(Zeit uhr, std::uint16_t wert, std::uint16_t erstes = 0xFFFF,
                    std::uint16_t zweites = 0x0F00) {
    Messdurchgang durchgang{.uhr = uhr, .anzahlTeile = 1, .geraetestatus = wert};
    Teilmessung& teil = durchgang.teile[0];
    teil = {.vorhanden = true, .gemessen = true, .status = wert, .strahlen = 20};
    teil.werte.fill(wert);
    teil.strahlregister[0] = erstes;
    teil.strahlregister[1] = zweites;
    return durchgang;
}

} // namespace

TEST(UebersichtTest, A_stretch_holds_what_was_seen_in_its_second_once_and_always) {
    Uebersicht uebersicht;
    uebersicht.Nimm(Einer(2'100ms, 0b0110, 0xFFF0, 0x0E00));
    uebersicht.Nimm(Einer(2'900ms, 0b0011, 0xFFFC, 0x0600));
    uebersicht.Nimm(Einer(3'000ms, 9));
    ASSERT_EQ(uebersicht.Anzahl(), 2U);
    EXPECT_EQ(uebersicht.Spanne(0), (Zeitspanne{2s, 3s - Zeit(1)}));
    EXPECT_EQ(uebersicht.Durchgaenge(0, 0), 2U);
    EXPECT_EQ(uebersicht.Durchgaenge(0, 1), 0U);
    EXPECT_EQ(uebersicht.Wert(0, 0, 17), (Wertspanne{3, 6}));
    EXPECT_TRUE(uebersicht.Wert(0, 1, 0).IstLeer());
    EXPECT_EQ(uebersicht.Status(0, 0), (Bitspanne{7, 2}));
    EXPECT_EQ(uebersicht.Geraetestatus(0), (Bitspanne{7, 2}));
    EXPECT_EQ(uebersicht.Strahlen(0, 0), 20);
    ASSERT_EQ(uebersicht.UnterbrochenEinmal(0, 0).size(), 2U);
    EXPECT_EQ(uebersicht.UnterbrochenEinmal(0, 0)[0], 0x000F);
    EXPECT_EQ(uebersicht.UnterbrochenEinmal(0, 0)[1], 0x0900) << "no bits behind the last beam";
    EXPECT_EQ(uebersicht.UnterbrochenImmer(0, 0)[0], 0x0003);
    EXPECT_EQ(uebersicht.UnterbrochenImmer(0, 0)[1], 0x0100);
    EXPECT_TRUE(uebersicht.UnterbrochenEinmal(0, 1).empty());
}

TEST(UebersichtTest, Finds_the_stretch_of_a_time) {
    Uebersicht uebersicht;
    EXPECT_EQ(uebersicht.AbschnittUm(5s), 0U);
    for (const Zeit uhr : {2s, 3s, 9s})
        uebersicht.Nimm(Einer(uhr, 1));
    EXPECT_EQ(uebersicht.AbschnittUm(0s), 0U);
    EXPECT_EQ(uebersicht.AbschnittUm(2'999ms), 0U);
    EXPECT_EQ(uebersicht.AbschnittUm(3s), 1U);
    EXPECT_EQ(uebersicht.AbschnittUm(8s), 1U);
    EXPECT_EQ(uebersicht.AbschnittUm(100s), 2U);
}

TEST(UebersichtTest, A_beam_that_came_later_was_not_always_interrupted) {
    Uebersicht uebersicht;
    Messdurchgang kurz = Einer(0s, 1, 0x0000);
    kurz.teile[0].strahlen = 8;
    uebersicht.Nimm(kurz);
    uebersicht.Nimm(Einer(100ms, 1, 0x0000, 0x0000));
    EXPECT_EQ(uebersicht.UnterbrochenImmer(0, 0)[0], 0xFF00);
    EXPECT_EQ(uebersicht.UnterbrochenEinmal(0, 0)[0], 0xFFFF);
    EXPECT_EQ(uebersicht.UnterbrochenImmer(0, 0)[1], 0);
    EXPECT_EQ(uebersicht.UnterbrochenEinmal(0, 0)[1], 0x0F00);
}

TEST(UebersichtTest, There_is_a_gap_on_both_sides_of_a_lost_connection) {
    Uebersicht uebersicht;
    uebersicht.Nimm({Messereignisart::LiveBegonnen, 0s, {}, {}});
    uebersicht.Nimm(Einer(0s, 1));
    uebersicht.Nimm(Einer(1s, 1));
    uebersicht.Nimm({Messereignisart::Verloren, 1'500ms, {}, {}});
    uebersicht.Nimm({Messereignisart::Zurueck, 3s, {}, {}});
    uebersicht.Nimm(Einer(3s, 1));
    uebersicht.Nimm(Einer(4s, 1));
    uebersicht.Nimm({Messereignisart::Notiz, 4s, {}, "n"});
    EXPECT_FALSE(uebersicht.HatLuecke(0));
    EXPECT_TRUE(uebersicht.HatLuecke(1));
    EXPECT_TRUE(uebersicht.HatLuecke(2));
    EXPECT_FALSE(uebersicht.HatLuecke(3));
}

TEST(UebersichtTest, A_long_time_without_a_pass_is_a_gap_and_so_is_what_cannot_be_read) {
    Uebersicht uebersicht;
    for (const Zeit uhr : {0s, 4s, 10s, 11s})
        uebersicht.Nimm(Einer(uhr, 1));
    EXPECT_FALSE(uebersicht.HatLuecke(0));
    EXPECT_TRUE(uebersicht.HatLuecke(1));
    EXPECT_TRUE(uebersicht.HatLuecke(2));
    EXPECT_FALSE(uebersicht.HatLuecke(3));
    uebersicht.NimmLuecke();
    uebersicht.Nimm(Einer(12s, 1));
    EXPECT_TRUE(uebersicht.HatLuecke(3));
    EXPECT_TRUE(uebersicht.HatLuecke(4));
}

TEST(UebersichtTest, When_its_memory_is_used_up_each_two_stretches_become_one) {
    Uebersicht alles;
    Uebersicht klein(50'000);
    for (int i = 0; i < 3000; ++i) {
        alles.Nimm(LebhafterDurchgang(i));
        klein.Nimm(LebhafterDurchgang(i));
        if (i % 500 != 250)
            continue;
        alles.NimmLuecke();
        klein.NimmLuecke();
    }
    ASSERT_GT(alles.Anzahl(), 400U);
    ASSERT_LT(klein.Anzahl(), 100U);
    ASSERT_GT(klein.Anzahl(), 10U);
    std::size_t j = 0;
    for (std::size_t i = 0; i < klein.Anzahl(); ++i) {
        std::uint32_t durchgaenge = 0;
        Wertspanne wert;
        Bitspanne status;
        std::uint16_t einmal = 0;
        std::uint16_t immer = 0xFFFF;
        bool luecke = false;
        for (; j < alles.Anzahl() && alles.Spanne(j).bis <= klein.Spanne(i).bis; ++j) {
            durchgaenge += alles.Durchgaenge(j, 3);
            wert.Nimm(alles.Wert(j, 3, 1));
            status.Nimm(alles.Geraetestatus(j));
            einmal |= alles.UnterbrochenEinmal(j, 3)[2];
            immer &= alles.UnterbrochenImmer(j, 3)[2];
            luecke = luecke || alles.HatLuecke(j);
        }
        EXPECT_EQ(klein.HatLuecke(i), luecke);
        EXPECT_EQ(klein.Durchgaenge(i, 3), durchgaenge);
        EXPECT_EQ(klein.Wert(i, 3, 1), wert);
        EXPECT_EQ(klein.Geraetestatus(i), status);
        EXPECT_EQ(klein.UnterbrochenEinmal(i, 3)[2], einmal);
        EXPECT_EQ(klein.UnterbrochenImmer(i, 3)[2], immer);
    }
    EXPECT_EQ(j, alles.Anzahl());
}

TEST(UebersichtTest, Forgets_what_ended_before_a_time) {
    Uebersicht uebersicht;
    for (const Zeit uhr : {0s, 1s, 2s})
        uebersicht.Nimm(Einer(uhr, 1));
    uebersicht.VergissBis(1'500ms);
    ASSERT_EQ(uebersicht.Anzahl(), 2U);
    EXPECT_EQ(uebersicht.Spanne(0).von, 1s);
}

TEST(UebersichtTest, A_packet_counts_as_its_passes_and_events_in_order_of_time) {
    Uebersicht uebersicht;
    Messpaket paket;
    paket.durchgaenge = {Einer(0s, 1), Einer(1s, 1), Einer(2s, 1)};
    paket.ereignisse = {{Messereignisart::Verloren, 500ms, {}, {}}};
    uebersicht.Nimm(paket);
    EXPECT_TRUE(uebersicht.HatLuecke(0));
    EXPECT_TRUE(uebersicht.HatLuecke(1));
    EXPECT_FALSE(uebersicht.HatLuecke(2));
}

TEST(UebersichtTest, Two_stretches_that_become_one_keep_gaps_beams_and_what_only_one_of_them_saw) {
    Uebersicht eine(1); // never more than one stretch
    Messdurchgang kurz = Einer(0s, 1, 0x0000);
    kurz.teile[0].strahlen = 8;
    eine.Nimm(kurz);
    Messdurchgang ohne = Einer(1s, 1);
    ohne.teile[0] = {};
    eine.Nimm(ohne);
    ASSERT_EQ(eine.Anzahl(), 1U);
    EXPECT_EQ(eine.UnterbrochenImmer(0, 0)[0], 0xFF00) << "nothing was measured in the second one";
    EXPECT_FALSE(eine.HatLuecke(0));
    eine.Nimm({Messereignisart::LiveBeendet, 1s, {}, {}});
    eine.Nimm(Einer(3s, 1, 0x0000, 0x0000));
    ASSERT_EQ(eine.Anzahl(), 1U);
    EXPECT_TRUE(eine.HatLuecke(0));
    EXPECT_EQ(eine.Strahlen(0, 0), 20);
    EXPECT_EQ(eine.UnterbrochenImmer(0, 0)[0], 0xFF00);
    EXPECT_EQ(eine.UnterbrochenEinmal(0, 0)[0], 0xFFFF);
    EXPECT_EQ(eine.UnterbrochenImmer(0, 0)[1], 0) << "these beams came later";
    EXPECT_EQ(eine.UnterbrochenEinmal(0, 0)[1], 0x0F00);
}

TEST(UebersichtTest, A_gap_of_one_of_two_stretches_that_become_one_is_its_own) {
    Uebersicht eine(1);
    eine.Nimm(Einer(0s, 1));
    eine.Nimm(Einer(2s, 1)); // a stretch is four seconds now
    eine.Nimm(Einer(5s, 1));
    EXPECT_FALSE(eine.HatLuecke(0));
    eine.NimmLuecke();
    eine.Nimm(Einer(9s, 1));
    EXPECT_TRUE(eine.HatLuecke(0));
}

TEST(UebersichtTest, Stretches_stay_short_while_as_many_are_forgotten_as_come) {
    Uebersicht uebersicht(20'000);
    for (int i = 0; i < 1000; ++i) {
        uebersicht.Nimm(Einer(std::chrono::seconds(i), 1));
        uebersicht.VergissBis(std::chrono::seconds(i - 10));
    }
    EXPECT_EQ(uebersicht.Spanne(0).bis - uebersicht.Spanne(0).von, 1s - Zeit(1));
}

TEST(UebersichtTest, Passes_that_could_not_be_kept_are_a_gap) {
    Uebersicht uebersicht;
    uebersicht.Nimm(Einer(0s, 1));
    uebersicht.Nimm({Messereignisart::Verworfen, 500ms, {}, "3"});
    EXPECT_TRUE(uebersicht.HatLuecke(0));
}

TEST(UebersichtTest, A_beam_that_begins_a_register_of_its_own_is_kept) {
    Messdurchgang durchgang{.uhr = Zeit(0), .anzahlTeile = 1};
    durchgang.teile[0] = {.vorhanden = true, .gemessen = true, .strahlen = 17};
    durchgang.teile[0].strahlregister[0] = 0xFFFF;
    Uebersicht uebersicht;
    uebersicht.Nimm(durchgang);
    ASSERT_EQ(uebersicht.UnterbrochenEinmal(0, 0).size(), 2U);
    EXPECT_NE(uebersicht.UnterbrochenEinmal(0, 0)[1], 0);
    EXPECT_NE(uebersicht.UnterbrochenImmer(0, 0)[1], 0);
}

} // namespace varnoth
