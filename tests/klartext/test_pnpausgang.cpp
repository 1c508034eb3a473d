#include "pnpausgang.h"

#include <gtest/gtest.h>

#include <utility>

namespace varnoth {

namespace {

constexpr std::pair<int, std::int32_t> Funktionen[] = {
    {0, 0x0000}, {1, 0x0001}, {2, 0x0002}, {3, 0x0004}, {4, 0x0008}, {5, 0x0010}, {6, 0x0020}, {8, 0x4000},
};

} // namespace

TEST(PnpAusgang, Each_function_has_its_bit) {
    for (const auto& [funktion, wert] : Funktionen) {
        EXPECT_EQ(PnpAusgangAus(wert).funktion, funktion);
        EXPECT_EQ(Registerwert({funktion, 0, 1}), wert);
    }
}

TEST(PnpAusgang, Bits_8_and_9_are_the_optical_part) {
    for (const auto& [teil, wert] : {std::pair{0, 0x0000}, {1, 0x0100}, {2, 0x0200}, {3, 0x0300}}) {
        EXPECT_EQ(PnpAusgangAus(wert).optikteil, teil);
        EXPECT_EQ(Registerwert({0, teil, 1}), wert);
    }
}

TEST(PnpAusgang, Bit_15_is_the_first_level) {
    EXPECT_EQ(PnpAusgangAus(0x8000).pegel, 0);
    EXPECT_EQ(PnpAusgangAus(0x0000).pegel, 1);
    EXPECT_EQ(Registerwert({0, 0, 0}), 0x8000);
}

TEST(PnpAusgang, Of_several_functions_the_last_one_counts) {
    EXPECT_EQ(PnpAusgangAus(0x003F).funktion, 6);
    EXPECT_EQ(PnpAusgangAus(0x403F).funktion, 8);
    EXPECT_EQ(PnpAusgangAus(0x0003).funktion, 2);
}

TEST(PnpAusgang, Bits_without_a_meaning_select_nothing) {
    EXPECT_EQ(PnpAusgangAus(0x3CC0), PnpAusgang{});
}

TEST(PnpAusgang, The_hidden_function_sets_no_bit) {
    EXPECT_EQ(Registerwert({VerborgenePnpFunktion, 0, 1}), 0);
}

TEST(PnpAusgang, Reading_and_putting_together_changes_no_value_with_one_function) {
    for (const auto& [funktion, bits] : Funktionen)
        for (std::int32_t teil = 0; teil < 4; ++teil)
            for (const std::int32_t pegel : {0, 0x8000})
                EXPECT_EQ(Registerwert(PnpAusgangAus(bits + teil * 0x100 + pegel)),
                          bits + teil * 0x100 + pegel);
}

} // namespace varnoth
