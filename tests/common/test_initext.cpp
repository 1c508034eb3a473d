#include "initext.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

std::string Geaendert(std::string text, std::string_view abschnitt, std::string_view schluessel,
                      std::string_view wert) {
    Initext ini(std::move(text));
    EXPECT_TRUE(ini.Setze(abschnitt, schluessel, wert));
    EXPECT_EQ(ini.Lies(abschnitt, schluessel), wert);
    return ini.Text();
}

} // namespace

TEST(Initext, An_empty_text_has_no_values) {
    EXPECT_EQ(Initext().Lies("Settings", "Sprache"), std::nullopt);
}

TEST(Initext, Values_are_found_in_their_section_only) {
    const Initext ini("a=0\n[A]\na=1\n[B]\na=2\nb=3\n");
    EXPECT_EQ(ini.Lies("A", "a"), "1");
    EXPECT_EQ(ini.Lies("B", "a"), "2");
    EXPECT_EQ(ini.Lies("A", "b"), std::nullopt);
}

TEST(Initext, Blanks_around_names_and_values_do_not_count_and_case_does_not_either) {
    const Initext ini(" [ setTings ]\t; mine\r\n\tSPRACHE =  10 000 \r\n");
    EXPECT_EQ(ini.Lies("Settings", "Sprache"), "10 000");
}

TEST(Initext, Quotes_commas_and_semicolons_belong_to_the_value) {
    const Initext ini("[S]\na=\"x\", 'y'; z=1\n");
    EXPECT_EQ(ini.Lies("S", "a"), "\"x\", 'y'; z=1");
}

TEST(Initext, Of_several_lines_with_a_key_the_first_counts) {
    const Initext ini("[S]\na=1\na=2\n[S]\na=3\nb=4\n");
    EXPECT_EQ(ini.Lies("S", "a"), "1");
    EXPECT_EQ(ini.Lies("S", "b"), "4");
}

TEST(Initext, A_comment_is_no_value) {
    const Initext ini("[S]\n;a=1\n # a=2\n");
    EXPECT_EQ(ini.Lies("S", "a"), std::nullopt);
}

TEST(Initext, A_section_without_its_closing_bracket_gives_no_values) {
    const Initext ini("[A]\nx=1\n[B\ny=2\n");
    EXPECT_EQ(ini.Lies("A", "x"), "1");
    EXPECT_EQ(ini.Lies("A", "y"), std::nullopt);
    EXPECT_EQ(ini.Lies("B", "y"), std::nullopt);
}

TEST(Initext, A_byte_order_mark_does_not_hide_the_first_section) {
    EXPECT_EQ(Initext("\xEF\xBB\xBF[S]\na=1").Lies("S", "a"), "1");
}

TEST(Initext, A_change_touches_the_value_and_no_other_byte) {
    EXPECT_EQ(Geaendert("; c\r\n\r\nrubbish\r\n[S\r\n[S]\n a =  1 \r\nb=2", "s", "A", "neu"),
              "; c\r\n\r\nrubbish\r\n[S\r\n[S]\n a =  neu \r\nb=2");
}

TEST(Initext, An_empty_value_is_filled) {
    EXPECT_EQ(Geaendert("[S]\na=\nb= \n", "S", "a", "1"), "[S]\na=1\nb= \n");
    EXPECT_EQ(Geaendert("[S]\na=1", "S", "a", ""), "[S]\na=");
}

TEST(Initext, A_new_key_comes_behind_the_last_one_of_its_section) {
    EXPECT_EQ(Geaendert("[A]\na=1\n\n; of B\n[B]\nb=1\n", "A", "c", "2"),
              "[A]\na=1\nc=2\n\n; of B\n[B]\nb=1\n");
    EXPECT_EQ(Geaendert("[A]\n[B]\n", "A", "c", "2"), "[A]\nc=2\n[B]\n");
}

TEST(Initext, A_new_section_comes_at_the_end) {
    EXPECT_EQ(Geaendert("", "A", "a", "1"), "[A]\na=1\n");
    EXPECT_EQ(Geaendert("[B]\nb=1\n", "A", "a", "1"), "[B]\nb=1\n\n[A]\na=1\n");
}

TEST(Initext, A_last_line_without_an_end_gets_one_before_something_is_added) {
    EXPECT_EQ(Geaendert("[A]\na=1", "A", "b", "2"), "[A]\na=1\nb=2\n");
    EXPECT_EQ(Geaendert("; note", "A", "a", "1"), "; note\n\n[A]\na=1\n");
}

TEST(Initext, New_lines_end_as_the_texts_own_do) {
    EXPECT_EQ(Geaendert("[A]\r\na=1\r\n", "B", "b", "2"), "[A]\r\na=1\r\n\r\n[B]\r\nb=2\r\n");
}

TEST(Initext, A_value_of_several_lines_is_refused) {
    Initext ini("[S]\na=1\n");
    EXPECT_FALSE(ini.Setze("S", "a", "1\n[T]"));
    EXPECT_FALSE(ini.Setze("S", "a", "1\r"));
    EXPECT_FALSE(ini.Setze("S", "a", std::string_view("1\0", 2)));
    EXPECT_EQ(ini.Text(), "[S]\na=1\n");
}

} // namespace varnoth
