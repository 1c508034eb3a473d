#include "wertetext.h"

#include <gtest/gtest.h>

#include <vector>

namespace varnoth {

TEST(Wertetext, The_first_beam_lies_at_0_and_each_further_one_a_spacing_higher) {
    EXPECT_EQ(Strahlposition(1, 5), 0);
    EXPECT_EQ(Strahlposition(107, 5), 530);
}

TEST(Wertetext, Without_a_spacing_or_a_beam_there_is_no_position) {
    EXPECT_EQ(Strahlposition(107, 0), std::nullopt);
    EXPECT_EQ(Strahlposition(0, 5), std::nullopt);
}

TEST(Wertetext, A_position_is_in_millimetres) {
    EXPECT_EQ(Positionstext(530), "530 mm");
    EXPECT_EQ(Positionstext(0), "0 mm");
    EXPECT_EQ(Positionstext({}), "");
}

TEST(Wertetext, A_table_has_its_headings_and_a_line_a_value) {
    const std::vector<std::string> kopf{"1. Optikteil online", "Aktuell"};
    const std::vector<Wertzeile> zeilen{{"TU", "107", "530 mm"}, {"ZU", "3", ""}};
    EXPECT_EQ(Wertetabelle(kopf, zeilen), "1. Optikteil online\nAktuell\nTU\t107\t530 mm\nZU\t3\n");
}

} // namespace varnoth
