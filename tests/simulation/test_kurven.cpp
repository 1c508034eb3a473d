#include "kurven.h"

#include <gtest/gtest.h>

#include <vector>

namespace varnoth {

namespace {
Diagramm Mit(double tz, int strahlabstand, const std::vector<Marke>& marken = {}) {
    return DiagrammFuer(tz, strahlabstand, marken);
}
} // namespace

TEST(DiagrammFuer, Draws_the_speed_of_objects_from_5_mm_to_the_end_of_the_axis) {
    const Diagramm diagramm = Mit(2, 10);
    EXPECT_EQ(diagramm.xEnde, 50);
    EXPECT_EQ(diagramm.objekt, (std::vector<Strecke>{{{5, 0}, {50, 22.5}}}));
}

TEST(DiagrammFuer, Draws_holes_as_the_smallest_and_then_all_others) {
    EXPECT_EQ(Mit(2, 10).loch, (std::vector<Strecke>{{{6, 0.25}, {7, 0.25}}, {{7, 3}, {50, 24.5}}}));
    EXPECT_EQ(Mit(2, 40).loch, (std::vector<Strecke>{{{26, 0.25}, {27, 0.25}}, {{27, 13}, {50, 24.5}}}));
}

TEST(DiagrammFuer, Draws_no_holes_for_other_beam_distances) {
    const Diagramm diagramm = Mit(2, 15);
    EXPECT_TRUE(diagramm.loch.empty());
    EXPECT_FALSE(diagramm.objekt.empty());
}

TEST(DiagrammFuer, Has_no_curve_and_no_speeds_without_a_cycle_time) {
    const Diagramm diagramm = Mit(0, 10);
    EXPECT_TRUE(diagramm.objekt.empty());
    EXPECT_TRUE(diagramm.loch.empty());
    EXPECT_EQ(diagramm.yEnde, 0);
}

TEST(DiagrammFuer, Ends_the_axis_of_speeds_at_a_round_number_above_the_curves) {
    EXPECT_EQ(Mit(2, 10).yEnde, 25);
    EXPECT_EQ(Mit(1.75, 15).yEnde, 30);
}

TEST(DiagrammFuer, Grows_to_hold_the_farthest_point_marked) {
    const Diagramm diagramm = Mit(2, 10, {{Kurvenart::Objekt, {20, 7.5}}, {Kurvenart::Loch, {300, 149.5}}});
    EXPECT_EQ(diagramm.xEnde, 350);
    EXPECT_EQ(diagramm.yEnde, 180);
    EXPECT_EQ(diagramm.marken.size(), 2U);
}

TEST(DiagrammFuer, Grows_to_hold_a_point_above_the_curves) {
    EXPECT_EQ(Mit(2, 10, {{Kurvenart::Loch, {6, 90}}}).yEnde, 90);
}

TEST(DiagrammFuer, Leaves_points_out_that_no_axis_holds) {
    const Marke aussen[] = {{Kurvenart::Objekt, {3, -1}},
                            {Kurvenart::Objekt, {-1, 3}},
                            {Kurvenart::Objekt, {1e300, 1}},
                            {Kurvenart::Loch, {1, 1e300}}};
    for (const Marke& marke : aussen)
        EXPECT_EQ(Mit(2, 10, {marke}), Mit(2, 10)) << marke.ort.x << ' ' << marke.ort.y;
}

TEST(DiagrammFuer, Keeps_points_where_no_curve_is) {
    EXPECT_EQ(Mit(2, 15, {{Kurvenart::Loch, {11, 2}}}).marken.size(), 1U);
}

TEST(Kurvenfeld, Has_0_at_the_lower_left_and_the_ends_at_the_upper_right) {
    const Kurvenfeld feld{.links = 30, .oben = 20, .breite = 200, .hoehe = 100, .xEnde = 50, .yEnde = 25};
    EXPECT_EQ(feld.X(0), 30);
    EXPECT_EQ(feld.Y(0), 120);
    EXPECT_EQ(feld.X(50), 230);
    EXPECT_EQ(feld.Y(25), 20);
    EXPECT_EQ(feld.X(25), 130);
}

} // namespace varnoth
