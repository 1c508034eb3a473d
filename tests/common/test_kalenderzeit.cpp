#include "kalenderzeit.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

using namespace std::chrono;

constexpr const char* Form = "%Y-%m-%d %H:%M:%S, day %j, weekday %w";

std::string AlsWeltzeit(system_clock::time_point zeit) {
    return InForm(Form, Weltzeit(zeit));
}

} // namespace

TEST(Kalender, Tells_world_time_to_the_second_over_leap_days) {
    const auto schalttag = sys_days(2024y / February / 29) + 23h + 59min + 59s + 999ms;
    EXPECT_EQ(AlsWeltzeit(schalttag), "2024-02-29 23:59:59, day 060, weekday 4");
    EXPECT_EQ(AlsWeltzeit(schalttag + 1ms), "2024-03-01 00:00:00, day 061, weekday 5");
}

TEST(Kalender, Local_time_is_as_far_ahead_of_world_time_as_it_says) {
    for (const auto& zeit : {sys_days(2024y / January / 15) + 12h, sys_days(2024y / July / 15) + 23h}) {
        const auto versatz = minutes(Zonenminuten(zeit));
        EXPECT_EQ(InForm(Form, Ortszeit(zeit)), AlsWeltzeit(zeit + versatz));
        const std::string text = Zonentext(zeit);
        ASSERT_EQ(text.size(), 5U) << text;
        const int gesagt = std::stoi(text.substr(1, 2)) * 60 + std::stoi(text.substr(3));
        EXPECT_EQ(text[0] == '-' ? -gesagt : gesagt, versatz.count());
    }
}

} // namespace varnoth
