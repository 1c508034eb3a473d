#include "formeln.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <utility>

namespace varnoth {

namespace {
constexpr auto Nichts = std::nullopt;
constexpr double Tz = 1.75; // one part of 32 beams
} // namespace

TEST(MaximaleGeschwindigkeit, Is_the_length_less_5_mm_over_the_cycle_time) {
    EXPECT_EQ(MaximaleGeschwindigkeit(40, Tz), 20);
    EXPECT_EQ(MaximaleGeschwindigkeit(12, 2), 3.5);
}

TEST(MaximaleGeschwindigkeit, Is_rounded_to_two_decimals) {
    EXPECT_EQ(MaximaleGeschwindigkeit(25, Tz), 11.43);
    EXPECT_EQ(MaximaleGeschwindigkeit(10, Tz), 2.86);
}

TEST(MaximaleGeschwindigkeit, Rounds_halves_to_the_even_hundredth) {
    EXPECT_EQ(MaximaleGeschwindigkeit(5.125, 1), 0.12);
    EXPECT_EQ(MaximaleGeschwindigkeit(5.375, 1), 0.38);
}

TEST(MaximaleGeschwindigkeit, Is_0_for_5_mm) {
    EXPECT_EQ(MaximaleGeschwindigkeit(5, Tz), 0);
}

TEST(MaximaleGeschwindigkeit, Is_empty_for_4_mm) {
    EXPECT_EQ(MaximaleGeschwindigkeit(4, Tz), Nichts);
}

TEST(MaximaleGeschwindigkeit, Is_0_without_a_sign_where_it_is_rounded_to_0_from_below) {
    const auto vmax = MaximaleGeschwindigkeit(4.999, Tz);
    ASSERT_EQ(vmax, 0);
    EXPECT_FALSE(std::signbit(*vmax));
}

TEST(MaximaleGeschwindigkeit, Is_empty_without_a_cycle_time) {
    EXPECT_EQ(MaximaleGeschwindigkeit(100, 0), Nichts);
}

TEST(MaximaleGeschwindigkeit, Is_empty_beyond_all_numbers) {
    EXPECT_EQ(MaximaleGeschwindigkeit(1e308, Tz), Nichts);
}

TEST(MinimaleLaenge, Is_the_way_of_a_cycle_and_5_mm) {
    EXPECT_EQ(MinimaleLaenge(20, Tz), 40);
    EXPECT_EQ(MinimaleLaenge(0, Tz), 5);
}

TEST(MinimaleLaenge, Is_not_rounded) {
    EXPECT_EQ(MinimaleLaenge(0.001, Tz), 0.001 * Tz + 5);
}

TEST(MinimaleLaenge, Is_empty_where_it_would_be_negative) {
    EXPECT_EQ(MinimaleLaenge(-2, Tz), 1.5);
    EXPECT_EQ(MinimaleLaenge(-3, Tz), Nichts);
}

TEST(MinimaleLaenge, Is_empty_without_a_cycle_time) {
    EXPECT_EQ(MinimaleLaenge(3, 0), Nichts);
}

TEST(MinimaleLaenge, Is_empty_beyond_all_numbers) {
    EXPECT_EQ(MinimaleLaenge(1.7e308, Tz), Nichts);
}

TEST(MinimalerLochdurchmesser, Follows_the_beam_distance_at_low_speed) {
    EXPECT_EQ(MinimalerLochdurchmesser(0, Tz, 5), 1);
    EXPECT_EQ(MinimalerLochdurchmesser(1, Tz, 10), 6);
    EXPECT_EQ(MinimalerLochdurchmesser(1, Tz, 20), 16);
    EXPECT_EQ(MinimalerLochdurchmesser(1, Tz, 40), 36);
}

TEST(MinimalerLochdurchmesser, Follows_the_speed_at_high_speed) {
    EXPECT_EQ(MinimalerLochdurchmesser(4, Tz, 10), 8);
    EXPECT_EQ(MinimalerLochdurchmesser(0.001, Tz, 5), 0.001 * Tz + 1);
}

TEST(MinimalerLochdurchmesser, Is_empty_where_it_would_be_negative) {
    EXPECT_EQ(MinimalerLochdurchmesser(-1, Tz, 0), Nichts);
}

TEST(MinimalerLochdurchmesser, Is_empty_without_a_cycle_time) {
    EXPECT_EQ(MinimalerLochdurchmesser(1, 0, 10), Nichts);
}

TEST(MaximaleLochgeschwindigkeit, Requires_the_smallest_diameter_of_the_beam_distance) {
    EXPECT_EQ(MaximaleLochgeschwindigkeit(0.9, Tz, 5), (Lochergebnis{Nichts, 8044}));
    EXPECT_EQ(MaximaleLochgeschwindigkeit(5.9, Tz, 10), (Lochergebnis{Nichts, 8045}));
    EXPECT_EQ(MaximaleLochgeschwindigkeit(10, Tz, 20), (Lochergebnis{Nichts, 8046}));
    EXPECT_EQ(MaximaleLochgeschwindigkeit(25.9, Tz, 40), (Lochergebnis{Nichts, 8047}));
}

TEST(MaximaleLochgeschwindigkeit, Of_the_smallest_holes_is_1_mm_in_two_cycles) {
    constexpr double vmax = 1 / (Tz * 2);
    EXPECT_EQ(MaximaleLochgeschwindigkeit(1, Tz, 5), (Lochergebnis{vmax, 8040}));
    EXPECT_EQ(MaximaleLochgeschwindigkeit(6, Tz, 10), (Lochergebnis{vmax, 8041}));
    EXPECT_EQ(MaximaleLochgeschwindigkeit(16.5, Tz, 20), (Lochergebnis{vmax, 8042}));
    EXPECT_EQ(MaximaleLochgeschwindigkeit(26.9, Tz, 40), (Lochergebnis{vmax, 8043}));
}

TEST(MaximaleLochgeschwindigkeit, Takes_the_smallest_holes_to_below_1_mm_more) {
    EXPECT_EQ(MaximaleLochgeschwindigkeit(6.99, 2, 10), (Lochergebnis{0.25, 8041}));
    EXPECT_EQ(MaximaleLochgeschwindigkeit(7, 2, 10), (Lochergebnis{3, 8037}));
}

TEST(MaximaleLochgeschwindigkeit, Of_larger_holes_is_the_diameter_less_1_mm_over_the_cycle_time) {
    EXPECT_EQ(MaximaleLochgeschwindigkeit(30, Tz, 10), (Lochergebnis{16.57, 8037}));
}

TEST(MaximaleLochgeschwindigkeit, Is_empty_with_the_general_formula_for_other_beam_distances) {
    for (const int abstand : {0, 4, 6, 15, 39, 41, -5})
        EXPECT_EQ(MaximaleLochgeschwindigkeit(30, Tz, abstand), (Lochergebnis{Nichts, 8037})) << abstand;
}

TEST(MaximaleLochgeschwindigkeit, Is_empty_without_a_cycle_time_whatever_the_diameter) {
    for (const double durchmesser : {1.0, 6.5, 30.0})
        EXPECT_EQ(MaximaleLochgeschwindigkeit(durchmesser, 0, 10).vmax, Nichts) << durchmesser;
}

} // namespace varnoth
