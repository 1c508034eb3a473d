#include "texte.h"
#include "wertealter.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

class WertealterTest : public testing::Test {
protected:
    ~WertealterTest() override { SetzeSprachoffset(Deutsch); }

    /// So many passes of this length.
    void Laufe(int durchgaenge, Zeit dauer) {
        for (int i = 0; i < durchgaenge; ++i) {
            jetzt += dauer;
            alter.Erneuert(jetzt);
        }
    }

    Zeit jetzt = seconds(100);
    Wertealter alter;
};

} // namespace

TEST_F(WertealterTest, Without_values_nothing_is_old) {
    EXPECT_FALSE(alter.IstAlt(jetzt));
    EXPECT_EQ(alter.Alter(jetzt), Zeit{0});
}

TEST_F(WertealterTest, First_values_are_old_after_a_second) {
    alter.Erneuert(jetzt);
    EXPECT_FALSE(alter.IstAlt(jetzt + milliseconds(999)));
    EXPECT_TRUE(alter.IstAlt(jetzt + milliseconds(1000)));
}

TEST_F(WertealterTest, Fast_passes_leave_a_second) {
    Laufe(20, milliseconds(30));
    EXPECT_FALSE(alter.IstAlt(jetzt + milliseconds(999)));
    EXPECT_TRUE(alter.IstAlt(jetzt + milliseconds(1000)));
}

TEST_F(WertealterTest, Slow_passes_leave_three_times_the_usual_one) {
    Laufe(20, milliseconds(800));
    EXPECT_FALSE(alter.IstAlt(jetzt + milliseconds(2399)));
    EXPECT_TRUE(alter.IstAlt(jetzt + milliseconds(2400)));
}

TEST_F(WertealterTest, One_disturbed_pass_does_not_make_the_others_slow) {
    Laufe(10, milliseconds(100));
    Laufe(1, seconds(9));
    EXPECT_EQ(alter.Grenze(), seconds(1));
}

TEST_F(WertealterTest, Passes_that_have_become_slow_are_the_usual_ones_soon) {
    Laufe(10, milliseconds(100));
    Laufe(3, seconds(2));
    EXPECT_EQ(alter.Grenze(), seconds(6));
}

TEST_F(WertealterTest, New_values_are_not_old) {
    alter.Erneuert(jetzt);
    alter.Erneuert(jetzt + seconds(5));
    EXPECT_FALSE(alter.IstAlt(jetzt + seconds(5)));
}

TEST_F(WertealterTest, Another_connection_begins_anew) {
    Laufe(10, seconds(4));
    alter.Vergiss();
    EXPECT_FALSE(alter.IstAlt(jetzt + seconds(60)));
    alter.Erneuert(jetzt);
    EXPECT_EQ(alter.Grenze(), seconds(1));
}

TEST_F(WertealterTest, The_age_is_told_in_whole_seconds_and_from_two_minutes_on_in_minutes) {
    EXPECT_EQ(Alterstext(milliseconds(3999)), "vor 3 s");
    EXPECT_EQ(Alterstext(seconds(119)), "vor 119 s");
    EXPECT_EQ(Alterstext(minutes(2)), "vor 2 min");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Alterstext(seconds(3)), "3 s ago");
    EXPECT_EQ(Alterstext(minutes(90)), "90 min ago");
}

} // namespace varnoth
