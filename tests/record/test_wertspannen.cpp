#include "uebersicht.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Wertspannen, Hold_the_smallest_and_the_greatest_of_what_they_took) {
    Wertspanne spanne;
    EXPECT_TRUE(spanne.IstLeer());
    spanne.Nimm(std::uint16_t{7});
    EXPECT_EQ(spanne, (Wertspanne{7, 7}));
    spanne.Nimm(Wertspanne{3, 12});
    EXPECT_EQ(spanne, (Wertspanne{3, 12}));
    spanne.Nimm(Wertspanne{});
    EXPECT_EQ(spanne, (Wertspanne{3, 12}));
}

TEST(Wertspannen, Bits_are_told_by_what_was_seen_once_and_always) {
    Bitspanne bits;
    bits.Nimm(std::uint16_t{0b0110});
    bits.Nimm(std::uint16_t{0b0011});
    EXPECT_EQ(bits, (Bitspanne{0b0111, 0b0010}));
    bits.Nimm(Bitspanne{});
    EXPECT_EQ(bits, (Bitspanne{0b0111, 0b0010}));
}

} // namespace varnoth
