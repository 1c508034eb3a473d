#include "achse.h"

#include <gtest/gtest.h>

#include <vector>

namespace varnoth {

TEST(RunderSchritt, Is_1_2_or_5_times_a_power_of_ten) {
    EXPECT_DOUBLE_EQ(RunderSchritt(0.7), 1);
    EXPECT_DOUBLE_EQ(RunderSchritt(1.2), 2);
    EXPECT_DOUBLE_EQ(RunderSchritt(3), 5);
    EXPECT_DOUBLE_EQ(RunderSchritt(7), 10);
    EXPECT_DOUBLE_EQ(RunderSchritt(0.013), 0.02);
    EXPECT_DOUBLE_EQ(RunderSchritt(4100), 5000);
}

TEST(RunderSchritt, Keeps_a_number_that_is_round) {
    for (const double rund : {0.001, 0.02, 0.5, 1.0, 5.0, 2000.0})
        EXPECT_DOUBLE_EQ(RunderSchritt(rund), rund);
}

TEST(RundesEnde, Is_a_round_number_not_below_and_not_far_above) {
    EXPECT_DOUBLE_EQ(RundesEnde(50), 50);
    EXPECT_DOUBLE_EQ(RundesEnde(50.1), 60);
    EXPECT_DOUBLE_EQ(RundesEnde(0.63), 0.7);
    EXPECT_DOUBLE_EQ(RundesEnde(1234), 1400);
}

TEST(Achsenzahlen, Run_from_0_to_the_end_in_round_steps) {
    EXPECT_EQ(Achsenzahlen(50, 8), (std::vector<double>{0, 10, 20, 30, 40, 50}));
    EXPECT_EQ(Achsenzahlen(25, 10), (std::vector<double>{0, 10, 20}));
}

TEST(Achsenzahlen, Reach_an_end_that_is_a_multiple_only_nearly) {
    const auto zahlen = Achsenzahlen(0.3, 0.1);
    ASSERT_EQ(zahlen.size(), 4U);
    EXPECT_DOUBLE_EQ(zahlen.back(), 0.3);
}

TEST(Achsenzahlen, Are_never_closer_than_asked_for) {
    for (const double abstand : {0.3, 1.0, 3.3, 49.0, 80.0}) {
        const auto zahlen = Achsenzahlen(100, abstand);
        ASSERT_GE(zahlen.size(), 2U);
        EXPECT_GE(zahlen[1] - zahlen[0], abstand * 0.999) << abstand;
    }
}

TEST(Achsenzahlen, Of_an_axis_without_length_are_none) {
    EXPECT_TRUE(Achsenzahlen(0, 0).empty());
    EXPECT_TRUE(Achsenzahlen(10, -1).empty());
}

TEST(GanzeAchsenzahlen, Lie_between_both_ends_in_round_steps) {
    EXPECT_EQ(GanzeAchsenzahlen(13, 47, 8), (std::vector<double>{20, 30, 40}));
    EXPECT_EQ(GanzeAchsenzahlen(-20, 25, 15), (std::vector<double>{-20, 0, 20}));
}

TEST(GanzeAchsenzahlen, Stay_whole_however_short_the_axis_is) {
    EXPECT_EQ(GanzeAchsenzahlen(3.2, 5.9, 0.1), (std::vector<double>{4, 5}));
}

TEST(GanzeAchsenzahlen, Of_an_axis_without_length_are_none) {
    EXPECT_TRUE(GanzeAchsenzahlen(5, 5, 1).empty());
    EXPECT_TRUE(GanzeAchsenzahlen(0, 10, 0).empty());
}

} // namespace varnoth
