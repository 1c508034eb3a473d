#include "ziffern.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Ziffern, In_a_small_view_digits_are_a_third_larger_than_other_texts) {
    EXPECT_EQ(Zifferngroesse({.schrift = 12, .hoehe = 50, .breite = 227}), 16);
}

TEST(Ziffern, Digits_grow_with_both_height_and_width) {
    const int klein = Zifferngroesse({.schrift = 12, .hoehe = 250, .breite = 500});
    EXPECT_GT(klein, 16);
    EXPECT_EQ(Zifferngroesse({.schrift = 12, .hoehe = 250, .breite = 5000}), klein);
    EXPECT_GT(Zifferngroesse({.schrift = 12, .hoehe = 500, .breite = 1000}), klein);
}

TEST(Ziffern, Rows_of_numbers_fit_into_their_height) {
    for (int hoehe = 200; hoehe < 1500; hoehe += 50)
        EXPECT_LE(7 * 1.25 * Zifferngroesse({.schrift = 12, .hoehe = hoehe, .breite = 10000}), hoehe);
}

TEST(Ziffern, Numbers_leave_half_of_a_narrow_view_to_the_beams) {
    EXPECT_LE(Zifferngroesse({.schrift = 12, .hoehe = 400, .breite = 310}) * 5.6 + 44, 155);
}

TEST(Ziffern, Positions_take_room_from_the_digits) {
    EXPECT_LT(Zifferngroesse({.schrift = 12, .hoehe = 1000, .breite = 800, .mitPosition = true}),
              Zifferngroesse({.schrift = 12, .hoehe = 1000, .breite = 800}));
}

TEST(Ziffern, Captions_grow_along_and_are_never_smaller_than_other_texts) {
    EXPECT_EQ(Beschriftungsgroesse(16, 12), 12);
    EXPECT_GT(Beschriftungsgroesse(60, 12), 20);
    EXPECT_LT(Beschriftungsgroesse(60, 12), 60);
}

TEST(Ziffern, A_narrow_view_has_no_room_for_positions) {
    EXPECT_FALSE(HatPlatzFuerPositionen(310, 12));
    EXPECT_TRUE(HatPlatzFuerPositionen(433, 12));
}

} // namespace varnoth
