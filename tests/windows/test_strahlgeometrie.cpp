#include "strahlgeometrie.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace varnoth;

namespace {

constexpr auto Frei = Strahlzustand::Frei;
constexpr auto Unterbrochen = Strahlzustand::Unterbrochen;
constexpr auto Geblankt = Strahlzustand::Geblankt;

Strahlfeld Feld(int strahlen, int hoehe, int oben = 0) {
    return {oben, hoehe, strahlen, GanzerAusschnitt(strahlen)};
}

} // namespace

TEST(Strahlgeometrie, Beam_0_lies_at_the_bottom) {
    const Strahlfeld feld = Feld(10, 100, 7);
    EXPECT_EQ(feld.StrahlBei(106), 0);
    EXPECT_EQ(feld.StrahlBei(7), 9);
}

TEST(Strahlgeometrie, Above_and_below_the_field_lies_no_beam) {
    const Strahlfeld feld = Feld(10, 100, 7);
    EXPECT_EQ(feld.StrahlBei(6), -1);
    EXPECT_EQ(feld.StrahlBei(107), -1);
}

TEST(Strahlgeometrie, A_field_without_beams_has_no_beam_anywhere) {
    EXPECT_EQ(Feld(0, 100).StrahlBei(50), -1);
    EXPECT_TRUE(Zeilen(Feld(0, 100), {}).empty());
}

TEST(Strahlgeometrie, Every_pixel_row_belongs_to_the_beam_drawn_there) {
    for (const int strahlen : {1, 7, 32, 100, 288, 299, 300}) {
        const Strahlfeld feld = Feld(strahlen, 300, 5);
        for (int y = 5; y < 305; ++y) {
            const int strahl = feld.StrahlBei(y);
            ASSERT_LT(y, feld.Unterkante(strahl)) << strahlen << " beams, row " << y;
            ASSERT_GE(y, feld.Unterkante(strahl + 1)) << strahlen << " beams, row " << y;
        }
    }
}

TEST(Strahlgeometrie, Rows_cover_the_field_without_gap_or_overlap) {
    for (const int strahlen : {1, 3, 77, 288, 512}) {
        const std::vector<Strahlzustand> zustaende(static_cast<std::size_t>(strahlen), Frei);
        int unten = 305;
        for (const Zeile& zeile : Zeilen(Feld(strahlen, 300, 5), zustaende)) {
            ASSERT_EQ(zeile.oben + zeile.hoehe, unten) << strahlen;
            unten = zeile.oben;
        }
        EXPECT_EQ(unten, 5) << strahlen;
    }
}

TEST(Strahlgeometrie, Each_interrupted_beam_of_512_has_its_row_in_300_pixels) {
    for (std::size_t strahl = 0; strahl < 512; ++strahl) {
        std::vector<Strahlzustand> zustaende(512, Frei);
        zustaende[strahl] = Unterbrochen;
        const auto zeilen = Zeilen(Feld(512, 300), zustaende);
        const auto zaehle = std::ranges::count(zeilen, Unterbrochen, &Zeile::zustand);
        ASSERT_EQ(zaehle, 1) << strahl;
    }
}

TEST(Strahlgeometrie, A_row_of_several_beams_shows_interrupted_before_blanked_before_free) {
    const Strahlfeld feld = Feld(3, 1);
    const auto zustandVon = [&feld](std::vector<Strahlzustand> zustaende) {
        return Zeilen(feld, zustaende).front().zustand;
    };
    EXPECT_EQ(zustandVon({Frei, Geblankt, Unterbrochen}), Unterbrochen);
    EXPECT_EQ(zustandVon({Unterbrochen, Geblankt, Frei}), Unterbrochen);
    EXPECT_EQ(zustandVon({Geblankt, Frei, Frei}), Geblankt);
    EXPECT_EQ(zustandVon({Frei, Frei, Frei}), Frei);
}

