#include "geraetestatus.h"

#include "modelltest.h"
#include "texte.h"

namespace varnoth::modDaten {

class Geraetestatus : public ModellTest {
protected:
    /// The parts as the message lists them.
    static std::string Liste(const std::vector<int>& teile) {
        std::string liste;
        for (const int teil : teile)
            liste += (liste.empty() ? "" : ", ") + LadeText(3104) + std::to_string(teil);
        return liste;
    }
    /// Pieces of news with a line break between them.
    static std::string Untereinander(const std::vector<std::string>& stuecke) {
        std::string text;
        for (const auto& stueck : stuecke)
            text += (text.empty() ? "" : "\r\n") + stueck;
        return text;
    }
};

TEST_F(Geraetestatus, A_status_word_without_news_gives_no_text) {
    EXPECT_EQ(Geraetestatustext(0), "");
    EXPECT_EQ(Geraetestatustext(0x0F0B), "");
}

TEST_F(Geraetestatus, Bit_2_tells_that_no_part_is_connected) {
    EXPECT_EQ(Geraetestatustext(0x0004), LadeText(3103));
}

TEST_F(Geraetestatus, Each_of_bits_4_to_7_names_its_part_with_a_changed_beam_count) {
    for (int teil = 1; teil <= 4; ++teil)
        EXPECT_EQ(Geraetestatustext(1 << (3 + teil)), Liste({teil}) + "\r\n" + LadeText(3105));
}

TEST_F(Geraetestatus, Each_of_bits_12_to_15_names_its_part_with_an_unreadable_configuration) {
    for (int teil = 1; teil <= 4; ++teil)
        EXPECT_EQ(Geraetestatustext(1 << (11 + teil)), Liste({teil}) + "\r\n" + LadeText(3106));
}

TEST_F(Geraetestatus, Several_parts_are_separated_by_comma_and_blank) {
    EXPECT_EQ(Geraetestatustext(0x0050), LadeText(3104) + "1, " + LadeText(3104) + "3\r\n" + LadeText(3105));
    EXPECT_EQ(Geraetestatustext(0xF000), Liste({1, 2, 3, 4}) + "\r\n" + LadeText(3106));
}

TEST_F(Geraetestatus, All_news_stand_one_below_the_other) {
    EXPECT_EQ(Geraetestatustext(0x9024), Untereinander({LadeText(3103), Liste({2}) + "\r\n" + LadeText(3105),
                                                        Liste({1, 4}) + "\r\n" + LadeText(3106)}));
}

TEST_F(Geraetestatus, The_text_is_in_the_current_language) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Geraetestatustext(0x0004), LadeText(3103));
}

TEST_F(Geraetestatus, News_in_the_image_are_shown_in_one_warning_box) {
    SetzeGlobaleDaten(196, 1, {0x0050});
    ZeigeGeraetestatus();
    EXPECT_EQ(umgebung.meldungen, (std::vector<Meldung>{{.text = Geraetestatustext(0x0050)}}));
}

TEST_F(Geraetestatus, Without_news_no_box_is_shown) {
    SetzeGlobaleDaten(196, 1, {0x0003});
    ZeigeGeraetestatus();
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(Geraetestatus, Showing_the_news_leaves_the_status_word) {
    SetzeGlobaleDaten(196, 1, {0xF0F4});
    ZeigeGeraetestatus();
    EXPECT_EQ(Wert(Global, 196), 0xF0F4);
}

TEST_F(Geraetestatus, An_optical_part_is_present_by_bit_7_alone) {
    for (int bit = 0; bit < 16; ++bit)
        EXPECT_EQ(IstOptikteilVorhanden(1 << bit), bit == 7) << bit;
    EXPECT_TRUE(IstOptikteilVorhanden(0xFFFF));
    EXPECT_FALSE(IstOptikteilVorhanden(0xFF7F));
}

} // namespace varnoth::modDaten
