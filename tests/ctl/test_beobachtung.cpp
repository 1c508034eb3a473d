#include "ctlprobe.h"
#include "polling.h"
#include "statusbits.h"

namespace varnoth::ctl {

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class Beobachten : public CtlTest {
protected:
    Beobachten() {
        geraet.Spezifisch(0, spezifisch::Optikteilstatus) = optikteilstatus::Vorhanden | 1 << 2;
        for (int i = 0; i < 18; ++i)
            geraet.Spezifisch(0, spezifisch::Messwerte + i) = 100 + i;
        // Beams 1 to 8 are bit 8 to 15 of the first register, 9 to 16 its bits 0 to 7.
        geraet.Spezifisch(0, spezifisch::Strahlzustaende) = 0xFF00 | 0x00E7;
        geraet.Spezifisch(0, spezifisch::Strahlzustaende + 1) = 0xFFFF;
    }
};

} // namespace

TEST_F(Beobachten, Shows_a_line_for_each_part_below_a_heading) {
    EXPECT_EQ(Fuehre({"watch", "-n", "1"}), Ende::Erledigt);
    const auto zeilen = Zeilen(konsole.daten);
    ASSERT_EQ(zeilen.size(), 2U);
    EXPECT_THAT(std::string(zeilen[0]), HasSubstr("Part      TU    HU    ZU   TNU   HNU   ZNU  Output"));
    EXPECT_THAT(std::string(zeilen[1]), HasSubstr(" 1        100   101   102   103   104   105  off"));
    EXPECT_THAT(std::string(zeilen[1]), HasSubstr("run in middle"));
    EXPECT_THAT(std::string(zeilen[1]), EndsWith("  12-13"));
}

TEST_F(Beobachten, Leaves_blanked_beams_out) {
    geraet.Spezifisch(0, spezifisch::Blankingmuster) = 0x0008;
    EXPECT_EQ(Fuehre({"watch", "-n", "1"}), Ende::Erledigt);
    EXPECT_THAT(konsole.daten, EndsWith("  13\n"));
}

TEST_F(Beobachten, Writes_a_line_of_JSON_for_each_picture) {
    geraet.Register(global::Geraetestatus) = geraetestatus::PnpAktiv;
    EXPECT_EQ(Fuehre({"watch", "-n", "3", "-i", "0", "--json"}), Ende::Erledigt);
    const auto zeilen = Zeilen(konsole.daten);
    ASSERT_EQ(zeilen.size(), 3U);
    EXPECT_THAT(std::string(zeilen[2]),
                HasSubstr(R"("output": true, "parts": [{"part": 1, "present": true, "status": ")"));
    EXPECT_THAT(std::string(zeilen[2]),
                HasSubstr(R"("current": {"TU": 100, "HU": 101, "ZU": 102, "TNU": 103, "HNU": 104, )"
                          R"("ZNU": 105}, "min": {"TU": 106)"));
    EXPECT_THAT(std::string(zeilen[2]), HasSubstr(R"("interrupted": [[12, 13]]}]})"));
}

TEST_F(Beobachten, Keeps_the_time_between_two_pictures) {
    Fuehre({"watch", "-n", "4", "-i", "2.5"});
    EXPECT_GE(umgebung.uhr, std::chrono::milliseconds(7500));
    EXPECT_LE(umgebung.uhr, std::chrono::milliseconds(8500));
}

TEST_F(Beobachten, Repeats_the_heading_after_twenty_pictures) {
    Fuehre({"watch", "-n", "41", "-i", "0"});
    std::size_t koepfe = 0;
    for (const std::string_view zeile : Zeilen(konsole.daten))
        koepfe += zeile.find("ZNU") != std::string_view::npos ? 1 : 0;
    EXPECT_EQ(koepfe, 3U);
}

TEST_F(Beobachten, Ends_without_a_word_when_nobody_reads_any_more) {
    konsole.gelesen = false;
    EXPECT_EQ(Fuehre({"watch"}), Ende::Erledigt);
    EXPECT_EQ(konsole.meldungen, "");
}

TEST_F(Beobachten, Ends_when_it_is_interrupted_and_frees_the_port) {
    umgebung.Plane(std::chrono::seconds(5), [this] { konsole.unterbrochen = true; });
    EXPECT_EQ(Fuehre({"watch"}), Ende::Unterbrochen);
    EXPECT_GE(Zeilen(konsole.daten).size(), 5U);
    EXPECT_FALSE(port.offen);
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
}

TEST_F(Beobachten, Ends_when_the_controller_falls_silent) {
    umgebung.Plane(std::chrono::seconds(3),
                   [this] { geraet.schweige = [](const std::string&) { return true; }; });
    EXPECT_EQ(Fuehre({"watch", "-t", "4"}), Ende::KeineAntwort);
    EXPECT_THAT(konsole.meldungen, HasSubstr("No connection over"));
}

TEST_F(Beobachten, A_part_that_is_not_there_has_no_values) {
    geraet.Spezifisch(1, spezifisch::Strahlenzahl) = 16;
    geraet.Spezifisch(2, spezifisch::Strahlenzahl) = 16;
    geraet.Spezifisch(2, spezifisch::Optikteilstatus) = optikteilstatus::Vorhanden;
    EXPECT_EQ(Fuehre({"watch", "-n", "1", "--json"}), Ende::Erledigt);
    EXPECT_THAT(konsole.daten,
                HasSubstr(R"({"part": 2, "present": false, "status": "not available", "beams": null, )"
                          R"("current": null, "min": null, "max": null, "interrupted": []})"));
}

TEST_F(Beobachten, A_count_and_a_time_that_make_no_sense_are_told_before_anything_is_sent) {
    for (const std::vector<std::string>& worte : {std::vector<std::string>{"watch", "-n", "0"},
                                                  {"watch", "-n", "x"},
                                                  {"watch", "-i", "-1"},
                                                  {"watch", "-i", "x"}})
        EXPECT_EQ(Fuehre(worte), Ende::Bedienung) << worte.back();
    EXPECT_TRUE(port.gesendet.empty());
}

} // namespace varnoth::ctl
