#include "zeiteingabe.h"

#include <gtest/gtest.h>

#include <string>

namespace varnoth {

using namespace std::chrono_literals;

namespace {

/// From 2026-11-22 15:43:18.4 local time on, an hour ahead of UTC.
constexpr Messangaben Angaben() {
    return {.beginn = Systemzeit(1'795'358'598'400ms), .zoneMinuten = 60};
}

/// Where a record that is so long is led to by a text, standing at a time of it; -1 for nowhere.
Zeit Sprung(const char* text, Zeit laenge, Zeit hier = {}) {
    const auto eingabe = LiesZeiteingabe(text);
    if (!eingabe)
        return Zeit(-2);
    return GemeinteLaufzeit(*eingabe, Angaben(), {Zeit{}, laenge}, hier).value_or(Zeit(-1));
}

} // namespace

TEST(Zeiteingabe, Is_a_time_of_day_with_or_without_seconds_and_parts_of_them) {
    EXPECT_EQ(Sprung("15:44", 1h), 41'600ms);
    EXPECT_EQ(Sprung(" 15:43:20 ", 1h), 1'600ms);
    EXPECT_EQ(Sprung("15:43:20,5", 1h), 2'100ms);
    EXPECT_EQ(Sprung("15:43:20.125", 1h), 1'725ms);
    EXPECT_EQ(Sprung("16:05", 1h), 21min + 41'600ms);
    EXPECT_EQ(LiesZeiteingabe("7:05")->uhrzeit, 7h + 5min);
}

TEST(Zeiteingabe, Is_of_a_day_in_either_way_of_writing_it) {
    EXPECT_EQ(Sprung("22.11.2026 15:43:20", 30h), 1'600ms);
    EXPECT_EQ(Sprung("2026-11-23 15:43:20", 30h), 24h + 1'600ms);
    EXPECT_EQ(Sprung("23.11.2026   00:00", 30h), 8h + 16min + 41'600ms);
    EXPECT_EQ(Sprung("21.11.2026 15:44", 30h), Zeit(-1));
}

TEST(Zeiteingabe, Without_a_day_is_of_the_one_where_the_replay_stands_if_that_has_it) {
    EXPECT_EQ(Sprung("15:44", 60h), 41'600ms);
    EXPECT_EQ(Sprung("15:44", 60h, 20h), 24h + 41'600ms);
    EXPECT_EQ(Sprung("03:00", 60h), 11h + 16min + 41'600ms) << "the first day has no such time";
    EXPECT_EQ(Sprung("15:44", 23h, 20h), 41'600ms) << "nor has the last";
}

TEST(Zeiteingabe, Finds_a_record_that_begins_within_what_was_typed) {
    EXPECT_EQ(Sprung("15:43", 1h), 0s);
    EXPECT_EQ(Sprung("15:43:18", 1h), 0s);
    EXPECT_EQ(Sprung("15:43:17", 1h), Zeit(-1));
    EXPECT_EQ(Sprung("15:43:18,3", 1h), Zeit(-1));
    EXPECT_EQ(Sprung("15:42", 1h), Zeit(-1));
}

TEST(Zeiteingabe, Is_nowhere_behind_the_end) {
    EXPECT_EQ(Sprung("16:43:18,4", 1h), 1h);
    EXPECT_EQ(Sprung("16:43:18,5", 1h), Zeit(-1));
    EXPECT_EQ(Sprung("16:44", 1h), Zeit(-1));
}

TEST(Zeiteingabe, Is_nothing_else) {
    for (const char* const text : {"",
                                   " ",
                                   "15",
                                   "15:",
                                   ":15",
                                   "15:60",
                                   "24:00",
                                   "15:43:60",
                                   "15:43:20,",
                                   "15:43,5",
                                   "15:43:20,1234567",
                                   "15:43:20 22.11.2026",
                                   "22.11.2026",
                                   "30.02.2026 15:43",
                                   "22.13.2026 15:43",
                                   "2026-11 15:43",
                                   "22.11.26.1 15:43",
                                   "heute 15:43",
                                   "15:43h",
                                   "-1:30",
                                   "1:2:3:4",
                                   "00015:43",
                                   "15:43:20,5s"})
        EXPECT_FALSE(LiesZeiteingabe(text)) << '"' << text << '"';
}

} // namespace varnoth
