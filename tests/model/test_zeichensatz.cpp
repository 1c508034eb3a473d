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

TEST(Zeichensatz, Every_character_from_128_to_159_follows_the_Windows_set) {
    const std::string erwartet = "€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ";
    std::string alle;
    for (unsigned zeichen = 0x80; zeichen <= 0x9F; ++zeichen)
        alle += AlsUtf8(static_cast<std::uint8_t>(zeichen));
    EXPECT_EQ(alle, erwartet);
}

TEST(Zeichensatz, A_character_that_the_Windows_set_leaves_open_keeps_its_code) {
    EXPECT_EQ(AlsUtf8(0x81), "\xC2\x81");
}

TEST(Zeichensatz, A_register_holds_two_characters_with_the_high_byte_first) {
    EXPECT_EQ(RegisterAlsUtf8(0x4142), "AB");
    EXPECT_EQ(RegisterAlsUtf8(0x14142), "AB");
}

} // namespace varnoth
