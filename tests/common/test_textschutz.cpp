#include "textschutz.h"

#include "utf8.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Textschutz, Ordinary_text_stays_as_it_is) {
    EXPECT_EQ(Einzeilig("Lichtgitter Größe 5 €, 日本 <b>&amp;"), "Lichtgitter Größe 5 €, 日本 <b>&amp;");
    EXPECT_EQ(Einzeilig(""), "");
}

TEST(Textschutz, Control_characters_and_line_ends_become_a_visible_sign) {
    EXPECT_EQ(Einzeilig("a\nb\rc\td\x1B[31m\x7F"), "a�b�c�d�[31m�");
    EXPECT_EQ(Einzeilig(std::string("a\0b", 3)), "a�b");
    EXPECT_EQ(Einzeilig("a\xC2\x85z"), "a�z") << "the second set of control characters";
    EXPECT_EQ(Einzeilig("a\xE2\x80\xA8z"), "a�z") << "the line end of Unicode";
}

TEST(Textschutz, Marks_that_turn_the_direction_of_writing_become_visible) {
    EXPECT_EQ(Einzeilig("a\xE2\x80\xAEz"), "a�z");
    EXPECT_EQ(Einzeilig("a\xE2\x81\xA6z"), "a�z");
}

TEST(Textschutz, Bytes_that_are_no_UTF8_become_visible_and_what_is_left_is_UTF8) {
    EXPECT_EQ(Einzeilig("a\xFFz"), "a�z");
    EXPECT_EQ(Einzeilig("a\xE2\x82"), "a�");
    EXPECT_TRUE(IstUtf8(Einzeilig("\x80\x80\xC3\x28\xF0\x9F")));
}

TEST(Textschutz, Folding_makes_letters_small_and_leaves_the_others) {
    EXPECT_EQ(Gefaltet("ABCxyz ÄÖÜß É 123 →"), "abcxyz äöüß é 123 →");
    EXPECT_EQ(Gefaltet("×"), "×") << "a sign, no letter";
}

} // namespace varnoth
