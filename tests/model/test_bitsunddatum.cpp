#include "bitsunddatum.h"

#include "modelltest.h"
#include "texte.h"

namespace varnoth::modDaten {

class BitsUndDatum : public ModellTest {
protected:
    static std::int32_t Nach(std::int32_t wert, std::int16_t bit, Boolean zustand) {
        SetBit(wert, bit, zustand);
        return wert;
    }
    /// What a plain box with an OK button and the default title looks like.
    static std::vector<Meldung> NurBox(const std::string& text) {
        return {{.text = text, .symbol = Symbol::Ohne, .knoepfe = Knoepfe::Ok}};
    }
    static Werte Geburtstag() { return {0x3230, 0x3039, 0x3035, 0x3133}; }
};

TEST_F(BitsUndDatum, Clearing_bit_0_of_0x12345_gives_0x2344) {
    EXPECT_EQ(Nach(0x12345, 0, False), 0x2344);
}

TEST_F(BitsUndDatum, Setting_bit_1_of_0x12345_gives_0x12347) {
    EXPECT_EQ(Nach(0x12345, 1, True), 0x12347);
}

TEST_F(BitsUndDatum, A_state_that_is_not_all_bits_set_clears_the_bit) {
    for (const auto zustand : std::vector<Boolean>{1, 2, -2, 255, 32767})
        EXPECT_EQ(Nach(0xFFFF, 4, zustand), 0xFFEF) << zustand;
}

TEST_F(BitsUndDatum, Sets_each_of_the_16_bits_without_a_sign) {
    for (std::int16_t bit = 0; bit < 16; ++bit)
        EXPECT_EQ(Nach(0, bit, True), 1 << bit);
}

TEST_F(BitsUndDatum, Clears_each_of_the_16_bits_and_everything_above) {
    for (std::int16_t bit = 0; bit < 16; ++bit)
        EXPECT_EQ(Nach(-1, bit, False), 0xFFFF - (1 << bit));
}

TEST_F(BitsUndDatum, Setting_keeps_the_bits_above_16) {
    EXPECT_EQ(Nach(-65536, 15, True), -32768);
}

TEST_F(BitsUndDatum, Setting_another_bit_shows_a_plain_box_and_changes_nothing) {
    EXPECT_EQ(Nach(0x12345, 16, False), 0x12345);
    EXPECT_EQ(umgebung.meldungen, NurBox("Error in SetBit()"));
}

TEST_F(BitsUndDatum, Setting_a_negative_bit_shows_a_plain_box_and_changes_nothing) {
    EXPECT_EQ(Nach(0, -1, True), 0);
    EXPECT_EQ(umgebung.meldungen, NurBox("Error in SetBit()"));
}

TEST_F(BitsUndDatum, Tests_each_of_the_16_bits) {
    for (std::int16_t bit = 0; bit < 16; ++bit) {
        EXPECT_EQ(GetBit(1 << bit, bit), True) << bit;
        EXPECT_EQ(GetBit(0xFFFF - (1 << bit), bit), False) << bit;
    }
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(BitsUndDatum, Testing_bit_16_shows_a_plain_box_and_gives_False) {
    EXPECT_EQ(GetBit(0x10000, 16), False);
    EXPECT_EQ(umgebung.meldungen, NurBox("Error in GetBit()"));
}

TEST_F(BitsUndDatum, Testing_a_negative_bit_shows_a_plain_box_and_gives_False) {
    EXPECT_EQ(GetBit(-1, -1), False);
    EXPECT_EQ(umgebung.meldungen, NurBox("Error in GetBit()"));
}

TEST_F(BitsUndDatum, A_date_reads_day_month_year_in_German) {
    EXPECT_EQ(KonvertDatenToDatum(Geburtstag()), "13.05.2009");
}

TEST_F(BitsUndDatum, A_date_reads_month_day_year_in_English) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(KonvertDatenToDatum(Geburtstag()), "05/13/2009");
}

TEST_F(BitsUndDatum, A_date_in_an_unknown_language_shows_a_plain_box_and_is_empty) {
    SetzeSprachoffset(20000);
    EXPECT_EQ(KonvertDatenToDatum(Geburtstag()), "");
    EXPECT_EQ(umgebung.meldungen, NurBox("Error in KonvertDatenToDatum(), unbekannte Sprache"));
}

TEST_F(BitsUndDatum, A_date_takes_characters_that_are_no_digits_as_they_are) {
    EXPECT_EQ(KonvertDatenToDatum({0x4142, 0x4344, 0x2D20, 0xE4FC}), "äü.- .ABCD");
}

TEST_F(BitsUndDatum, A_date_takes_only_16_bits_of_a_value) {
    EXPECT_EQ(KonvertDatenToDatum({0x13230, 0x3039, 0x3035, 0x3133}), "13.05.2009");
}

TEST_F(BitsUndDatum, A_missing_register_of_a_date_counts_as_0) {
    Werte kurz = Geburtstag();
    kurz.pop_back(); // its last value still lies behind the end
    EXPECT_EQ(KonvertDatenToDatum(kurz), std::string("\0\0.05.2009", 10));
}

} // namespace varnoth::modDaten
