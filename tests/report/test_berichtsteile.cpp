#include "htmltext.h"
#include "pruefsumme.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "strahlenbild.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

using testing::HasSubstr;
using testing::Not;

std::size_t Anzahl(const std::string& text, std::string_view stueck) {
    std::size_t anzahl = 0;
    for (auto stelle = text.find(stueck); stelle != std::string::npos; stelle = text.find(stueck, stelle + 1))
        ++anzahl;
    return anzahl;
}

} // namespace

TEST(HtmlTest, Five_characters_are_written_in_another_way_and_control_characters_left_out) {
    EXPECT_EQ(html::AlsHtml("a<b>&\"'\x01\n\x7F"
                            "ä"),
              "a&lt;b&gt;&amp;&quot;&#39;ä");
}

TEST(HtmlTest, Bytes_become_groups_of_four_characters) {
    EXPECT_EQ(html::AlsBase64(""), "");
    EXPECT_EQ(html::AlsBase64("M"), "TQ==");
    EXPECT_EQ(html::AlsBase64("Ma"), "TWE=");
    EXPECT_EQ(html::AlsBase64("Man"), "TWFu");
    EXPECT_EQ(html::AlsBase64("\xFF\xEF\xBE"), "/+++");
}

TEST(HtmlTest, The_head_of_a_table_is_one_that_is_repeated) {
    EXPECT_THAT(html::Tabelle({{"A"}}, {{{"1"}}}),
                HasSubstr("<thead><tr><th>A</th></tr>\n</thead><tr><td>1</td></tr>"));
    EXPECT_THAT(html::Tabelle({}, {}), Not(HasSubstr("thead")));
}

TEST(HtmlTest, A_cell_of_nothing_holds_a_blank_so_that_what_follows_the_table_keeps_its_distance) {
    EXPECT_THAT(html::Tabelle({}, {{{"1"}, {""}}}), HasSubstr("<td>1</td><td>&nbsp;</td></tr>"));
}

TEST(PruefsummeTest, Of_a_configuration_changes_with_each_setting_and_not_with_measured_values) {
    Abbild abbild = Standardkonfiguration();
    const std::string vorher = Konfigurationspruefsumme(abbild);
    EXPECT_EQ(vorher.size(), 8U);
    ASSERT_TRUE(
        abbild.SetzeParameter(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Messwerte, Werte(18, 7)));
    EXPECT_EQ(Konfigurationspruefsumme(abbild), vorher);
    ASSERT_TRUE(
        abbild.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Aufloesung, 40, 3));
    EXPECT_NE(Konfigurationspruefsumme(abbild), vorher);
}

TEST(StrahlenbildTest, Beams_that_follow_one_another_are_one_black_bar_at_their_place) {
    Geblankte geblankte(8);
    geblankte[2] = geblankte[3] = geblankte[7] = true;
    const std::string svg = Strahlenbild(geblankte);
    EXPECT_EQ(Anzahl(svg, "fill=\"#000000\""), 2U);
    EXPECT_THAT(svg,
                HasSubstr(R"(<rect x="166000" y="2000" width="154000" height="22000" fill="#000000"/>)"));
    EXPECT_THAT(svg, HasSubstr(R"(<rect x="551000" y="2000" width="77000" height="22000" fill="#000000"/>)"));
}

TEST(StrahlenbildTest, Numbers_stand_at_the_first_beam_and_at_multiples) {
    const std::string svg = Strahlenbild(Geblankte(32));
    for (const char* nummer : {">1<", ">4<", ">28<", ">32<"})
        EXPECT_THAT(svg, HasSubstr(nummer));
    EXPECT_EQ(Anzahl(svg, "<text"), 9U);
}

TEST(StrahlenbildTest, However_many_beams_there_are_the_numbers_stay_few) {
    for (const std::size_t strahlen : {1U, 2U, 16U, 65U, 100U, 128U, 240U, 511U, 512U})
        EXPECT_LE(Anzahl(Strahlenbild(Geblankte(strahlen)), "<text"), 18U) << strahlen;
    EXPECT_EQ(Strahlenbild({}), "");
}

} // namespace varnoth
