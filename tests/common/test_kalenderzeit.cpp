#include "kalenderzeit.h"

#include "ortszone.h"

#include <gtest/gtest.h>

namespace varnoth {
namespace {

using namespace std::chrono;

system_clock::time_point Um(sys_seconds zeit) {
    return zeit;
}

const auto Winter = Um(sys_days(2026y / 1 / 15) + 22h + 59min + 58s) + 999ms;
const auto Sommer = Um(sys_days(2026y / 7 / 15));

TEST(Kalenderzeit, The_offset_of_the_zone_follows_summer_time) {
    const Ortszone zone("CET-1CEST");
    EXPECT_EQ(Zonenminuten(Winter), 60);
    EXPECT_EQ(Zonenminuten(Sommer), 120);
}

TEST(Kalenderzeit, A_zone_is_told_as_hours_and_minutes_with_its_sign) {
    {
        const Ortszone zone("CET-1");
        EXPECT_EQ(Zonentext(Winter), "+0100");
    }
    {
        const Ortszone zone("NST3:30");
        EXPECT_EQ(Zonenminuten(Winter), -210);
        EXPECT_EQ(Zonentext(Winter), "-0330");
    }
}

TEST(Kalenderzeit, Local_and_universal_time_tell_the_same_moment) {
    const Ortszone zone("CET-1");
    EXPECT_EQ(InForm("%Y-%m-%d %H:%M:%S", Ortszeit(Winter)), "2026-01-15 23:59:58");
    EXPECT_EQ(InForm("%Y-%m-%d %H:%M:%S", Weltzeit(Winter)), "2026-01-15 22:59:58");
}

TEST(Kalenderzeit, A_moment_before_the_epoch_drops_its_decimals_downwards) {
    EXPECT_EQ(InForm("%Y-%m-%d %H:%M:%S", Weltzeit(Um(sys_seconds(-1s)) + 1ms)), "1969-12-31 23:59:59");
}

} // namespace
} // namespace varnoth
