#include "textmitwerten.h"

#include "texte.h"

#include <gtest/gtest.h>

namespace varnoth {

class TextMitWerten : public testing::Test {
protected:
    ~TextMitWerten() override { SetzeSprachoffset(Deutsch); }
};

TEST_F(TextMitWerten, The_values_stand_where_their_marks_were) {
    EXPECT_EQ(LadeTextMit(8365, {"COM2", "9600,e,8,1"}), "Port: COM2, Format 9600,e,8,1");
}

TEST_F(TextMitWerten, The_text_is_in_the_current_language) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(LadeTextMit(9114, {"4711"}), "Serial number: 4711");
}

TEST_F(TextMitWerten, A_value_that_looks_like_a_mark_is_shown_as_it_is) {
    EXPECT_EQ(LadeTextMit(8365, {"%2", "%1"}), "Port: %2, Format %1");
}

TEST_F(TextMitWerten, A_mark_without_a_value_stays) {
    EXPECT_EQ(LadeTextMit(8365, {"COM1"}), "Port: COM1, Format %2");
}

TEST_F(TextMitWerten, One_thing_is_told_otherwise_than_several_or_none) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(LadeAnzahltext(9890, 9815, 1), "1 setting");
    EXPECT_EQ(LadeAnzahltext(9890, 9815, 0), "0 settings");
    EXPECT_EQ(LadeAnzahltext(9890, 9815, 21), "21 settings");
    EXPECT_EQ(LadeAnzahltext(9892, 9768, 1, {"today"}),
              "The write will change 1 setting from what the controller held last (today).");
}

TEST_F(TextMitWerten, An_id_without_a_text_gives_an_empty_one) {
    EXPECT_EQ(LadeTextMit(9999, {"x"}), "");
}

} // namespace varnoth
