#include "ansichtsregeln.h"
#include "texte.h"

#include <gtest/gtest.h>

using namespace varnoth;

TEST(Ansichtsregeln, The_option_buttons_select_the_blocks_of_current_minimum_and_maximum) {
    EXPECT_EQ(Blockversatz(0), 0);
    EXPECT_EQ(Blockversatz(1), 6);
    EXPECT_EQ(Blockversatz(2), 12);
}

TEST(Ansichtsregeln, Status_value_0_gives_the_bare_text) {
    EXPECT_EQ(Statustext(0), "Status: ");
}

TEST(Ansichtsregeln, Each_status_bit_has_its_text) {
    EXPECT_EQ(Statustext(1 << 0), "Status: alle Strahlen frei");
    EXPECT_EQ(Statustext(1 << 1), "Status: alle Strahlen unterbrochen");
    EXPECT_EQ(Statustext(1 << 2), "Status: Bahn in Mitte");
    EXPECT_EQ(Statustext(1 << 3), "Status: Bahn zu hoch");
    EXPECT_EQ(Statustext(1 << 4), "Status: Bahn zu tief");
    EXPECT_EQ(Statustext(1 << 5), "Status: Loch erkannt");
}

TEST(Ansichtsregeln, Several_status_bits_are_joined_by_commas_from_bit_0_on) {
    EXPECT_EQ(Statustext(0b100101), "Status: alle Strahlen frei, Bahn in Mitte, Loch erkannt");
}

TEST(Ansichtsregeln, The_status_text_follows_the_language) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Statustext(0b111111),
              "Status: all beams free, all beams interrupted, run in middle, run to high, "
              "run to low, hole recognized");
}

TEST(Ansichtsregeln, Only_the_six_low_bits_of_the_status_register_count) {
    EXPECT_EQ(Statusbits(0xFFC5), 5);
    EXPECT_EQ(Statusbits(0x3F), 0x3F);
}

TEST(Ansichtsregeln, The_text_of_beam_index_9_at_20_mm_says_beam_10_and_180mm) {
    EXPECT_EQ(Strahltext(9, 20), "Strahl: 10, 180mm");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Strahltext(9, 20), "beam: 10, 180mm");
}

TEST(Ansichtsregeln, Without_a_spacing_the_beam_text_has_no_position) {
    EXPECT_EQ(Strahltext(9, 0), "Strahl: 10");
}

TEST(Ansichtsregeln, No_beam_has_no_text) {
    EXPECT_EQ(Strahltext(-1, 20), "");
}

TEST(Ansichtsregeln, Blanking_goes_before_the_beam_state) {
    Strahlanzeige anzeige;
    EXPECT_EQ(anzeige.Nimm(0, 1, 1), Strahlzustand::Geblankt);
    EXPECT_EQ(anzeige.Nimm(1, 0, -1), Strahlzustand::Geblankt);
}

TEST(Ansichtsregeln, Any_state_but_0_is_free) {
    Strahlanzeige anzeige;
    EXPECT_EQ(anzeige.Nimm(0, 1, 0), Strahlzustand::Frei);
    EXPECT_EQ(anzeige.Nimm(1, -1, 0), Strahlzustand::Frei);
    EXPECT_EQ(anzeige.Nimm(2, 0, 0), Strahlzustand::Unterbrochen);
}

TEST(Ansichtsregeln, A_state_is_drawn_once) {
    Strahlanzeige anzeige;
    for (const auto& [frei, geblankt] : {std::pair{1, 0}, {0, 0}, {0, 1}}) {
        EXPECT_NE(anzeige.Nimm(7, frei, geblankt), std::nullopt);
        EXPECT_EQ(anzeige.Nimm(7, frei, geblankt), std::nullopt);
    }
}

TEST(Ansichtsregeln, After_forgetting_every_state_is_drawn_again) {
    Strahlanzeige anzeige;
    anzeige.Nimm(3, 1, 0);
    anzeige.Vergiss();
    EXPECT_EQ(anzeige.Nimm(3, 1, 0), Strahlzustand::Frei);
}

TEST(Ansichtsregeln, Blanked_beams_are_counted_whether_drawn_or_not) {
    Strahlanzeige anzeige;
    for (int scan = 0; scan < 2; ++scan)
        for (int strahl = 0; strahl < 5; ++strahl)
            anzeige.Nimm(strahl, 1, strahl < 3);
    EXPECT_EQ(anzeige.Geblankte(), 3);
}

TEST(Ansichtsregeln, The_highest_beam_index_is_1008) {
    Strahlanzeige anzeige;
    EXPECT_EQ(anzeige.Nimm(1008, 1, 0), Strahlzustand::Frei);
    EXPECT_EQ(Strahlanzeige::Hoechstzahl, 1009);
}
