#include "zeitachse.h"

#include "texte.h"
#include "zeitworte.h"

#include <gtest/gtest.h>

namespace varnoth {

using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

namespace {

/// 2026-11-22 13:00:00.400 UTC, 14:00 at a place an hour ahead.
Messangaben Angaben() {
    const auto tag = std::chrono::sys_days(std::chrono::year(2026) / 11 / 22);
    return {.beginn = tag + hours(13) + milliseconds(400), .zoneMinuten = 60};
}

std::vector<std::string> Texte(Zeitspanne spanne, Zeit mindestabstand) {
    std::vector<std::string> texte;
    for (const Zeitstrich& strich : Zeitstriche(Angaben(), spanne, mindestabstand))
        texte.push_back(strich.text);
    return texte;
}

using Liste = std::vector<std::string>;

} // namespace

TEST(Zeitachse, Steps_are_round_from_milliseconds_to_weeks) {
    const std::pair<Zeit, Zeit> faelle[] = {{Zeit(1), milliseconds(1)},
                                            {milliseconds(3), milliseconds(5)},
                                            {milliseconds(600), seconds(1)},
                                            {seconds(11), seconds(15)},
                                            {seconds(31), minutes(1)},
                                            {minutes(16), minutes(30)},
                                            {hours(4), hours(6)},
                                            {hours(13), hours(24)},
                                            {hours(49), hours(24 * 7)},
                                            {hours(24 * 8), hours(24 * 14)}};
    for (const auto& [mindestens, schritt] : faelle)
        EXPECT_EQ(RunderZeitschritt(mindestens), schritt) << mindestens.count();
    EXPECT_EQ(RunderZeitschritt(minutes(5)), minutes(5));
}

TEST(Zeitachse, Marks_lie_at_round_times_of_day_and_not_of_the_source) {
    const auto striche = Zeitstriche(Angaben(), {seconds(0), minutes(3)}, seconds(50));
    ASSERT_EQ(striche.size(), 3U);
    EXPECT_EQ(striche[0], (Zeitstrich{milliseconds(59'600), "14:01"}));
    EXPECT_EQ(striche[2], (Zeitstrich{milliseconds(179'600), "14:03"}));
}

TEST(Zeitachse, Texts_tell_as_much_as_the_steps_need) {
    EXPECT_EQ(Texte({seconds(0), seconds(25)}, seconds(8)), (Liste{"14:00:10", "14:00:20"}));
    EXPECT_EQ(Texte({seconds(0), milliseconds(30)}, milliseconds(8)),
              (Liste{"14:00:00,400", "14:00:00,410", "14:00:00,420", "14:00:00,430"}));
    EXPECT_EQ(Texte({seconds(0), hours(5)}, hours(2)), (Liste{"16:00", "18:00"}));
}

TEST(Zeitachse, Midnight_has_the_date) {
    EXPECT_EQ(Texte({hours(3), hours(18)}, hours(5)), (Liste{"18:00", "23.11.2026", "06:00"}));
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Texte({hours(3), hours(18)}, hours(5)), (Liste{"18:00", "2026-11-23", "06:00"}));
}

TEST(Zeitachse, No_text_is_wider_than_the_widest) {
    for (const Zeit schritt : {Zeit(milliseconds(2)), Zeit(seconds(5)), Zeit(minutes(5)), Zeit(hours(6))})
        for (const Zeitstrich& strich : Zeitstriche(Angaben(), {Zeit(0), schritt * 50}, schritt))
            EXPECT_LE(strich.text.size(), BreitesterZeittext(schritt).size()) << strich.text;
}

TEST(Zeitachse, An_axis_without_length_has_no_marks) {
    EXPECT_TRUE(Zeitstriche(Angaben(), {seconds(5), seconds(5)}, seconds(1)).empty());
    EXPECT_TRUE(Zeitstriche(Angaben(), {seconds(0), seconds(5)}, seconds(0)).empty());
}

TEST(Zeitachse, Times_before_the_source_began_have_marks_too) {
    EXPECT_EQ(Texte({-minutes(2), seconds(0)}, minutes(1)), (Liste{"13:59", "14:00"}));
}

TEST(Zeitachse, A_time_is_told_to_the_millisecond_at_its_place) {
    EXPECT_EQ(Uhrzeitworte(Angaben(), milliseconds(850)), "14:00:01,250");
    EXPECT_EQ(Datumsworte(Angaben(), hours(10)), "23.11.2026");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Uhrzeitworte(Angaben(), milliseconds(850)), "14:00:01.250");
    EXPECT_EQ(Datumsworte(Angaben(), hours(10)), "2026-11-23");
}

TEST(Zeitachse, A_duration_is_told_in_the_unit_that_fits) {
    EXPECT_EQ(Abstandstext(milliseconds(250)), "250 ms");
    EXPECT_EQ(Abstandstext(milliseconds(-12'345)), "-12,345 s");
    EXPECT_EQ(Abstandstext(seconds(3723)), "1:02:03");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Abstandstext(milliseconds(12'345)), "12.345 s");
}

} // namespace varnoth
