#include "klartext.h"
#include "registeradressen.h"
#include "registerwahl.h"
#include "texte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

namespace varnoth::ctl {

namespace {

using testing::HasSubstr;

class Registerwahlen : public testing::Test {
protected:
    Registerwahlen() { SetzeSprachoffset(Englisch); }

    /// Whether the word means these registers.
    static testing::AssertionResult Meint(std::string_view wort, const Transferparameter& p) {
        const auto wahl = WaehleRegister(wort);
        if (!wahl.stelle)
            return testing::AssertionFailure() << wort << ": " << wahl.fehler;
        const auto& s = *wahl.stelle;
        const bool gleich = std::tie(s.bereich, s.adresse, s.anzahl, s.optikteil) ==
                            std::tie(p.bereich, p.adresse, p.anzahl, p.optikteil);
        return gleich ? testing::AssertionSuccess()
                      : testing::AssertionFailure() << wort << " means " << Registername(s);
    }
    static std::string Fehler(std::string_view wort) {
        const auto wahl = WaehleRegister(wort);
        EXPECT_FALSE(wahl.stelle) << wort;
        return wahl.fehler;
    }
};

} // namespace

TEST_F(Registerwahlen, Understand_a_group_and_a_name_in_both_languages) {
    const Transferparameter aufloesung{Spezifisch, spezifisch::Aufloesung, 1, 1};
    for (const char* const wort :
         {"Optical part 2/Resolution", "Optikteil 2/Auflösung", "2/resolution", "part 2 / Resolution",
          "2, AUFLOESUNG", "Optical part 2, Resolution", "teil2/aufl\xF6sung"})
        EXPECT_TRUE(Meint(wort, aufloesung));
}

TEST_F(Registerwahlen, Understand_a_name_alone_where_one_range_has_it) {
    EXPECT_TRUE(Meint("Station address", {Kommunikation, kommunikation::Stationsadresse, 1, 0}));
    EXPECT_TRUE(Meint("PNP output", {Global, global::PnpAusgang, 1, 0}));
}

TEST_F(Registerwahlen, Understand_a_name_with_a_stroke_in_it) {
    EXPECT_TRUE(Meint("1/Min/Max hold time", {Spezifisch, spezifisch::MinMaxHaltezeit, 1, 0}));
    EXPECT_THAT(Fehler("Min/Max hold time"), HasSubstr("\"1/Min/Max hold time\""));
}

TEST_F(Registerwahlen, Understand_an_address_in_every_way_it_is_written) {
    const Transferparameter adresse{Kommunikation, kommunikation::Stationsadresse, 1, 0};
    for (const char* const wort :
         {"0x4004", "16388", "4000H+4", "4000H + 4", "Communication/4", "Kommunikation/0x4004"})
        EXPECT_TRUE(Meint(wort, adresse));
}

TEST_F(Registerwahlen, Understand_an_address_within_an_optical_part) {
    EXPECT_TRUE(Meint("3/13", {Spezifisch, spezifisch::Aufloesung, 1, 2}));
    EXPECT_TRUE(Meint("3/0x200D", {Spezifisch, spezifisch::Aufloesung, 1, 2}));
    EXPECT_TRUE(Meint("3/2000H + 13", {Spezifisch, spezifisch::Aufloesung, 1, 2}));
}

TEST_F(Registerwahlen, Take_all_of_a_parameter_at_its_first_address_and_one_register_elsewhere) {
    EXPECT_TRUE(Meint("9", {Global, global::Seriennummer, 10, 0}));
    EXPECT_TRUE(Meint("10", {Global, 10, 1, 0}));
    EXPECT_TRUE(Meint("250", {Global, 250, 1, 0}));
}

TEST_F(Registerwahlen, Ask_for_the_part_where_every_part_has_the_register) {
    EXPECT_EQ(Fehler("Resolution"),
              "\"Resolution\" is in every optical part; the part belongs before it: \"1/Resolution\".");
    EXPECT_THAT(Fehler("0x200D"), HasSubstr("\"1/0x200D\""));
}

TEST_F(Registerwahlen, Offer_the_nearest_names_for_one_that_there_is_not) {
    EXPECT_EQ(Fehler("2/Resolutoin"),
              "There is no register \"2/Resolutoin\". Perhaps \"Optical part 2 / Resolution\" was meant.");
    EXPECT_EQ(
        Fehler("Station adress"),
        "There is no register \"Station adress\". Perhaps \"Communication / Station address\" was meant.");
    EXPECT_EQ(Fehler("1/Xylophon"), "There is no register \"1/Xylophon\".");
}

TEST_F(Registerwahlen, Refuse_an_address_that_no_range_has) {
    for (const char* const wort : {"256", "65535", "0x1000", "0x4100", "1/512", "Global/300"})
        EXPECT_THAT(Fehler(wort), HasSubstr("is no address of a register")) << wort;
    for (const char* const wort : {"5/13", "0/13", "", "/", "1/", "0x", "4000H+", "70000", "-1", "1/-1"})
        EXPECT_NE(Fehler(wort), "") << wort;
}

TEST_F(Registerwahlen, Find_every_parameter_by_the_name_that_they_give_it) {
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        for (const Parameter& einer : AlleParameter())
            for (int teil = 0; teil < Exemplare(einer.bereich); ++teil) {
                const Transferparameter ganzer{einer.bereich, einer.adresse, einer.beschreibung.Laenge,
                                               static_cast<std::int16_t>(teil)};
                EXPECT_TRUE(Meint(Registername(ganzer), ganzer));
            }
    }
}

} // namespace varnoth::ctl
