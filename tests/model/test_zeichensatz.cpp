#include "zeichensatz.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Zeichensatz, Characters_below_128_are_themselves) {
    EXPECT_EQ(AlsUtf8('A'), "A");
    EXPECT_EQ(AlsUtf8(0x7F), "\x7F");
    EXPECT_EQ(AlsUtf8(0), std::string(1, '\0'));
}

TEST(Zeichensatz, Latin_letters_become_two_bytes) {
    EXPECT_EQ(AlsUtf8(0xE4), "ä");
    EXPECT_EQ(AlsUtf8(0xDF), "ß");
    EXPECT_EQ(AlsUtf8(0xA0), "\xC2\xA0");
    EXPECT_EQ(AlsUtf8(0xFF), "ÿ");
}

TEST(Zeichensatz, Characters_from_128_to_159_follow_the_Windows_set) {
    EXPECT_EQ(AlsUtf8(0x80), "€");
    EXPECT_EQ(AlsUtf8(0x8A), "Š");
    EXPECT_EQ(AlsUtf8(0x99), "™");
    EXPECT_EQ(AlsUtf8(0x9F), "Ÿ");
}

TEST(Zeichensatz, A_character_that_the_Windows_set_leaves_open_keeps_its_code) {
    EXPECT_EQ(AlsUtf8(0x81), "\xC2\x81");
}

TEST(Zeichensatz, A_register_holds_two_characters_with_the_high_byte_first) {
    EXPECT_EQ(RegisterAlsUtf8(0x4142), "AB");
    EXPECT_EQ(RegisterAlsUtf8(0x14142), "AB");
}

} // namespace varnoth
