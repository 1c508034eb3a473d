#include "csvform.h"

#include "jedertest.h"
#include "ortszone.h"
#include "registeradressen.h"
#include "statusbits.h"
#include "texte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace varnoth {
namespace {

using namespace std::chrono_literals;

/// The German worker's zone in winter.
class CsvformTest : public testing::Test {
protected:
    CsvformTest() {
        SetzeSprachoffset(Englisch);
        Teilmessung& teil = durchgang.teile[0];
        teil = {.vorhanden = true, .gemessen = true, .status = 0x1E05, .strahlen = 6};
        for (std::size_t i = 0; i < teil.werte.size(); ++i)
            teil.werte.at(i) = static_cast<std::uint16_t>(i + 1);
        teil.strahlregister[0] = 0x2100; // beams 1 and 6 are free
        durchgang.anzahlTeile = 1;
        durchgang.zeit = std::chrono::sys_days(std::chrono::year(2026) / 3 / 1) + 13h + 5min + 9s + 123456us;
        durchgang.uhr = 61s + 7654us;
        durchgang.geraetestatus = geraetestatus::PnpAktiv;
    }

    std::string Zeilen(const Messpaket& paket, Csvart art = Csvart::Standard) {
        return Csvform(art, LadeCsvworte()).Nimm(paket, konfiguration);
    }

