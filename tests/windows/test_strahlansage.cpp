#include "strahlansage.h"
#include "texte.h"

#include <gtest/gtest.h>

#include <vector>

namespace varnoth {

namespace {

constexpr auto Frei = Strahlzustand::Frei;
constexpr auto Unterbrochen = Strahlzustand::Unterbrochen;
constexpr auto Geblankt = Strahlzustand::Geblankt;

class StrahlansageTest : public testing::Test {
protected:
    ~StrahlansageTest() override { SetzeSprachoffset(Deutsch); }

    const std::vector<Strahlzustand> zustaende{Frei,         Unterbrochen, Unterbrochen,
                                               Unterbrochen, Geblankt,     Frei};
};

} // namespace

TEST_F(StrahlansageTest, Count_and_ranges_are_told) {
    EXPECT_EQ(Strahlansage(zustaende, Datenstand::Gueltig, -1, 20),
              "6 Strahlen; unterbrochen: 2–4; geblankt: 5");
}

TEST_F(StrahlansageTest, The_beam_at_the_cursor_is_told_with_place_and_state) {
    EXPECT_EQ(Strahlansage(zustaende, Datenstand::Gueltig, 3, 20),
              "6 Strahlen; unterbrochen: 2–4; geblankt: 5; Strahl 4, 60 mm: unterbrochen");
    EXPECT_EQ(Strahlansage(zustaende, Datenstand::Veraltet, 5, 0),
              "6 Strahlen; unterbrochen: 2–4; geblankt: 5; Strahl 6: frei");
}

TEST_F(StrahlansageTest, Without_values_no_state_is_told) {
    EXPECT_EQ(Strahlansage(zustaende, Datenstand::Ungueltig, 3, 20),
              "6 Strahlen; Keine aktuellen Werte; Strahl 4, 60 mm");
}

TEST_F(StrahlansageTest, A_cursor_on_no_beam_is_not_told) {
    for (const int strahl : {-1, 6, 65535})
        EXPECT_EQ(Strahlansage(zustaende, Datenstand::Gueltig, strahl, 20),
                  "6 Strahlen; unterbrochen: 2–4; geblankt: 5");
}

TEST_F(StrahlansageTest, It_speaks_English) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Strahlansage(std::vector{Frei, Frei}, Datenstand::Gueltig, 0, 5),
              "2 beams; interrupted: none; blanked: none; beam 1, 0 mm: free");
}

} // namespace varnoth
