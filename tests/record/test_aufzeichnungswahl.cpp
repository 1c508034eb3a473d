#include "aufzeichnungswahl.h"

#include "jedertest.h"
#include "ortszone.h"

#include <gtest/gtest.h>

#include <string>

namespace varnoth {
namespace {

using namespace std::chrono_literals;

Messdurchgang Durchgang(Zeit uhr, std::uint16_t wert = 0) {
    Messdurchgang durchgang;
    durchgang.uhr = uhr;
    durchgang.anzahlTeile = 1;
    durchgang.teile[0].werte[0] = wert;
    return durchgang;
}

Systemzeit Um(std::chrono::sys_seconds zeit) {
    return zeit;
}

TEST(Aufzeichnungswahl, Numbers_out_of_range_come_into_it) {
    const auto klein = Begrenzt({.sekunden = 0, .megabyte = -1, .endeMinuten = -5, .behalteStunden = -1});
    EXPECT_EQ(klein.sekunden, 1);
    EXPECT_EQ(klein.megabyte, 0);
    EXPECT_EQ(klein.endeMinuten, 0);
    EXPECT_EQ(klein.behalteStunden, 0);
    const auto gross =
        Begrenzt({.sekunden = 9999, .megabyte = 99'999, .endeMinuten = 1'000'000, .behalteStunden = 99'999});
    EXPECT_EQ(gross.sekunden, 3600);
    EXPECT_EQ(gross.megabyte, 10'000);
    EXPECT_EQ(gross.endeMinuten, 100'000);
    EXPECT_EQ(gross.behalteStunden, 8760);
}

TEST(Aufzeichnungswahl, Without_any_form_the_record_is_taken) {
    EXPECT_TRUE(Begrenzt({.vrec = false, .csv = false}).vrec);
    EXPECT_FALSE(Begrenzt({.vrec = false, .csv = true}).vrec);
}

TEST(Durchgangsauswahl, Every_pass_is_due_when_every_pass_is_chosen) {
    Durchgangsauswahl auswahl(Rhythmus::JederDurchgang, 10);
    EXPECT_TRUE(auswahl.Nimm(Durchgang(1s)));
    EXPECT_TRUE(auswahl.Nimm(Durchgang(1s)));
}

TEST(Durchgangsauswahl, On_change_a_pass_is_due_that_says_something_else_than_the_one_recorded_last) {
    Durchgangsauswahl auswahl(Rhythmus::BeiAenderung, 10);
    EXPECT_TRUE(auswahl.Nimm(Durchgang(1s, 5)));
    EXPECT_FALSE(auswahl.Nimm(Durchgang(2s, 5)));
    EXPECT_TRUE(auswahl.Nimm(Durchgang(3s, 6)));
    EXPECT_TRUE(auswahl.Nimm(Durchgang(4s, 5)));
}

TEST(Durchgangsauswahl, On_change_the_switching_output_counts_too) {
    Durchgangsauswahl auswahl(Rhythmus::BeiAenderung, 10);
    auswahl.Nimm(Durchgang(1s));
    auto geschaltet = Durchgang(2s);
    geschaltet.geraetestatus = 2;
    EXPECT_TRUE(auswahl.Nimm(geschaltet));
}

TEST(Durchgangsauswahl, On_change_one_pass_a_minute_shows_that_nothing_has_changed) {
    Durchgangsauswahl auswahl(Rhythmus::BeiAenderung, 10);
    auswahl.Nimm(Durchgang(1s));
    EXPECT_FALSE(auswahl.Nimm(Durchgang(60s)));
    EXPECT_TRUE(auswahl.Nimm(Durchgang(61s)));
    EXPECT_FALSE(auswahl.Nimm(Durchgang(62s)));
}

TEST(Durchgangsauswahl, One_in_so_many_seconds_counts_from_the_last_that_was_recorded) {
    Durchgangsauswahl auswahl(Rhythmus::AlleSekunden, 10);
    EXPECT_TRUE(auswahl.Nimm(Durchgang(5s)));
    EXPECT_FALSE(auswahl.Nimm(Durchgang(14s, 9)));
    EXPECT_TRUE(auswahl.Nimm(Durchgang(15s)));
}

TEST(Durchgangsauswahl, After_something_has_happened_the_next_pass_is_due) {
    Durchgangsauswahl auswahl(Rhythmus::BeiAenderung, 10);
    auswahl.Nimm(Durchgang(1s));
    auswahl.BeginneNeu();
    EXPECT_TRUE(auswahl.Nimm(Durchgang(2s)));
}

TEST(Aufzeichnungswahl, Files_of_what_is_kept_are_a_twelfth_of_it_long) {
    EXPECT_EQ(Stuecklaenge(0), std::nullopt);
    EXPECT_EQ(Stuecklaenge(1), Zeit(5min));
    EXPECT_EQ(Stuecklaenge(24), Zeit(2h));
}

TEST(Ortszeit, A_day_changes_at_local_midnight) {
    const Ortszone zone("CET-1");
    using namespace std::chrono;
    const auto vorher = sys_days(2026y / 1 / 15) + 22h + 59min + 59s;
    EXPECT_EQ(Ortstag(Um(vorher)), Ortstag(Um(vorher - 20h)));
    EXPECT_EQ(Ortstag(Um(vorher + 1s)), Ortstag(Um(vorher)) + 1);
}

} // namespace
} // namespace varnoth