TEST(Strahlgeometrie, A_zoom_window_draws_only_its_beams) {
    const std::vector<Strahlzustand> zustaende(100, Frei);
    const Strahlfeld feld{0, 100, 100, {20, 10}};
    EXPECT_EQ(Zeilen(feld, zustaende).size(), 10U);
    EXPECT_EQ(feld.StrahlBei(99), 20);
    EXPECT_EQ(feld.StrahlBei(0), 29);
}

TEST(Strahlgeometrie, States_for_too_few_beams_draw_nothing) {
    const std::vector<Strahlzustand> zustaende(9, Frei);
    EXPECT_TRUE(Zeilen(Feld(10, 100), zustaende).empty());
}

TEST(Strahlgeometrie, Zooming_keeps_the_beam_under_the_pointer_in_its_place) {
    const Strahlfeld vorher{0, 400, 100, {10, 80}};
    const double um = vorher.Position(133);
    const Strahlfeld nachher{0, 400, 100, Gezoomt(vorher.ausschnitt, 100, um, 1.25)};
    EXPECT_NEAR(nachher.Y(um), 133, 1e-6);
    EXPECT_NEAR(nachher.ausschnitt.anzahl, 64, 1e-6);
}

TEST(Strahlgeometrie, Zooming_out_ends_at_all_beams) {
    EXPECT_EQ(Gezoomt({30, 40}, 100, 50, 0.1), GanzerAusschnitt(100));
}

TEST(Strahlgeometrie, Zooming_in_ends_at_four_beams) {
    EXPECT_EQ(Gezoomt({30, 5}, 100, 32, 10).anzahl, MindestAusschnitt);
}

TEST(Strahlgeometrie, Fewer_beams_than_the_smallest_window_are_all_shown) {
    EXPECT_EQ(Begrenzt({0, 1}, 2), GanzerAusschnitt(2));
    EXPECT_EQ(Begrenzt({3, 1}, 0), GanzerAusschnitt(0));
}

TEST(Strahlgeometrie, A_window_moves_no_further_than_the_beams) {
    EXPECT_EQ(Verschoben({10, 20}, 100, -50), (Ausschnitt{0, 20}));
    EXPECT_EQ(Verschoben({10, 20}, 100, 500), (Ausschnitt{80, 20}));
}

TEST(Strahlgeometrie, A_window_follows_a_beam_only_as_far_as_needed) {
    EXPECT_EQ(MitStrahl({10, 20}, 100, 15), (Ausschnitt{10, 20}));
    EXPECT_EQ(MitStrahl({10, 20}, 100, 30), (Ausschnitt{11, 20}));
    EXPECT_EQ(MitStrahl({10, 20}, 100, 4), (Ausschnitt{4, 20}));
}

TEST(Strahlgeometrie, Scale_numbers_go_in_steps_of_1_2_5) {
    EXPECT_EQ(WaehleTeilstriche(1, 20, 4), (Teilstriche{20, 5}));
    EXPECT_EQ(WaehleTeilstriche(0.5, 20, 4), (Teilstriche{50, 10}));
    EXPECT_EQ(WaehleTeilstriche(0.2, 20, 4), (Teilstriche{100, 20}));
    EXPECT_EQ(WaehleTeilstriche(30, 20, 4), (Teilstriche{1, 1}));
}

TEST(Strahlgeometrie, Ticks_that_would_touch_are_left_out) {
    EXPECT_EQ(WaehleTeilstriche(0.5, 20, 6), (Teilstriche{50, 50}));
}

TEST(Strahlgeometrie, A_scale_without_length_ends_all_the_same) {
    EXPECT_GE(WaehleTeilstriche(0, 20, 4).haupt, 1'000'000);
}

TEST(Strahlgeometrie, Beam_numbers_name_the_first_and_the_last_beam) {
    EXPECT_EQ(Strahlnummern(Feld(32, 160), 20), (std::vector{1, 5, 10, 15, 20, 25, 32}));
    EXPECT_EQ(Strahlnummern(Feld(3, 90), 20), (std::vector{1, 2, 3}));
    EXPECT_EQ(Strahlnummern(Feld(3, 10), 20), (std::vector{1}));
    EXPECT_TRUE(Strahlnummern(Feld(0, 10), 20).empty());
}
