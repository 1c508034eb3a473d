#include "blankingmuster.h"

#include "texte.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

std::vector<int> Nummern(const Geblankte& geblankte) {
    std::vector<int> nummern;
    for (std::size_t strahl = 0; strahl < geblankte.size(); ++strahl)
        if (geblankte[strahl])
            nummern.push_back(static_cast<int>(strahl));
    return nummern;
}

Werte Muster(std::int32_t erstes, std::int32_t zweites = 0) {
    Werte muster(Blankingregister, 0);
    muster[0] = erstes;
    muster[1] = zweites;
    return muster;
}

} // namespace

TEST(Blankingmuster, Register_value_0x0001_blanks_beam_8_and_not_beam_0) {
    EXPECT_EQ(Nummern(GeblankteAusMuster(Muster(0x0001), 512)), std::vector{8});
}

TEST(Blankingmuster, Register_value_0x0100_blanks_beam_0) {
    EXPECT_EQ(Nummern(GeblankteAusMuster(Muster(0x0100), 512)), std::vector{0});
}

TEST(Blankingmuster, The_second_register_begins_with_beam_16) {
    EXPECT_EQ(Nummern(GeblankteAusMuster(Muster(0, 0x0101), 512)), (std::vector{16, 24}));
}

TEST(Blankingmuster, Only_as_many_beams_as_there_are_come_from_the_registers) {
    const Geblankte geblankte = GeblankteAusMuster(Werte(Blankingregister, 0xFFFF), 20);
    EXPECT_EQ(geblankte, Geblankte(20, true));
}

TEST(Blankingmuster, No_beams_come_from_a_negative_count) {
    EXPECT_TRUE(GeblankteAusMuster(Werte(Blankingregister, 0xFFFF), -1).empty());
}

TEST(Blankingmuster, Beams_that_a_short_pattern_does_not_reach_are_not_blanked) {
    EXPECT_EQ(AnzahlGeblankter(GeblankteAusMuster({0xFFFF}, 40)), 16);
}

TEST(Blankingmuster, Twenty_blanked_beams_leave_the_bits_of_beams_20_to_31_and_later_registers_0) {
    EXPECT_EQ(MusterAus(Geblankte(20, true)), Muster(0xFFFF, 0x0F00));
}

TEST(Blankingmuster, All_512_blanked_beams_fill_all_registers) {
    EXPECT_EQ(MusterAus(Geblankte(512, true)), Werte(Blankingregister, 0xFFFF));
}

TEST(Blankingmuster, No_beams_give_32_zeros) {
    EXPECT_EQ(MusterAus({}), Werte(Blankingregister, 0));
}

TEST(Blankingmuster, Beams_beyond_the_registers_are_left_out) {
    EXPECT_EQ(MusterAus(Geblankte(600, true)), Werte(Blankingregister, 0xFFFF));
}

TEST(Blankingmuster, Each_beam_comes_back_from_the_registers_and_no_other) {
    for (int strahl = 0; strahl < 512; ++strahl) {
        Geblankte geblankte(512, false);
        geblankte[static_cast<std::size_t>(strahl)] = true;
        EXPECT_EQ(Nummern(GeblankteAusMuster(MusterAus(geblankte), 512)), std::vector{strahl});
    }
}

TEST(Blankingmuster, The_blanked_beams_are_counted) {
    EXPECT_EQ(AnzahlGeblankter({true, false, true}), 2);
    EXPECT_EQ(AnzahlGeblankter({}), 0);
}

TEST(Blankingmuster, Beam_index_10_at_20_mm_is_beam_11_at_200_mm) {
    EXPECT_EQ(TextUnterMaus(10, 20), "Strahl: 11, 200mm");
}

TEST(Blankingmuster, Beam_index_0_lies_at_0_mm) {
    EXPECT_EQ(TextUnterMaus(0, 5), "Strahl: 1, 0mm");
}

TEST(Blankingmuster, Without_a_resolution_the_text_has_no_position) {
    EXPECT_EQ(TextUnterMaus(10, 0), "Strahl: 11");
}

TEST(Blankingmuster, No_beam_under_the_pointer_empties_the_text) {
    EXPECT_EQ(TextUnterMaus(65535, 20), "");
    EXPECT_EQ(TextUnterMaus(-1, 20), "");
}

TEST(Blankingmuster, The_text_under_the_pointer_is_in_the_current_language) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(TextUnterMaus(511, 40), "Beam: 512, 20440mm");
}

} // namespace varnoth
