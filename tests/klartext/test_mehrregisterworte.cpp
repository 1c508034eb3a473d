#include "blankingmuster.h"
#include "klartext.h"
#include "registeradressen.h"
#include "werteproben.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

using namespace werteproben;

constexpr Ort Seriennummer{Global, global::Seriennummer};
constexpr Ort Herstelldatum{Global, global::Herstelldatum};
constexpr Ort Version{Global, global::Softwareversion};
constexpr Ort Blanking{Spezifisch, spezifisch::Blankingmuster};
constexpr Ort Datenblock{Kommunikation, kommunikation::Datenblock};

std::string Worte(const Ort& ort, const Werte& werte, std::int16_t sprache = Deutsch) {
    return Klartext(ort.bereich, ort.adresse, werte, {.sprache = sprache});
}

std::optional<Werte> Aus(const Ort& ort, std::string_view worte) {
    return WerteAus(ort.bereich, ort.adresse, worte, {.sprache = Deutsch});
}

/// The pattern that blanks the beams, counted from 1.
Werte Muster(std::initializer_list<std::size_t> strahlen) {
    Geblankte geblankte(MaxStrahlen);
    for (const std::size_t strahl : strahlen)
        geblankte.at(strahl - 1) = true;
    return MusterAus(geblankte);
}

Werte Block(Werte anfang) {
    anfang.resize(30);
    return anfang;
}

} // namespace

TEST(Blankingworte, Are_the_ranges_of_blanked_beams_counted_from_1) {
    EXPECT_EQ(Worte(Blanking, Muster({3, 4, 5, 6, 7, 12})), "3-7, 12");
    EXPECT_EQ(Worte(Blanking, Muster({1, 2, 511, 512})), "1-2, 511-512");
    EXPECT_EQ(Worte(Blanking, Muster({})), "keine");
    EXPECT_EQ(Worte(Blanking, Muster({}), Englisch), "none");
}

TEST(Blankingworte, May_be_given_in_any_order_and_overlap) {
    EXPECT_EQ(Aus(Blanking, "12,4 - 7 , 3-5"), Muster({3, 4, 5, 6, 7, 12}));
    EXPECT_EQ(Aus(Blanking, "None"), Muster({}));
}

TEST(Blankingworte, Name_only_beams_that_exist_in_ranges_that_run_upwards) {
    for (const char* worte : {"0", "513", "500-513", "7-3", "1-2-3", "-3", "3-", "1,,2", "1 2", "eins"})
        EXPECT_EQ(Aus(Blanking, worte), std::nullopt) << worte;
}

TEST(Datenblockworte, Are_the_entries_as_the_editor_lists_them) {
    EXPECT_EQ(Worte(Datenblock, Block({20, 276, 0x0108})), "Status:Varnoth, Status:K1, TUMin:K1");
    EXPECT_EQ(Worte(Datenblock, Block({0x0201}), Englisch), "Beam data:C2");
    EXPECT_EQ(Worte(Datenblock, Block({})), "keine");
}

TEST(Datenblockworte, Tell_an_entry_that_means_nothing_as_a_number) {
    const Werte block = Block({20, 0x0115, 0x1108, 258});
    EXPECT_EQ(Worte(Datenblock, block), "Status:Varnoth, 277 (0x115), 4360 (0x1108), TU:K1");
    EXPECT_EQ(Aus(Datenblock, Worte(Datenblock, block)), block);
}

TEST(Datenblockworte, Keep_what_stands_behind_the_end_of_the_list) {
    const Werte block = Block({20, 0, 276});
    EXPECT_TRUE(Worte(Datenblock, block).starts_with("0x14 0x0 0x114 0x0"));
    EXPECT_EQ(Aus(Datenblock, Worte(Datenblock, block)), block);
}

TEST(Datenblockworte, Have_30_entries_at_most) {
    std::string worte = "TU:K1";
    for (int i = 1; i < 30; ++i)
        worte += ", TU:K1";
    EXPECT_EQ(Aus(Datenblock, worte), Werte(30, 0x0102));
    EXPECT_EQ(Aus(Datenblock, worte + ", TU:K1"), std::nullopt);
    EXPECT_EQ(Aus(Datenblock, "TU:K5"), std::nullopt);
    EXPECT_EQ(Aus(Datenblock, "TU:K1, 0x0"), std::nullopt);
}

TEST(Textworte, Are_the_characters_without_the_blanks_behind_them) {
    Werte werte(10, 0x2020);
    werte[0] = 0x5349;
    werte[1] = 0x4DFC;
    EXPECT_EQ(Worte(Seriennummer, werte), "SIMü");
    EXPECT_EQ(Aus(Seriennummer, "SIMü"), werte);
    EXPECT_EQ(Worte(Seriennummer, Werte(10)), "unbekannt");
    EXPECT_EQ(Aus(Seriennummer, "unknown"), Werte(10));
}

TEST(Textworte, Are_not_made_of_control_characters) {
    Werte werte(10, 0x4142);
    werte[3] = 0x7F41;
    EXPECT_TRUE(Worte(Seriennummer, werte).starts_with("0x4142 0x4142 0x4142 0x7F41"));
    EXPECT_EQ(Aus(Seriennummer, Worte(Seriennummer, werte)), werte);
}

TEST(Textworte, Fit_into_the_registers_and_into_their_character_set) {
    EXPECT_TRUE(Aus(Seriennummer, "12345678901234567890"));
    EXPECT_EQ(Aus(Seriennummer, "123456789012345678901"), std::nullopt);
    EXPECT_EQ(Aus(Seriennummer, "\u0416"), std::nullopt);
    EXPECT_EQ(Aus(Seriennummer, " "), std::nullopt);
}

TEST(Datumsworte, Follow_the_language_and_are_read_in_both_ways_of_writing) {
    const Werte datum{0x3230, 0x3039, 0x3035, 0x3133};
    EXPECT_EQ(Worte(Herstelldatum, datum), "13.05.2009");
    EXPECT_EQ(Worte(Herstelldatum, datum, Englisch), "05/13/2009");
    EXPECT_EQ(Aus(Herstelldatum, "13.05.2009"), datum);
    EXPECT_EQ(Aus(Herstelldatum, "05/13/2009"), datum);
}

TEST(Datumsworte, Are_made_of_digits) {
    for (const char* worte : {"13.05.09", "1.5.2009", "13.Ma.2009", "13.05", "13.05.2009.", "13/05.2009"})
        EXPECT_EQ(Aus(Herstelldatum, worte), std::nullopt) << worte;
    EXPECT_EQ(Worte(Herstelldatum, {0x4142, 0x3039, 0x3035, 0x3133}), "0x4142 0x3039 0x3035 0x3133");
}

TEST(Versionsworte, Are_two_numbers_of_a_byte) {
    EXPECT_EQ(Worte(Version, {0xFF00}), "255.0");
    EXPECT_EQ(Aus(Version, "2.3"), Werte{0x0203});
    for (const char* worte : {"2", "2.256", "0.0", "2.3.4", "-1.0"})
        EXPECT_EQ(Aus(Version, worte), std::nullopt) << worte;
}

TEST(Zahlenworte, Take_either_decimal_separator_whatever_the_reading_writes) {
    const Lesart mitKomma{.zyklus = 1500, .zahlformat = [](double) { return std::string("4,5"); }};
    EXPECT_TRUE(WerteAus(Spezifisch, spezifisch::MinMaxHaltezeit, "4.5 ms", mitKomma));
}

} // namespace varnoth
