#include "aufzeichnungstexte.h"

#include "ortszone.h"
#include "texte.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

using namespace std::chrono_literals;

Aufzeichnungslage Lage(Zeit dauer, std::uint64_t bytes, double rate) {
    return {.laeuft = true, .stand = {.dauer = dauer, .bytes = bytes}, .durchgaengeJeSekunde = rate};
}

} // namespace

TEST(Aufzeichnungstexte, The_mark_tells_duration_size_and_rate) {
    SetzeSprachoffset(Deutsch);
    EXPECT_EQ(Markentext(Lage(3725s, 1'240'000, 8.25), true), "Aufzeichnung 01:02:05 · 1,2 MB · 8,2/s");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Markentext(Lage(3725s, 1'240'000, 8.25), true), "Recording 01:02:05 · 1.2 MB · 8.2/s");
}

TEST(Aufzeichnungstexte, The_mark_tells_when_there_is_nothing_to_record) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Markentext(Lage(5s, 900, 8), false), "Recording 00:00:05 · 1 KB · no live data");
}

TEST(Aufzeichnungstexte, The_mark_tells_what_was_dropped_and_what_it_waits_for) {
    SetzeSprachoffset(Englisch);
    auto lage = Lage(5s, 12'400, 8);
    lage.stand.verworfen = 17;
    lage.hindernis = "No space left on device";
    EXPECT_EQ(Markentext(lage, true),
              "Recording 00:00:05 · 12 KB · waiting: No space left on device · 17 dropped");
}

TEST(Aufzeichnungstexte, Durations_go_beyond_a_day) {
    EXPECT_EQ(Aufnahmedauer(100h + 1s), "100:00:01");
}

TEST(Aufzeichnungstexte, A_name_holds_serial_number_date_and_time_in_letters_that_every_file_system_takes) {
    const Ortszone zone("CET-1");
    const Systemzeit zeit = std::chrono::sys_days(std::chrono::year(2026) / 3 / 1) + 13h + 5min + 9s;
    EXPECT_EQ(Aufzeichnungsname("VN-10/2 ä", zeit), "VN-10_2____2026-03-01_14-05-09");
    EXPECT_EQ(Aufzeichnungsname("09AZaz-", zeit), "09AZaz-_2026-03-01_14-05-09");
    EXPECT_EQ(Aufzeichnungsname("", zeit), "Varnoth_2026-03-01_14-05-09");
    EXPECT_EQ(Aufzeichnungsname("../../x", zeit), "______x_2026-03-01_14-05-09");
    EXPECT_EQ(Aufzeichnungsname(std::string(500, 'a'), zeit).size(), 60U);
}

TEST(Aufzeichnungstexte, A_typed_name_keeps_its_letters_but_those_that_a_file_system_refuses) {
    EXPECT_EQ(Dateinamensteil("Prüfung 3"), "Prüfung 3");
    EXPECT_EQ(Dateinamensteil("a/b\\c:d*e?f\"g<h>i|j"), "a_b_c_d_e_f_g_h_i_j");
    EXPECT_EQ(Dateinamensteil(".versteckt"), "_versteckt");
}

TEST(Aufzeichnungstexte, A_typed_name_of_more_than_a_hundred_bytes_is_cut) {
    EXPECT_EQ(Dateinamensteil(std::string(100, 'a')).size(), 100U);
    EXPECT_EQ(Dateinamensteil(std::string(101, 'a')).size(), 25U);
}

TEST(Aufzeichnungsrate, Is_that_of_the_last_seconds) {
    Aufzeichnungsrate rate;
    EXPECT_EQ(rate.Betrachte({.dauer = 1s, .durchgaenge = 8}), 0);
    EXPECT_EQ(rate.Betrachte({.dauer = 2s, .durchgaenge = 16}), 8);
    EXPECT_EQ(rate.Betrachte({.dauer = 3s, .durchgaenge = 30}), 8);
    EXPECT_EQ(rate.Betrachte({.dauer = 4s, .durchgaenge = 20}), 2);
}

TEST(Aufzeichnungsrate, Begins_anew_with_another_recording) {
    Aufzeichnungsrate rate;
    rate.Betrachte({.dauer = 100s, .durchgaenge = 1000});
    EXPECT_EQ(rate.Betrachte({.dauer = 2s, .durchgaenge = 4}), 2);
}

} // namespace varnoth
