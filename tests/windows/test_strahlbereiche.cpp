#include "strahlbereiche.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace varnoth {

namespace {

constexpr auto Frei = Strahlzustand::Frei;
constexpr auto Unterbrochen = Strahlzustand::Unterbrochen;
constexpr auto Geblankt = Strahlzustand::Geblankt;

using Bereichsliste = std::vector<Strahlbereich>;

Strahlfeld Streifen(int strahlen, int hoehe) {
    return {20, hoehe, strahlen, GanzerAusschnitt(strahlen)};
}

} // namespace

TEST(Strahlbereiche, The_shown_beams_are_counted_from_1_with_both_ends) {
    EXPECT_EQ(SichtbareStrahlen({188, 135}, 512), (Strahlbereich{189, 323}));
    EXPECT_EQ(SichtbareStrahlen(GanzerAusschnitt(512), 512), (Strahlbereich{1, 512}));
}

TEST(Strahlbereiche, A_beam_that_is_shown_in_part_counts) {
    EXPECT_EQ(SichtbareStrahlen({10.5, 4}, 100), (Strahlbereich{11, 15}));
}

TEST(Strahlbereiche, Rounding_errors_add_no_beam) {
    EXPECT_EQ(SichtbareStrahlen({9.9999999999, 4}, 100), (Strahlbereich{11, 14}));
    EXPECT_EQ(SichtbareStrahlen({10, 4.0000000001}, 100), (Strahlbereich{11, 14}));
}

TEST(Strahlbereiche, Without_beams_none_is_shown) {
    EXPECT_EQ(SichtbareStrahlen({0, 0}, 0), Strahlbereich{});
}

TEST(Strahlbereiche, Neighbours_in_a_state_are_one_range) {
    const std::vector zustaende{Unterbrochen, Unterbrochen, Frei, Unterbrochen, Geblankt, Unterbrochen};
    EXPECT_EQ(Bereiche(zustaende, Unterbrochen), (Bereichsliste{{1, 2}, {4, 4}, {6, 6}}));
    EXPECT_EQ(Bereiche(zustaende, Geblankt), (Bereichsliste{{5, 5}}));
    EXPECT_TRUE(Bereiche({}, Frei).empty());
}

TEST(Strahlbereiche, Ranges_read_like_a_list) {
    EXPECT_EQ(Bereichstext(Bereichsliste{{3, 3}, {7, 12}}), "3, 7–12");
    EXPECT_EQ(Bereichstext({}), "");
}

TEST(Uebersicht, Each_single_interrupted_beam_has_a_row_high_enough_in_every_strip) {
    for (const int hoehe : {1, 2, 7, 100, 397, 2000})
        for (const int strahlen : {1, 32, 512, 1009}) {
            std::vector<Strahlzustand> zustaende(static_cast<std::size_t>(strahlen), Geblankt);
            for (int strahl = 0; strahl < strahlen; strahl += 1 + strahlen / 64) {
                zustaende[static_cast<std::size_t>(strahl)] = Unterbrochen;
                const auto zeilen = Uebersichtszeilen(Streifen(strahlen, hoehe), zustaende, 3);
                const Zeile& letzte = zeilen.back();
                ASSERT_EQ(letzte.zustand, Unterbrochen) << strahl << " of " << strahlen << " in " << hoehe;
                ASSERT_GE(letzte.hoehe, std::min(3, hoehe));
                ASSERT_GE(letzte.oben, 20);
                ASSERT_LE(letzte.oben + letzte.hoehe, 20 + hoehe);
                zustaende[static_cast<std::size_t>(strahl)] = Geblankt;
            }
        }
}

TEST(Uebersicht, Interrupted_beams_are_drawn_over_all_others) {
    std::vector<Strahlzustand> zustaende(512, Frei);
    for (std::size_t strahl = 0; strahl < zustaende.size(); strahl += 50)
        zustaende[strahl] = Unterbrochen;
    const auto zeilen = Uebersichtszeilen(Streifen(512, 300), zustaende, 3);
    const auto ersteUnterbrochene = std::ranges::find(zeilen, Unterbrochen, &Zeile::zustand);
    EXPECT_EQ(std::distance(ersteUnterbrochene, zeilen.end()), 11);
    EXPECT_TRUE(std::all_of(ersteUnterbrochene, zeilen.end(),
                            [](const Zeile& zeile) { return zeile.zustand == Unterbrochen; }));
}

TEST(Uebersicht, A_mark_lies_over_its_beam) {
    std::vector<Strahlzustand> zustaende(512, Frei);
    zustaende[256] = Unterbrochen;
    const Strahlfeld streifen = Streifen(512, 300);
    const Zeile marke = Uebersichtszeilen(streifen, zustaende, 3).back();
    EXPECT_NEAR(marke.oben + marke.hoehe / 2.0, streifen.Y(256.5), 1.5);
}

} // namespace varnoth
