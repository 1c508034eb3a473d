#include "zeitfenster.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;
using testing::ElementsAre;

TEST(Zeitfenster, A_column_holds_the_times_from_its_beginning_to_the_next_ones) {
    const Zeitfenster fenster{.breite = 100ms, .erste = -2, .spalten = 10};
    EXPECT_EQ(fenster.SpalteUm(0ms), 0);
    EXPECT_EQ(fenster.SpalteUm(99999us), 0);
    EXPECT_EQ(fenster.SpalteUm(100ms), 1);
    EXPECT_EQ(fenster.SpalteUm(-1us), -1);
    EXPECT_EQ(fenster.SpalteUm(-100ms), -1);
    EXPECT_EQ(fenster.Von(), -200ms);
    EXPECT_EQ(fenster.Bis(), 800ms);
}

TEST(Zeitfenster, Widths_come_in_steps_that_lead_back_to_where_they_came_from) {
    EXPECT_EQ(Spaltenstufe(1us), KleinsteSpalte);
    EXPECT_EQ(Spaltenstufe(100us), 100us);
    EXPECT_EQ(Spaltenstufe(101us), 120us);
    EXPECT_EQ(Spaltenstufe(81ms), 100ms);
    EXPECT_EQ(Spaltenstufe(1000h), GroessteSpalte);
    EXPECT_EQ(Spaltenstufe(100us, -3), KleinsteSpalte);
    EXPECT_EQ(Spaltenstufe(GroessteSpalte, 5), GroessteSpalte);
    for (Zeit breite = 1ms; breite < 1s; breite = Spaltenstufe(breite, 1)) {
        EXPECT_GT(Spaltenstufe(breite, 1), breite);
        EXPECT_EQ(Spaltenstufe(Spaltenstufe(breite, 1), -1), breite);
    }
}

TEST(Zeitfenster, A_window_around_a_time_shows_all_of_it_and_little_else) {
    for (const Zeitspanne spanne :
         {Zeitspanne{0s, 8h}, Zeitspanne{7s, 27s}, Zeitspanne{5s, 5s}, Zeitspanne{999ms, 60s}})
        for (const int spalten : {1, 300, 1500}) {
            const Zeitfenster fenster = FensterUm(spanne, spalten);
            EXPECT_LE(fenster.Von(), spanne.von);
            EXPECT_GT(fenster.Bis(), spanne.bis);
            EXPECT_EQ(fenster.spalten, spalten);
            if (spalten > 1 && spanne.bis > spanne.von) {
                EXPECT_LT(fenster.Bis() - fenster.Von(), 2 * (spanne.bis - spanne.von));
            }
        }
}

TEST(Zeitfenster, Zooming_keeps_the_time_under_the_pointer_where_it_is) {
    const Zeitfenster fenster{.breite = 100ms, .erste = 50, .spalten = 400};
    for (const Zeit um : {Zeit(7s), Zeit(20s), Zeit(43s)})
        for (const int schritte : {-9, -2, 2, 7}) {
            const Zeitfenster neues = Gezoomt(fenster, um, schritte);
            EXPECT_EQ(neues.breite, Spaltenstufe(100ms, schritte));
            EXPECT_EQ(neues.SpalteUm(um) - neues.erste, fenster.SpalteUm(um) - fenster.erste);
        }
}

TEST(Zeitfenster, Moving_never_leaves_the_source_behind) {
    const Zeitfenster fenster{.breite = 100ms, .erste = 50, .spalten = 40};
    EXPECT_EQ(Verschoben(fenster, 7, {0s, 100s}).erste, 57);
    EXPECT_EQ(Verschoben(fenster, -100000, {0s, 100s}).erste, -20);
    EXPECT_EQ(Verschoben(fenster, 100000, {0s, 100s}).erste, 980);
}

TEST(Zeitfenster, Another_number_of_columns_keeps_the_last_one) {
    const Zeitfenster fenster{.breite = 100ms, .erste = 50, .spalten = 40};
    EXPECT_EQ(MitSpalten(fenster, 10).Bis(), fenster.Bis());
    EXPECT_EQ(MitSpalten(fenster, 90).Bis(), fenster.Bis());
    EXPECT_EQ(MitSpalten(fenster, 0).spalten, 1);
}

TEST(Zeitfenster, Following_a_time_it_is_in_the_last_column) {
    const Zeitfenster fenster = BisZu({.breite = 100ms, .erste = 0, .spalten = 40}, 77s + 50ms);
    EXPECT_EQ(fenster.SpalteUm(77s + 50ms), fenster.erste + 39);
}

TEST(Zeitfenster, Ticks_stand_on_round_local_times) {
    const Messangaben angaben{.beginn =
                                  std::chrono::sys_days{std::chrono::year(2026) / 11 / 22} + 5h + 29min + 53s,
                              .zoneMinuten = 60};
    const Zeitfenster fenster{.breite = 100ms, .erste = 0, .spalten = 200};
    EXPECT_EQ(Strichabstand(fenster, 60), 10s);
    EXPECT_THAT(Fensterstriche(fenster, 60, angaben),
                ElementsAre(Fensterstrich{7s, "06:30:00"}, Fensterstrich{17s, "06:30:10"}));
    const Zeitfenster feines{.breite = 1ms, .erste = 0, .spalten = 200};
    EXPECT_EQ(Fensterstriche(feines, 90, angaben).front(), (Fensterstrich{0s, "06:29:53,000"}));
    const Zeitfenster weites{.breite = 1min, .erste = 0, .spalten = 200};
    EXPECT_EQ(Fensterstriche(weites, 60, angaben).front(), (Fensterstrich{30min + 7s, "07:00"}));
    const Zeitfenster tage{.breite = 1h, .erste = 0, .spalten = 200};
    EXPECT_EQ(Fensterstriche(tage, 20, angaben).front(), (Fensterstrich{17h + 30min + 7s, "23.11.2026"}));
}

} // namespace varnoth