    const Ortszone zone{"CET-1"};
    Messdurchgang durchgang;
    std::shared_ptr<Abbild> konfiguration = std::make_shared<Abbild>();
};

TEST_F(CsvformTest, The_first_line_names_the_columns) {
    EXPECT_EQ(Csvform(Csvart::Standard, LadeCsvworte()).Beginne({}, konfiguration),
              "\"Time\",\"Seconds\",\"Part\",\"Status\",\"TU\",\"HU\",\"ZU\",\"TNU\",\"HNU\",\"ZNU\","
              "\"TU minimum\",\"HU minimum\",\"ZU minimum\",\"TNU minimum\",\"HNU minimum\",\"ZNU minimum\","
              "\"TU maximum\",\"HU maximum\",\"ZU maximum\",\"TNU maximum\",\"HNU maximum\",\"ZNU maximum\","
              "\"Blanked beams\",\"Switching output\",\"Beams\",\"Event\"\r\n");
}

TEST_F(CsvformTest, A_pass_is_a_line_for_each_part) {
    EXPECT_EQ(Zeilen({.durchgaenge = {durchgang}}),
              "2026-03-01T14:05:09.123+01:00,61.008,1,0x1E05,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,"
              "0,1,0x84,\r\n");
}

TEST_F(CsvformTest, The_switching_output_is_1_while_it_is_active_and_0_otherwise) {
    EXPECT_TRUE(Zeilen({.durchgaenge = {durchgang}}).ends_with(",1,0x84,\r\n"));
    durchgang.geraetestatus = 0;
    EXPECT_TRUE(Zeilen({.durchgaenge = {durchgang}}).ends_with(",0,0x84,\r\n"));
    durchgang.teile[0].vorhanden = false;
    EXPECT_TRUE(Zeilen({.durchgaenge = {durchgang}}).ends_with(",0,,\r\n")) << "without any part too";
    durchgang.geraetestatus = geraetestatus::PnpAktiv;
    EXPECT_TRUE(Zeilen({.durchgaenge = {durchgang}}).ends_with(",1,,\r\n"));
}

TEST_F(CsvformTest, The_German_Excel_gets_semicolons_a_decimal_comma_and_a_mark_of_the_encoding) {
    EXPECT_TRUE(Csvform(Csvart::ExcelDeutsch, LadeCsvworte())
                    .Beginne({}, konfiguration)
                    .starts_with("\xEF\xBB\xBF\"Time\";\"Seconds\";"));
    EXPECT_EQ(Zeilen({.durchgaenge = {durchgang}}, Csvart::ExcelDeutsch),
              "2026-03-01T14:05:09.123+01:00;61,008;1;0x1E05;1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;16;17;18;"
              "0;1;0x84;\r\n");
}

TEST_F(CsvformTest, Every_line_has_as_many_fields_as_the_first) {
    Messdurchgang ohneTeil = durchgang;
    ohneTeil.teile[0].vorhanden = false;
    const std::string text = Csvform(Csvart::Standard, LadeCsvworte()).Beginne({}, konfiguration) +
                             Zeilen({.durchgaenge = {durchgang, ohneTeil},
                                     .ereignisse = {{.art = Messereignisart::Verloren, .laufzeit = 100s}}});
    std::size_t anfang = 0;
    int zeilen = 0;
    for (auto ende = text.find("\r\n"); ende != std::string::npos;
         ende = text.find("\r\n", anfang), ++zeilen) {
        EXPECT_EQ(std::count(text.begin() + static_cast<std::ptrdiff_t>(anfang),
                             text.begin() + static_cast<std::ptrdiff_t>(ende), ','),
                  25)
            << text.substr(anfang, ende - anfang);
        anfang = ende + 2;
    }
    EXPECT_EQ(zeilen, 4);
}

TEST_F(CsvformTest, What_was_not_measured_stays_empty) {
    durchgang.teile[0].gemessen = false;
    EXPECT_EQ(Zeilen({.durchgaenge = {durchgang}}),
              "2026-03-01T14:05:09.123+01:00,61.008,1,0x1E05,,,,,,,,,,,,,,,,,,,0,1,,\r\n");
}

TEST_F(CsvformTest, Absent_parts_have_no_line) {
    durchgang.anzahlTeile = 3;
    durchgang.teile[2] = durchgang.teile[0];
    const std::string zeilen = Zeilen({.durchgaenge = {durchgang}});
    EXPECT_EQ(std::ranges::count(zeilen, '\n'), 2);
    EXPECT_NE(zeilen.find(",61.008,3,"), std::string::npos);
    EXPECT_EQ(zeilen.find(",61.008,2,"), std::string::npos);
}

TEST_F(CsvformTest, A_pass_without_any_part_still_tells_the_output) {
    durchgang.teile[0].vorhanden = false;
    EXPECT_EQ(Zeilen({.durchgaenge = {durchgang}}),
              "2026-03-01T14:05:09.123+01:00,61.008,,,,,,,,,,,,,,,,,,,,,,1,,\r\n");
}

TEST_F(CsvformTest, An_event_is_a_line_of_its_own_between_the_passes_of_its_time) {
    Messdurchgang danach = durchgang;
    danach.uhr = 63s;
    const std::string zeilen =
        Zeilen({.durchgaenge = {durchgang, danach},
                .ereignisse = {{.art = Messereignisart::Verloren, .laufzeit = 62s, .zeit = durchgang.zeit}}});
    const auto wo = zeilen.find("2026-03-01T14:05:09.123+01:00,62.000,,");
    ASSERT_NE(wo, std::string::npos);
    EXPECT_LT(zeilen.find(",61.008,"), wo);
    EXPECT_GT(zeilen.find(",63.000,"), wo);
    EXPECT_NE(zeilen.find(",\"Connection lost\"\r\n"), std::string::npos);
}

TEST_F(CsvformTest, How_many_passes_are_missing_is_told) {
    const std::string zeilen = Zeilen({.ereignisse = {{.art = Messereignisart::Verworfen, .text = "17"}}});
    EXPECT_NE(zeilen.find("\"17 passes are missing\""), std::string::npos);
}

TEST_F(CsvformTest, The_blanked_beams_of_the_part_are_counted) {
    Werte muster(spezifisch::Blankingregister, 0);
    muster[0] = 0x2100 | 0x0001; // beams 1 and 6; beam 9 is behind the last
    ASSERT_TRUE(konfiguration->SetzeParameter(Speicherbereich::SpezifischeGeraetedaten,
                                              spezifisch::Blankingmuster, muster, 0));
    EXPECT_NE(Zeilen({.durchgaenge = {durchgang}}).find(",18,2,1,0x84,"), std::string::npos);
}

TEST_F(CsvformTest, Beams_are_digits_with_the_first_beam_in_front) {
    Teilmessung teil{.strahlen = 17};
    teil.strahlregister[0] = 0x0180; // the first eight beams are in the high byte, the lowest bit first
    teil.strahlregister[1] = 0x0100;
    EXPECT_EQ(Strahlhex(teil), "0x80018");
    teil.strahlen = 0;
    EXPECT_EQ(Strahlhex(teil), "0x");
}

TEST(Csvtext, No_spreadsheet_takes_a_note_for_a_formula) {
    EXPECT_EQ(Textfeld("=1+1"), "\"'=1+1\"");
    EXPECT_EQ(Textfeld(" +cmd|' /C calc'!A0"), "\"' +cmd|' /C calc'!A0\"");
    EXPECT_EQ(Textfeld("-2"), "\"'-2\"");
    EXPECT_EQ(Textfeld("@SUM(A1)"), "\"'@SUM(A1)\"");
    EXPECT_EQ(Textfeld("web changed"), "\"web changed\"");
}

TEST(Csvtext, Quotation_marks_are_doubled_and_no_line_breaks) {
    EXPECT_EQ(Textfeld("a \"b\"; c"), "\"a \"\"b\"\"; c\"");
    EXPECT_EQ(Textfeld("a\r\nb").find('\n'), std::string::npos);
}

TEST(Isozeit, Zones_behind_UTC_have_a_minus) {
    EXPECT_EQ(Isozeit(Systemzeit{}, -330), "1969-12-31T18:30:00.000-05:30");
    EXPECT_EQ(Isozeit(Systemzeit{} + 1999us, 0), "1970-01-01T00:00:00.001+00:00");
}

} // namespace
} // namespace varnoth
