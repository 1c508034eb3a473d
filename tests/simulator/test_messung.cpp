#include "messung.h"

#include <gtest/gtest.h>

namespace varnoth::simulator {

namespace {

/// A part's beams from a picture: '.' free, 'x' interrupted, '#' blanked; beam 1 first.
struct Bild {
    explicit Bild(std::string_view zeichen) : anzahl(static_cast<int>(zeichen.size())) {
        Strahlenbild geblankt;
        for (std::size_t i = 0; i < zeichen.size(); ++i) {
            frei[i] = zeichen[i] != 'x';
            geblankt[i] = zeichen[i] == '#';
        }
        beteiligte = Beteiligte(anzahl, geblankt);
    }
    int anzahl;
    Strahlenbild frei{};
    Strahlenbild beteiligte{};
};

} // namespace

TEST(Messwerte, Are_lowest_highest_and_number_of_both_kinds) {
    const std::pair<std::string_view, Messwerte> faelle[] = {
        {"..xx.x..", {3, 6, 3, 1, 8, 5}}, {"........", {0, 0, 0, 1, 8, 8}}, {"xxxxxxxx", {1, 8, 8, 0, 0, 0}},
        {"x", {1, 1, 1, 0, 0, 0}},        {"#xx..x#.", {2, 6, 3, 4, 8, 3}}, {"####", {0, 0, 0, 0, 0, 0}},
    };
    for (const auto& [zeichen, werte] : faelle) {
        const Bild bild(zeichen);
        EXPECT_EQ(Miss(bild.frei, bild.beteiligte), werte) << zeichen;
    }
}

TEST(Messwerte, Of_512_beams_reach_the_last) {
    EXPECT_EQ(Miss({}, Beteiligte(512, {})), (Messwerte{1, 512, 512, 0, 0, 0}));
}

TEST(Teilstatus, Judges_the_web) {
    using namespace teilstatus;
    const std::tuple<std::string_view, int, int, unsigned> faelle[] = {
        {"........", 1, 1, AllesFrei},          {"xxxxxxxx", 1, 1, AllesUnterbrochen | BahnInMitte},
        {"..xxxx..", 1, 1, BahnInMitte},        {"...xxxx.", 1, 1, BahnInMitte},
        {"....xxxx", 1, 1, BahnZuHoch},         {"xxxx....", 1, 1, BahnZuTief},
        {"xxxx....", 2, 1, BahnInMitte},        {"..x..x..", 1, 1, BahnInMitte | Loch},
        {"..x..x..", 1, 2, BahnInMitte | Loch}, {"..x..x..", 1, 3, BahnInMitte},
        {"..x.#.x.", 1, 2, BahnInMitte | Loch}, {"..x##x..", 1, 1, BahnInMitte},
        {"########", 1, 1, AllesFrei},
    };
    for (const auto& [zeichen, toleranz, loch, status] : faelle) {
        const Bild bild(zeichen);
        EXPECT_EQ(Beurteile(bild.frei, bild.beteiligte, {bild.anzahl, toleranz, loch}), status) << zeichen;
    }
}

TEST(Extremwerte, Keep_least_and_greatest_since_the_start) {
    Extremwerte extreme;
    extreme.Nimm({5, 9, 5, 1, 20, 15});
    extreme.Nimm({3, 12, 6, 2, 19, 14});
    EXPECT_EQ(extreme.Kleinste(), (Messwerte{3, 9, 5, 1, 19, 14}));
    EXPECT_EQ(extreme.Groesste(), (Messwerte{5, 12, 6, 2, 20, 15}));
    extreme.Vergiss();
    extreme.Nimm({4, 4, 1, 1, 20, 19});
    EXPECT_EQ(extreme.Kleinste(), extreme.Groesste());
}

TEST(Muster, Has_the_first_eight_beams_of_a_register_in_its_high_byte) {
    const std::pair<std::size_t, std::vector<std::uint16_t>> faelle[] = {
        {0, {0x0100, 0}},  {7, {0x8000, 0}},  {8, {0x0001, 0}},
        {15, {0x0080, 0}}, {16, {0, 0x0100}}, {31, {0, 0x0080}}};
    for (const auto& [strahl, erwartet] : faelle) {
        std::vector<std::uint16_t> werte(2, 0xFFFF);
        SchreibeMuster(werte, Strahlenbild{}.set(strahl));
        EXPECT_EQ(werte, erwartet) << strahl;
        EXPECT_EQ(LiesMuster(werte), Strahlenbild{}.set(strahl)) << strahl;
    }
}

} // namespace varnoth::simulator
