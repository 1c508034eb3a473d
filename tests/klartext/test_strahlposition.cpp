#include "strahlposition.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Strahlposition, The_first_beam_lies_at_0_and_each_further_one_a_spacing_higher) {
    EXPECT_EQ(Strahlposition(1, 5), 0);
    EXPECT_EQ(Strahlposition(107, 5), 530);
}

TEST(Strahlposition, Without_a_spacing_or_a_beam_there_is_no_position) {
    EXPECT_EQ(Strahlposition(107, 0), std::nullopt);
    EXPECT_EQ(Strahlposition(0, 5), std::nullopt);
}

TEST(Strahlposition, A_position_is_in_millimetres) {
    EXPECT_EQ(Positionstext(530), "530 mm");
    EXPECT_EQ(Positionstext(0), "0 mm");
    EXPECT_EQ(Positionstext({}), "");
}

TEST(Strahlposition, Beams_side_by_side_take_up_a_spacing_each) {
    EXPECT_EQ(Strahlenbreite(9, 5), 45);
    EXPECT_EQ(Strahlenbreite(0, 5), 0);
    EXPECT_EQ(Strahlenbreite(9, 0), std::nullopt);
    EXPECT_EQ(Strahlenbreite(-1, 5), std::nullopt);
}

} // namespace varnoth
