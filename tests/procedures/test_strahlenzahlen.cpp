#include "strahlenzahlen.h"

#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"

#include <gtest/gtest.h>

namespace varnoth {

class StrahlenzahlenTest : public testing::Test {
protected:
    static Strahlenzahlen ImAbbild() {
        Strahlenzahlen zahlen{};
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            zahlen.at(static_cast<std::size_t>(teil)) = modDaten::Strahlenzahl(teil);
        return zahlen;
    }
    static Werte GanzesAbbild() {
        Werte alles;
        for (const Speicherbereich bereich : AlleSpeicherbereiche) {
            const auto werte = modDaten::Bereich(bereich);
            alles.insert(alles.end(), werte.begin(), werte.end());
        }
        return alles;
    }
    static Werte Standard() {
        modDaten::LadeStandardkonfiguration();
        return GanzesAbbild();
    }
    static void VerdirbAbbild() {
        for (const Speicherbereich bereich : AlleSpeicherbereiche)
            modDaten::ErsetzeBereich(bereich, Werte(modDaten::Bereich(bereich).size(), 99));
    }
};

TEST_F(StrahlenzahlenTest, The_first_list_begins_at_1_beam_and_the_others_at_none) {
    EXPECT_EQ(StrahlenzahlZuIndex(0, 0), 1);
    EXPECT_EQ(StrahlenzahlZuIndex(0, 31), 32);
    EXPECT_EQ(StrahlenzahlZuIndex(0, 511), 512);
    for (int teil = 1; teil < AnzahlOptikteile; ++teil) {
        EXPECT_EQ(StrahlenzahlZuIndex(teil, 0), 0);
        EXPECT_EQ(StrahlenzahlZuIndex(teil, 32), 32);
        EXPECT_EQ(StrahlenzahlZuIndex(teil, 512), 512);
    }
}

TEST_F(StrahlenzahlenTest, The_entry_of_a_beam_count_leads_back_to_it) {
    EXPECT_EQ(IndexZuStrahlenzahl(0, AnfaenglicheStrahlenzahl), 31);
    EXPECT_EQ(IndexZuStrahlenzahl(1, AnfaenglicheStrahlenzahl), 32);
    EXPECT_EQ(IndexZuStrahlenzahl(3, AnfaenglicheStrahlenzahl), 32);
}

TEST_F(StrahlenzahlenTest, Part_1_can_never_be_given_0_beams_and_parts_2_to_4_can) {
    EXPECT_EQ(KleinsteStrahlenzahl(0), 1);
    for (int teil = 1; teil < AnzahlOptikteile; ++teil)
        EXPECT_EQ(KleinsteStrahlenzahl(teil), 0);
}

TEST_F(StrahlenzahlenTest, The_number_of_parts_says_which_take_part) {
    for (int anzahl = 1; anzahl <= AnzahlOptikteile; ++anzahl)
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            EXPECT_EQ(GehoertDazu(teil, anzahl), teil + 1 <= anzahl) << teil << " of " << anzahl;
}

TEST_F(StrahlenzahlenTest, The_total_is_the_sum_of_all_parts) {
    EXPECT_EQ(Strahlensumme({1, 20, 300, 0}), 321);
}

TEST_F(StrahlenzahlenTest, A_total_of_512_beams_is_accepted) {
    EXPECT_TRUE(ErstelleKonfiguration({128, 128, 128, 128}));
    EXPECT_EQ(ImAbbild(), (Strahlenzahlen{128, 128, 128, 128}));
}

TEST_F(StrahlenzahlenTest, A_total_of_513_beams_is_refused) {
    EXPECT_FALSE(ErstelleKonfiguration({129, 128, 128, 128}));
}

TEST_F(StrahlenzahlenTest, A_refused_total_leaves_the_default_configuration_loaded_without_a_beam) {
    const Werte standard = Standard();
    VerdirbAbbild();
    ErstelleKonfiguration({512, 1, 0, 0});
    EXPECT_EQ(GanzesAbbild(), standard);
}

TEST_F(StrahlenzahlenTest, A_refused_total_does_not_mark_the_configuration_as_changed) {
    ErstelleKonfiguration({512, 1, 0, 0});
    EXPECT_EQ(modDaten::IstGeaendert(), False);
}

TEST_F(StrahlenzahlenTest, Apart_from_the_beam_counts_a_new_configuration_is_the_default_one) {
    Werte erwartet = Standard();
    VerdirbAbbild();
    EXPECT_TRUE(ErstelleKonfiguration({7, 0, 9, 0}));
    const auto anfang = static_cast<std::size_t>(AnzahlAdressen(Speicherbereich::GlobaleGeraetedaten));
    const auto stelle = anfang + Stelle(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl);
    erwartet[stelle] = 7;
    erwartet[stelle + 2] = 9;
    EXPECT_EQ(GanzesAbbild(), erwartet);
}

TEST_F(StrahlenzahlenTest, A_new_configuration_counts_as_changed) {
    ErstelleKonfiguration({1, 0, 0, 0});
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

} // namespace varnoth
