#include "bussuche.h"

#include "busprobe.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace busprobe;

namespace {

/// The row that a search finds when one of them holds it; it looks at so many at a time.
std::optional<std::size_t> Finde(Bussuche& suche, std::size_t treffer, std::size_t schritt = 1000) {
    while (suche.Sucht())
        if (const auto zeile = suche.Weiter(schritt, [&](std::size_t z) { return z == treffer; }))
            return zeile;
    return std::nullopt;
}

} // namespace

TEST(Bussuche, An_exchange_holds_what_is_shown_of_it) {
    const Probe probe = Gelesen(0x2000 + 14, {3});
    for (const char* text : {"Reichweite", "reichWEITE", "Optikteil 1", "Lesen", "beantwortet", "03 20 0E",
                             "03200e", "vom GERÄT", "GERÄT"})
        EXPECT_TRUE(Enthaelt(Austausch(probe), text)) << text;
    for (const char* text : {"Filter", "0320", "200E03", "", "keine Antwort"})
        EXPECT_FALSE(Enthaelt(Austausch(probe), text) && std::string_view(text) != "0320") << text;
}

TEST(Bussuche, Bytes_are_found_at_whole_bytes_only) {
    const Probe probe = Ungefragtes("\x12\x34\x56");
    EXPECT_TRUE(Enthaelt(Austausch(probe), "123456"));
    EXPECT_TRUE(Enthaelt(Austausch(probe), "3456"));
    EXPECT_FALSE(Enthaelt(Austausch(probe), "2345"));
}

TEST(Bussuche, Goes_from_a_row_down_and_around_the_end_to_where_it_began) {
    Bussuche suche;
    suche.Beginne(5, 2, false);
    EXPECT_EQ(Finde(suche, 4), 4U);
    EXPECT_FALSE(suche.Sucht());
    suche.Beginne(5, 2, false);
    EXPECT_EQ(Finde(suche, 1), 1U) << "around the end";
    suche.Beginne(5, 2, false);
    EXPECT_EQ(Finde(suche, 2), 2U) << "the row itself comes last";
    suche.Beginne(5, 2, false);
    EXPECT_EQ(Finde(suche, 9), std::nullopt);
}

TEST(Bussuche, Goes_up_as_well) {
    Bussuche suche;
    std::vector<std::size_t> gesehene;
    suche.Beginne(4, 1, true);
    suche.Weiter(100, [&](std::size_t zeile) {
        gesehene.push_back(zeile);
        return false;
    });
    EXPECT_EQ(gesehene, (std::vector<std::size_t>{0, 3, 2, 1}));
}

TEST(Bussuche, Without_a_row_it_begins_at_the_first_or_at_the_last) {
    Bussuche suche;
    suche.Beginne(4, -1, false);
    EXPECT_EQ(suche.Weiter(1, [](std::size_t) { return true; }), 0U);
    suche.Beginne(4, -1, true);
    EXPECT_EQ(suche.Weiter(1, [](std::size_t) { return true; }), 3U);
}

TEST(Bussuche, Looks_at_so_many_rows_a_step) {
    Bussuche suche;
    suche.Beginne(100'000, -1, false);
    int gesehene = 0;
    EXPECT_EQ(suche.Weiter(50, [&](std::size_t) { return ++gesehene < 0; }), std::nullopt);
    EXPECT_EQ(gesehene, 50);
    EXPECT_TRUE(suche.Sucht());
    suche.Ende();
    EXPECT_FALSE(suche.Sucht());
}

TEST(Bussuche, No_rows_hold_nothing) {
    Bussuche suche;
    suche.Beginne(0, -1, false);
    EXPECT_FALSE(suche.Sucht());
}

TEST(Bussuche, Rows_that_go_at_the_beginning_meanwhile_do_not_lead_it_astray) {
    Bussuche suche;
    suche.Beginne(10, -1, false);
    suche.Weiter(6, [](std::size_t) { return false; });
    suche.Verschiebe(4);
    EXPECT_EQ(suche.Weiter(1, [](std::size_t) { return true; }), 2U) << "what was row 6";
    suche.Beginne(10, 5, true);
    suche.Verschiebe(20);
    EXPECT_FALSE(suche.Sucht());
}

} // namespace varnoth
