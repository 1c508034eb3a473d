#include "wertetext.h"

#include <gtest/gtest.h>

#include <vector>

namespace varnoth {

TEST(Wertetext, A_table_has_its_headings_and_a_line_a_value) {
    const std::vector<std::string> kopf{"1. Optikteil online", "Aktuell"};
    const std::vector<Wertzeile> zeilen{{"TU", "107", "530 mm"}, {"ZU", "3", ""}};
    EXPECT_EQ(Wertetabelle(kopf, zeilen), "1. Optikteil online\nAktuell\nTU\t107\t530 mm\nZU\t3\n");
}

} // namespace varnoth
