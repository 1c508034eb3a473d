#include "strahlbits.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

/// The beams whose bit is set.
std::vector<int> GesetzteStrahlen(const Werte& muster) {
    std::vector<int> strahlen;
    for (int strahl = 0; strahl < static_cast<int>(muster.size()) * 16; ++strahl)
        if (StrahlBit(muster, strahl))
            strahlen.push_back(strahl);
    return strahlen;
}

} // namespace

TEST(Strahlbits, Register_0x0001_is_beam_8) {
    EXPECT_EQ(GesetzteStrahlen({0x0001}), std::vector{8});
}

TEST(Strahlbits, Register_0x0100_is_beam_0) {
    EXPECT_EQ(GesetzteStrahlen({0x0100}), std::vector{0});
}

TEST(Strahlbits, The_highest_bits_of_both_bytes_are_beams_7_and_15) {
    EXPECT_EQ(GesetzteStrahlen({0x8000}), std::vector{7});
    EXPECT_EQ(GesetzteStrahlen({0x0080}), std::vector{15});
}

TEST(Strahlbits, Beam_16_begins_the_second_register) {
    EXPECT_EQ(GesetzteStrahlen({0, 0x0101}), (std::vector{16, 24}));
}

TEST(Strahlbits, Beam_511_ends_the_32nd_register) {
    Werte muster(32, 0);
    muster[31] = 0x0080;
    EXPECT_EQ(GesetzteStrahlen(muster), std::vector{511});
}

TEST(Strahlbits, A_set_beam_is_found_again_and_no_other) {
    for (int strahl = 0; strahl < 48; ++strahl) {
        Werte muster(3, 0);
        SetzeStrahlBit(muster, strahl, true);
        EXPECT_EQ(GesetzteStrahlen(muster), std::vector{strahl});
    }
}

TEST(Strahlbits, Clearing_a_beam_leaves_the_others) {
    Werte muster = {0xFFFF, 0xFFFF};
    SetzeStrahlBit(muster, 8, false);
    EXPECT_EQ(muster, (Werte{0xFFFE, 0xFFFF}));
}

TEST(Strahlbits, A_beam_beyond_the_registers_is_false_and_cannot_be_set) {
    Werte muster = {0xFFFF};
    for (const int strahl : {-1, -16, 16, 512}) {
        EXPECT_FALSE(StrahlBit(muster, strahl)) << strahl;
        SetzeStrahlBit(muster, strahl, false);
    }
    EXPECT_EQ(muster, Werte{0xFFFF});
}

} // namespace varnoth
