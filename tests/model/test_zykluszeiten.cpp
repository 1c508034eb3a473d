#include "zykluszeiten.h"

#include "modelltest.h"

namespace varnoth {

TEST(ZykluszeitenFuer, One_part_of_32_beams_takes_1750) {
    EXPECT_EQ(ZykluszeitenFuer({32, 0, 0, 0}), (Zykluszeiten{{1750, 0, 0, 0}, 1750}));
}

TEST(ZykluszeitenFuer, One_part_of_8_beams_is_stretched_to_1000) {
    EXPECT_EQ(ZykluszeitenFuer({8, 0, 0, 0}), (Zykluszeiten{{1000, 0, 0, 0}, 1000}));
}

TEST(ZykluszeitenFuer, Two_parts_of_16_and_64_beams_take_1900_and_6700) {
    EXPECT_EQ(ZykluszeitenFuer({16, 64, 0, 0}), (Zykluszeiten{{1900, 6700, 0, 0}, 6700}));
}

TEST(ZykluszeitenFuer, Two_parts_of_2_and_100_beams_are_stretched_to_1000_and_20600) {
    EXPECT_EQ(ZykluszeitenFuer({2, 100, 0, 0}), (Zykluszeiten{{1000, 20600, 0, 0}, 20600}));
}

TEST(ZykluszeitenFuer, No_part_with_beams_takes_no_time) {
    EXPECT_EQ(ZykluszeitenFuer({0, 0, 0, 0}), Zykluszeiten{});
}

TEST(ZykluszeitenFuer, Each_part_keeps_its_place) {
    EXPECT_EQ(ZykluszeitenFuer({0, 64, 0, 16}), (Zykluszeiten{{0, 6700, 0, 1900}, 6700}));
}

TEST(ZykluszeitenFuer, A_cycle_of_exactly_1000_is_not_stretched) {
    EXPECT_EQ(ZykluszeitenFuer({17, 0, 0, 0}), (Zykluszeiten{{1000, 0, 0, 0}, 1000}));
    EXPECT_EQ(ZykluszeitenFuer({2, 2, 2, 2}), (Zykluszeiten{{1000, 1000, 1000, 1000}, 1000}));
}

TEST(ZykluszeitenFuer, Four_full_parts_take_their_beams_times_four) {
    EXPECT_EQ(ZykluszeitenFuer({128, 128, 128, 128}), (Zykluszeiten{{26200, 26200, 26200, 26200}, 26200}));
}

TEST(ZykluszeitenFuer, A_stretched_cycle_is_rounded_to_the_nearest_microsecond) {
    // The part with the fewest beams has 7 (9) steps in 1000 us, the other 10: 1428.57 (1111.11) us.
    EXPECT_EQ(ZykluszeitenFuer({4, 7, 0, 0}).zyklus[1], 1429);
    EXPECT_EQ(ZykluszeitenFuer({6, 7, 0, 0}).zyklus[1], 1111);
}

TEST(ZykluszeitenFuer, An_impossible_count_does_not_overflow) {
    EXPECT_EQ(ZykluszeitenFuer({2147483647, -5, 0, 0}), (Zykluszeiten{{2147483647, 0, 0, 0}, 2147483647}));
}

class ModHilfsFunktionen : public ModellTest {
protected:
    static void SetzeStrahlenzahlen(const std::array<std::int32_t, AnzahlOptikteile>& zahlen) {
        for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
            modDaten::SetzeSpezifischeDaten(12, 1, teil, {zahlen[static_cast<std::size_t>(teil)]});
    }
};

TEST_F(ModHilfsFunktionen, All_cycle_times_are_0_at_start) {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        EXPECT_EQ(modHilfsFunktionen::GetZykluszeit(teil), 0);
    EXPECT_EQ(modHilfsFunktionen::GetGesamtzykluszeit(), 0);
}

TEST_F(ModHilfsFunktionen, Cycle_times_follow_from_the_beam_counts_of_the_image) {
    SetzeStrahlenzahlen({16, 0, 64, 0});
    modHilfsFunktionen::BerechneZykluszeiten();
    EXPECT_EQ(modHilfsFunktionen::GetZykluszeit(0), 1900);
    EXPECT_EQ(modHilfsFunktionen::GetZykluszeit(1), 0);
    EXPECT_EQ(modHilfsFunktionen::GetZykluszeit(2), 6700);
    EXPECT_EQ(modHilfsFunktionen::GetGesamtzykluszeit(), 6700);
}

TEST_F(ModHilfsFunktionen, Cycle_times_stay_until_they_are_computed_again) {
    SetzeStrahlenzahlen({32, 0, 0, 0});
    modHilfsFunktionen::BerechneZykluszeiten();
    SetzeStrahlenzahlen({0, 0, 0, 0});
    EXPECT_EQ(modHilfsFunktionen::GetGesamtzykluszeit(), 1750);
    modHilfsFunktionen::BerechneZykluszeiten();
    EXPECT_EQ(modHilfsFunktionen::GetGesamtzykluszeit(), 0);
}

TEST_F(ModHilfsFunktionen, A_part_that_does_not_exist_has_no_cycle_time) {
    SetzeStrahlenzahlen({32, 32, 32, 32});
    modHilfsFunktionen::BerechneZykluszeiten();
    EXPECT_EQ(modHilfsFunktionen::GetZykluszeit(-1), 0);
    EXPECT_EQ(modHilfsFunktionen::GetZykluszeit(4), 0);
}

} // namespace varnoth
