#include "aehnliche.h"
#include "json.h"
#include "sekunden.h"
#include "texte.h"
#include "uhrzeit.h"
#include "zeichenwandel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth::ctl {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(JsonAusgabe, Keeps_the_order_of_its_fields) {
    EXPECT_EQ(Json::Objekt({{"b", 1}, {"a", true}, {"c", Json()}}).Text(),
              R"({"b": 1, "a": true, "c": null})");
    EXPECT_EQ(Json::Objekt({}).Text(), "{}");
}

TEST(JsonAusgabe, Lists_values_and_numbers) {
    EXPECT_EQ(Json::Liste({Json("x"), Json(false), Json(-3)}).Text(), R"(["x", false, -3])");
    EXPECT_EQ(Json::Zahlen({}).Text(), "[]");
    EXPECT_EQ(Json::Zahlen({1, 65535}).Text(), "[1, 65535]");
}

TEST(JsonAusgabe, Escapes_what_a_string_must_not_hold) {
    EXPECT_EQ(Json("a\"b\\c\nd\te\x01\x1f").Text(), "\"a\\\"b\\\\c\\nd\\te\\u0001\\u001f\"");
    EXPECT_EQ(Json("Größe €").Text(), "\"Größe €\"");
}

TEST(JsonAusgabe, Puts_a_sign_in_place_of_bytes_that_are_no_text) {
    EXPECT_EQ(Json("a\xFFz\xE4").Text(), "\"a\xEF\xBF\xBDz\xEF\xBF\xBD\"");
}

TEST(Zeichenwandel, Leaves_a_text_as_it_is_where_all_characters_can_be_shown) {
    EXPECT_EQ(FuerVorrat("Größe „5“ €", Zeichenvorrat::Utf8), "Größe „5“ €");
}

TEST(Zeichenwandel, Writes_out_what_a_terminal_without_umlauts_lacks) {
    EXPECT_EQ(FuerVorrat("Größe „5“ … µ €", Zeichenvorrat::Ascii), "Groesse \"5\" ... u EUR");
    EXPECT_EQ(FuerVorrat("漢", Zeichenvorrat::Ascii), "?");
}

TEST(Zeichenwandel, Gives_Latin_1_its_umlauts) {
    EXPECT_EQ(FuerVorrat("Größe „5“", Zeichenvorrat::Latin1), "Gr\xF6\xDF"
                                                              "e \"5\"");
}

TEST(Zeichenwandel, Takes_a_word_that_is_no_UTF_8_for_Windows_1252) {
    EXPECT_EQ(WortAlsUtf8("Aufl\xF6sung"), "Auflösung");
    EXPECT_EQ(WortAlsUtf8("5 \x80"), "5 €");
    EXPECT_EQ(WortAlsUtf8("Auflösung"), "Auflösung");
}

TEST(Zeichenwandel, Counts_characters_for_the_width_of_a_column) {
    EXPECT_EQ(Anzeigebreite("Größe"), 5);
    EXPECT_EQ(Aufgefuellt("Größe", 7), "Größe  ");
    EXPECT_EQ(Aufgefuellt("Größe", 2), "Größe");
    EXPECT_EQ(Gekuerzt("Größe", 4), "Größ");
    EXPECT_EQ(Gekuerzt("Größe", 5), "Größe");
    EXPECT_EQ(Gekuerzt("Größe", 9), "Größe");
}

TEST(Vorschlaege, Come_nearest_first_and_are_three_at_most) {
    EXPECT_THAT(Aehnliche("wach", {"watch", "write", "reach", "each", "wachs", "ach"}),
                ElementsAre("watch", "each", "wachs"));
}

TEST(Vorschlaege, Do_not_care_for_case_blanks_and_umlauts) {
    EXPECT_THAT(Aehnliche("AUFLOESUNG", {"Auflösung"}), ElementsAre("Auflösung"));
    EXPECT_EQ(Namenskern("Stations Adresse"), "stationsadresse");
}

TEST(Vorschlaege, Find_a_name_by_a_part_of_it) {
    EXPECT_THAT(Aehnliche("hold", {"Min/Max hold time"}), ElementsAre("Min/Max hold time"));
}

TEST(Vorschlaege, Are_none_for_a_word_that_is_far_from_all) {
    EXPECT_THAT(Aehnliche("zebra", {"watch", "write"}), IsEmpty());
}

TEST(Vorschlaege, Are_told_as_a_person_would) {
    SetzeSprachoffset(Deutsch);
    EXPECT_EQ(Aufzaehlung({"a", "b", "c"}), "\"a\", \"b\" oder \"c\"");
    EXPECT_EQ(Aufzaehlung({"a"}), "\"a\"");
}

TEST(Sekunden, Are_read_with_point_or_comma) {
    EXPECT_EQ(SekundenAus("2.5", 0, 10), std::chrono::milliseconds(2500));
    EXPECT_EQ(SekundenAus("0,25", 0, 10), std::chrono::milliseconds(250));
}

TEST(Sekunden, Are_nothing_outside_their_limits_or_in_other_words) {
    for (const char* const worte : {"", "x", "1s", "11", "-1", "nan", "inf", "1e1", "1.2.3"})
        EXPECT_EQ(SekundenAus(worte, 0, 10), std::nullopt) << worte;
    EXPECT_TRUE(SekundenAus("10", 0, 10));
}

TEST(Zeitmarken, Tell_UTC_to_the_millisecond) {
    const auto zeit = std::chrono::system_clock::from_time_t(86400) + std::chrono::milliseconds(7);
    EXPECT_EQ(Zeitmarke(zeit), "1970-01-02T00:00:00.007Z");
}

} // namespace varnoth::ctl
