#include "verlaufsblick.h"

#include <gtest/gtest.h>

namespace varnoth {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

namespace {

Verlaufsblick Blick(Zeit bis = hours(1)) {
    Verlaufsblick blick;
    blick.SetzeGanzes({Zeit(0), bis}, bis, {0, 128});
    return blick;
}

} // namespace

TEST(Verlaufsblick, Begins_with_the_last_five_minutes_and_all_values) {
    const Verlaufsblick blick = Blick();
    EXPECT_EQ(blick.Spanne(), (Zeitspanne{minutes(55), minutes(60)}));
    EXPECT_EQ(blick.Werte(), (Wertebereich{0, 128}));
    EXPECT_TRUE(blick.Folgt());
}

TEST(Verlaufsblick, Slides_while_it_follows_and_stays_when_it_does_not) {
    Verlaufsblick blick = Blick();
    blick.SetzeGanzes({Zeit(0), minutes(70)}, minutes(70), {0, 128});
    EXPECT_EQ(blick.Spanne().bis, minutes(70));
    blick.Folge(false);
    blick.SetzeGanzes({Zeit(0), minutes(80)}, minutes(80), {0, 128});
    EXPECT_EQ(blick.Spanne().bis, minutes(70));
    blick.Folge(true);
    EXPECT_EQ(blick.Spanne().bis, minutes(80));
}

TEST(Verlaufsblick, A_time_keeps_its_place_while_it_is_zoomed) {
    Verlaufsblick blick = Blick();
    blick.Folge(false);
    blick.ZoomeZeit(minutes(56), 2);
    EXPECT_EQ(blick.Spanne(), (Zeitspanne{seconds(55 * 60 + 30), seconds(58 * 60)}));
    blick.ZoomeZeit(minutes(56), 0.5);
    EXPECT_EQ(blick.Spanne(), (Zeitspanne{minutes(55), minutes(60)}));
}

TEST(Verlaufsblick, The_newest_keeps_its_place_while_it_follows) {
    Verlaufsblick blick = Blick();
    blick.ZoomeZeit(minutes(56), 5);
    EXPECT_EQ(blick.Spanne(), (Zeitspanne{minutes(59), minutes(60)}));
    EXPECT_TRUE(blick.Folgt());
}

TEST(Verlaufsblick, Moved_away_from_the_newest_it_stands_still_and_moved_back_it_follows) {
    Verlaufsblick blick = Blick();
    blick.Verschiebe(-minutes(10));
    EXPECT_EQ(blick.Spanne().bis, minutes(50));
    EXPECT_FALSE(blick.Folgt());
    blick.Verschiebe(minutes(9));
    EXPECT_FALSE(blick.Folgt());
    blick.Verschiebe(minutes(2));
    EXPECT_TRUE(blick.Folgt());
    EXPECT_EQ(blick.Spanne().bis, minutes(60));
}

TEST(Verlaufsblick, Leaves_neither_the_past_nor_the_values_there_are) {
    Verlaufsblick blick = Blick();
    blick.Verschiebe(-hours(9));
    EXPECT_EQ(blick.Spanne(), (Zeitspanne{minutes(0), minutes(5)}));
    blick.ZoomeWerte(64, 4);
    blick.VerschiebeWerte(-500);
    EXPECT_EQ(blick.Werte(), (Wertebereich{0, 32}));
    blick.VerschiebeWerte(900);
    EXPECT_EQ(blick.Werte(), (Wertebereich{96, 128}));
    blick.ZoomeZeit(minutes(1), 1e9);
    EXPECT_EQ(blick.Breite(), Verlaufsblick::KuerzesteBreite);
    blick.ZoomeWerte(100, 1e9);
    EXPECT_EQ(blick.Werte().oben - blick.Werte().unten, Verlaufsblick::KleinsterWertebereich);
}

TEST(Verlaufsblick, All_of_it_is_shown_as_it_grows_until_something_else_is_asked_for) {
    Verlaufsblick blick = Blick();
    blick.ZoomeWerte(10, 3);
    blick.ZeigeAlles();
    blick.ZeigeAlleWerte();
    EXPECT_EQ(blick.Spanne(), (Zeitspanne{Zeit(0), hours(1)}));
    EXPECT_EQ(blick.Werte(), (Wertebereich{0, 128}));
    blick.SetzeGanzes({Zeit(0), hours(2)}, hours(2), {0, 128});
    EXPECT_LE(blick.Spanne().von, Zeit(0));
    EXPECT_EQ(blick.Spanne().bis, hours(2));
    EXPECT_TRUE(blick.ZeigtAlles());
    blick.ZoomeZeit(hours(1), 2);
    EXPECT_FALSE(blick.ZeigtAlles());
}

TEST(Verlaufsblick, A_width_that_is_chosen_may_be_more_than_there_is_yet) {
    Verlaufsblick blick = Blick(minutes(10));
    blick.SetzeBreite(hours(8));
    EXPECT_EQ(blick.Breite(), hours(8));
    blick.SetzeGanzes({Zeit(0), minutes(11)}, minutes(11), {0, 128});
    EXPECT_EQ(blick.Breite(), hours(8));
    EXPECT_EQ(blick.Spanne().bis, minutes(11));
}

TEST(Verlaufsblick, A_replay_is_followed_where_it_stands_and_its_future_can_be_looked_at) {
    Verlaufsblick blick;
    blick.SetzeGanzes({Zeit(0), hours(2)}, minutes(30), {0, 128});
    EXPECT_EQ(blick.Spanne().bis, minutes(30));
    blick.Verschiebe(minutes(20));
    EXPECT_FALSE(blick.Folgt());
    EXPECT_EQ(blick.Spanne().bis, minutes(50));
}

TEST(Verlaufsblick, Moved_it_shows_everything_no_more) {
    Verlaufsblick blick = Blick();
    blick.ZeigeAlles();
    blick.Verschiebe(-minutes(1));
    EXPECT_FALSE(blick.ZeigtAlles());
}

TEST(Verlaufsblick, A_replay_that_is_followed_no_more_shows_no_time_before_its_beginning) {
    Verlaufsblick blick;
    blick.SetzeGanzes({Zeit(0), hours(2)}, seconds(30), {0, 128});
    blick.Folge(false);
    EXPECT_EQ(blick.Spanne(), (Zeitspanne{Zeit(0), minutes(5)}));
}

TEST(Verlaufsblick, A_value_keeps_its_place_while_it_is_zoomed) {
    Verlaufsblick blick = Blick();
    blick.ZoomeWerte(64, 4);
    EXPECT_EQ(blick.Werte(), (Wertebereich{48, 80}));
    blick.ZoomeWerte(56, 2);
    EXPECT_EQ(blick.Werte(), (Wertebereich{52, 68}));
}

TEST(Verlaufsblick, Moves_no_further_than_a_time_needs_to_be_seen) {
    Verlaufsblick blick = Blick();
    blick.ZeigeZeit(minutes(57));
    EXPECT_EQ(blick.Spanne().bis, minutes(60));
    blick.ZeigeZeit(minutes(40));
    EXPECT_EQ(blick.Spanne(), (Zeitspanne{minutes(40), minutes(45)}));
    blick.ZeigeZeit(minutes(46));
    EXPECT_EQ(blick.Spanne(), (Zeitspanne{minutes(41), minutes(46)}));
}

} // namespace varnoth
