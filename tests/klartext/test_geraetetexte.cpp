#include "geraetetexte.h"
#include "leitungsformat.h"

#include "texte.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

constexpr auto Anfang = "Format zwischen Master/Slave:   ";

} // namespace

TEST(GeraetetexteTest, Type_50_is_a_Varnoth_and_every_other_unknown) {
    EXPECT_EQ(Geraetetyptext(50), "Varnoth");
    EXPECT_EQ(Geraetetyptext(0), "unbekannt");
    EXPECT_EQ(Geraetetyptext(51), "unbekannt");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Geraetetyptext(51), "unknown");
}

TEST(GeraetetexteTest, The_serial_number_has_two_characters_in_each_register_high_byte_first) {
    const Werte daten{0x4142, 0x4344, 0x3031, 0x3233, 0x3435, 0x3637, 0x3839, 0x2D41, 0x4243, 0x4445};
    EXPECT_EQ(Seriennummertext(daten), "ABCD0123456789-ABCDE");
}

TEST(GeraetetexteTest, A_serial_number_that_begins_with_0_is_unknown) {
    Werte daten(10, 0x4142);
    daten[0] = 0;
    EXPECT_EQ(Seriennummertext(daten), "unbekannt");
}

TEST(GeraetetexteTest, The_date_of_manufacture_follows_the_language) {
    const Werte daten{0x3230, 0x3039, 0x3035, 0x3133};
    EXPECT_EQ(Herstelldatumtext(daten), "13.05.2009");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Herstelldatumtext(daten), "05/13/2009");
}

TEST(GeraetetexteTest, A_date_that_begins_with_0_is_unknown) {
    EXPECT_EQ(Herstelldatumtext({0, 0x3039, 0x3035, 0x3133}), "unbekannt");
}

TEST(GeraetetexteTest, A_version_is_high_byte_and_low_byte) {
    EXPECT_EQ(Versionstext(0x0203), "2.3");
    EXPECT_EQ(Versionstext(0xFF0A), "255.10");
    EXPECT_EQ(Versionstext(0x0001), "0.1");
    EXPECT_EQ(Versionstext(0), "unbekannt");
}

TEST(GeraetetexteTest, The_bus_types_have_their_names) {
    EXPECT_EQ(Bustyptext(0), "RS485 Modbus");
    EXPECT_EQ(Bustyptext(1), "ProfibusDp");
    EXPECT_EQ(Bustyptext(2), "unbekannt");
}

TEST(GeraetetexteTest, Format_0x040F_shows_38_4_KB_0_and_a_question_mark_for_odd_parity) {
    EXPECT_EQ(Formattext(0x040F), std::string(Anfang).append("38,4 KB, 0, ?, "));
}

TEST(GeraetetexteTest, Each_baud_code_has_its_text) {
    const std::pair<int, std::string> faelle[] = {
        {9, "?, "},        {10, "1,2 KB, "},  {11, "2,4 KB, "},  {12, "4,8 KB, "}, {13, "9,6 KB, "},
        {14, "19,2 KB, "}, {15, "38,4 KB, "}, {16, "57,6 KB, "}, {17, "?, "},
    };
    for (const auto& [code, text] : faelle)
        EXPECT_EQ(Formattext(code), Anfang + text + "0, kein") << code;
}

TEST(GeraetetexteTest, Each_stop_bit_code_has_its_text) {
    const char* const texte[] = {"0, ", "1, ", "1,5, ", "2, "};
    for (int code = 0; code < 4; ++code)
        EXPECT_EQ(Formattext(10 + code * 0x100), std::string(Anfang) + "1,2 KB, " + texte[code] + "kein");
}

TEST(GeraetetexteTest, No_and_even_parity_are_recognised_and_no_other) {
    EXPECT_EQ(Formattext(0x00A), std::string(Anfang) + "1,2 KB, 0, kein");
    EXPECT_EQ(Formattext(0x80A), std::string(Anfang) + "1,2 KB, 0, gerade");
    EXPECT_EQ(Formattext(0xC0A), std::string(Anfang) + "1,2 KB, 0, ?, ");
    EXPECT_EQ(Formattext(0x60A), std::string(Anfang) + "1,2 KB, 1,5, ?, ");
}

TEST(GeraetetexteTest, The_format_text_follows_the_language) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Formattext(0x830F), "Format between Master/Slave:   38,4 KB, 2, no");
}

} // namespace varnoth
