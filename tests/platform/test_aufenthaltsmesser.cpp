#include "aufenthaltsmesser.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;

TEST(Aufenthaltsmesser, Rounds_that_come_back_soon_hold_nobody_up_however_many) {
    Aufenthaltsmesser messer;
    Zeit jetzt = 10s;
    for (int i = 0; i < 100; ++i, jetzt += 499ms) {
        messer.Beginnt(jetzt, 0s);
        EXPECT_FALSE(messer.Stand(jetzt + 499ms).dauertAn);
        messer.Endet(jetzt + 499ms);
    }
    EXPECT_EQ(messer.Stand(jetzt), Aufenthalt{});
}

TEST(Aufenthaltsmesser, A_round_that_lasts_holds_up_from_its_beginning_until_it_comes_back) {
    Aufenthaltsmesser messer;
    messer.Beginnt(10s, 0s);
    EXPECT_EQ(messer.Stand(10s + 500ms), (Aufenthalt{500ms, true}));
    EXPECT_EQ(messer.Stand(12s), (Aufenthalt{2s, true}));
    messer.Endet(15s);
    EXPECT_EQ(messer.Stand(16s), (Aufenthalt{5s, false}));
    messer.Beginnt(20s, 0s);
    messer.Endet(21s);
    EXPECT_EQ(messer.Stand(30s), (Aufenthalt{6s, false}));
}

TEST(Aufenthaltsmesser, What_a_round_was_to_wait_does_not_count) {
    Aufenthaltsmesser messer;
    messer.Beginnt(10s, 1s);
    EXPECT_EQ(messer.Stand(11s + 499ms), Aufenthalt{});
    messer.Endet(13s);
    EXPECT_EQ(messer.Stand(13s), (Aufenthalt{2s, false}));
}

TEST(Aufenthaltsmesser, Whoever_has_rounds_run_inside_a_round_is_not_held_up_by_it) {
    Aufenthaltsmesser messer;
    messer.Beginnt(10s, 0s);
    for (Zeit jetzt = 10s; jetzt < 15s; jetzt += 400ms) {
        messer.Beginnt(jetzt, 0s);
        messer.Endet(jetzt + 1ms);
        EXPECT_FALSE(messer.Stand(jetzt + 400ms).dauertAn);
    }
    messer.Beginnt(15s, 0s);
    messer.Endet(17s);
    messer.Endet(17s + 100ms);
    EXPECT_EQ(messer.Stand(17s + 100ms), (Aufenthalt{2s, false}));
}

} // namespace varnoth
