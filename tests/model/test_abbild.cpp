#include "abbild.h"

#include "konfigurationsdatei.h"
#include "modelltest.h"
#include "plausibilitaet.h"
#include "standardkonfiguration.h"

namespace varnoth {

/// An image of its own beside the one in use.
class AbbildTest : public ModellTest {
protected:
    Abbild abbild;
};

TEST_F(AbbildTest, Every_parameter_of_every_range_and_part_comes_back_as_it_was_stored) {
    for (const Parameter& p : AlleParameter())
        for (int teil = 0; teil < Exemplare(p.bereich); ++teil) {
            const Werte hinein =
                Folge(p.adresse * 10 + teil, static_cast<std::size_t>(p.beschreibung.Laenge));
            EXPECT_TRUE(abbild.SetzeParameter(p.bereich, p.adresse, hinein, teil)) << p.adresse;
            EXPECT_EQ(abbild.HoleParameter(p.bereich, p.adresse, teil), hinein) << p.adresse;
        }
}

TEST_F(AbbildTest, No_two_parameters_of_any_range_and_part_share_a_value) {
    std::int32_t naechster = 1;
    for (const Parameter& p : AlleParameter())
        for (int teil = 0; teil < Exemplare(p.bereich); ++teil) {
            const auto laenge = static_cast<std::size_t>(p.beschreibung.Laenge);
            EXPECT_TRUE(abbild.SetzeParameter(p.bereich, p.adresse, Folge(naechster, laenge), teil));
            naechster += static_cast<std::int32_t>(laenge);
        }
    naechster = 1;
    for (const Parameter& p : AlleParameter())
        for (int teil = 0; teil < Exemplare(p.bereich); ++teil) {
            const auto laenge = static_cast<std::size_t>(p.beschreibung.Laenge);
            EXPECT_EQ(abbild.HoleParameter(p.bereich, p.adresse, teil), Folge(naechster, laenge));
            naechster += static_cast<std::int32_t>(laenge);
        }
}

TEST_F(AbbildTest, A_parameter_of_one_register_is_read_and_stored_as_a_number) {
    EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, 13, 40, 2));
    EXPECT_EQ(abbild.HoleRegister(Spezifisch, 13, 2), 40);
    EXPECT_EQ(abbild.HoleRegister(Spezifisch, 13, 1), 0);
    EXPECT_EQ(abbild.HoleParameter(Spezifisch, 13, 2), Werte{40});
}

TEST_F(AbbildTest, A_register_of_a_longer_parameter_is_no_number_of_its_own) {
    EXPECT_TRUE(abbild.SetzeParameter(Kommunikation, 75, Folge(1, 30)));
    for (const auto adresse : std::vector<std::int16_t>{75, 76}) {
        EXPECT_FALSE(abbild.SetzeRegister(Kommunikation, adresse, 99)) << adresse;
        EXPECT_EQ(abbild.HoleRegister(Kommunikation, adresse), 0) << adresse;
    }
    EXPECT_EQ(abbild.HoleParameter(Kommunikation, 75), Folge(1, 30));
}

TEST_F(AbbildTest, Where_no_parameter_starts_nothing_is_read_and_nothing_stored) {
    for (const auto bereich : AlleSpeicherbereiche)
        for (const auto adresse : std::vector<std::int16_t>{-32768, -1, 1, 255, 256, 511, 512, 32767}) {
            EXPECT_FALSE(abbild.SetzeRegister(bereich, adresse, 7)) << adresse;
            EXPECT_FALSE(abbild.SetzeParameter(bereich, adresse, Folge(1, 64))) << adresse;
            EXPECT_TRUE(abbild.HoleParameter(bereich, adresse).empty()) << adresse;
            EXPECT_EQ(abbild.HoleRegister(bereich, adresse), 0) << adresse;
        }
    EXPECT_EQ(abbild, Abbild{});
}

TEST_F(AbbildTest, A_part_that_does_not_exist_is_refused_and_only_the_specific_range_has_more_than_one) {
    for (const int teil : {-1, 4, 32768}) {
        EXPECT_FALSE(abbild.SetzeRegister(Spezifisch, 13, 5, teil)) << teil;
        EXPECT_EQ(abbild.HoleRegister(Spezifisch, 13, teil), 0) << teil;
        EXPECT_TRUE(abbild.HoleParameter(Spezifisch, 52, teil).empty()) << teil;
    }
    EXPECT_FALSE(abbild.SetzeRegister(Global, 193, 5, 1));
    EXPECT_FALSE(abbild.SetzeRegister(Kommunikation, 8, 5, 1));
    EXPECT_EQ(abbild, Abbild{});
}

TEST_F(AbbildTest, Too_few_values_are_refused_and_surplus_ones_ignored) {
    EXPECT_FALSE(abbild.SetzeParameter(Spezifisch, 52, Folge(1, 31)));
    EXPECT_EQ(abbild, Abbild{});
    EXPECT_TRUE(abbild.SetzeParameter(Spezifisch, 52, Folge(1, 33)));
    EXPECT_EQ(abbild.HoleParameter(Spezifisch, 52), Folge(1, 32));
    EXPECT_EQ(abbild.Bereich(Spezifisch)[Stelle(Spezifisch, 52 + 32)], 0);
}

TEST_F(AbbildTest, Live_beam_states_come_back_and_a_wrong_number_or_part_is_refused) {
    EXPECT_TRUE(abbild.SetzeStrahlzustaende(3, 1, {7, 8, 9}));
    EXPECT_EQ(abbild.HoleStrahlzustaende(3, 1), (Werte{7, 8, 9}));
    EXPECT_EQ(abbild.HoleStrahlzustaende(2, 1), (Werte{7, 8}));
    EXPECT_EQ(abbild.HoleStrahlzustaende(1, 1), Werte{7});
    EXPECT_EQ(abbild.HoleStrahlzustaende(64, 1).size(), 64U);
    const Abbild vorher = abbild;
    const std::pair<std::int16_t, int> schlechte[] = {{0, 0}, {-1, 0}, {65, 0}, {1, -1}, {1, 4}};
    for (const auto& [anzahl, teil] : schlechte) {
        EXPECT_FALSE(abbild.SetzeStrahlzustaende(anzahl, teil, Folge(1, 65))) << anzahl << ' ' << teil;
        EXPECT_TRUE(abbild.HoleStrahlzustaende(anzahl, teil).empty()) << anzahl << ' ' << teil;
    }
    EXPECT_FALSE(abbild.SetzeStrahlzustaende(2, 0, {1}));
    EXPECT_EQ(abbild, vorher);
}

TEST_F(AbbildTest, An_image_of_its_own_leaves_the_one_in_use_and_its_mark_alone) {
    EXPECT_TRUE(abbild.SetzeRegister(Kommunikation, 8, 12));
    EXPECT_EQ(modDaten::HoleRegister(Kommunikation, 8), 0);
    EXPECT_EQ(modDaten::IstGeaendert(), False);
}

TEST_F(AbbildTest, A_copy_goes_its_own_way) {
    EXPECT_TRUE(modDaten::SetzeRegister(Kommunikation, 8, 1));
    Abbild kopie = modDaten::DasAbbild();
    EXPECT_EQ(kopie, modDaten::DasAbbild());
    EXPECT_TRUE(kopie.SetzeRegister(Kommunikation, 8, 2));
    EXPECT_NE(kopie, modDaten::DasAbbild());
    EXPECT_EQ(modDaten::HoleRegister(Kommunikation, 8), 1);
}

TEST_F(AbbildTest, The_image_in_use_is_replaced_by_another_without_the_changed_mark) {
    EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, 13, 40, 3));
    modDaten::ErsetzeAbbild(abbild);
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, 13, 3), 40);
    EXPECT_EQ(modDaten::IstGeaendert(), False);
}

TEST_F(AbbildTest, Storing_in_the_image_in_use_marks_the_configuration_as_changed_and_a_refusal_does_not) {
    EXPECT_FALSE(modDaten::SetzeRegister(Global, 1, 1));
    EXPECT_FALSE(modDaten::SetzeParameter(Spezifisch, 52, Folge(1, 31)));
    EXPECT_EQ(modDaten::IstGeaendert(), False);
    EXPECT_TRUE(modDaten::SetzeRegister(Global, 193, 0));
    EXPECT_EQ(modDaten::IstGeaendert(), True);
    modDaten::LoescheGeaendert();
    EXPECT_TRUE(modDaten::SetzeParameter(Spezifisch, 52, Folge(1, 32), 3));
    EXPECT_EQ(modDaten::IstGeaendert(), True);
    EXPECT_EQ(modDaten::HoleParameter(Spezifisch, 52, 3), Folge(1, 32));
}

TEST_F(AbbildTest, Plausibility_is_that_of_the_image_given) {
    abbild = Standardkonfiguration();
    modDaten::ErsetzeAbbild(abbild);
    EXPECT_TRUE(IstPlausibel(abbild));
    EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, 13, 6, 3));
    EXPECT_FALSE(IstPlausibel(abbild));
    EXPECT_TRUE(modDaten::IstPlausibel());
}

TEST_F(AbbildTest, Impossible_beam_counts_are_corrected_in_the_image_given) {
    EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, 12, 512, 0));
    EXPECT_FALSE(KorrigiereStrahlenzahlen(abbild));
    EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, 12, 513, 3));
    EXPECT_TRUE(KorrigiereStrahlenzahlen(abbild));
    EXPECT_EQ(abbild.HoleRegister(Spezifisch, 12, 0), 512);
    EXPECT_EQ(abbild.HoleRegister(Spezifisch, 12, 3), 0);
    EXPECT_EQ(modDaten::IstGeaendert(), False);
}

TEST_F(AbbildTest, A_file_body_carries_an_image_that_is_not_in_use) {
    abbild = Standardkonfiguration();
    EXPECT_TRUE(abbild.SetzeRegister(Kommunikation, 8, 65536));
    Abbild gelesen;
    EXPECT_EQ(ZerlegeKonfigurationsdatei(AlsKonfigurationsdatei(abbild), gelesen), Dateibefund::Gut);
    EXPECT_EQ(gelesen, abbild);
    EXPECT_EQ(modDaten::DasAbbild(), Abbild{});
}

TEST_F(AbbildTest, A_bad_file_body_leaves_the_image_given_as_it_was) {
    abbild = Standardkonfiguration();
    std::string kurz = AlsKonfigurationsdatei(Abbild{});
    kurz.pop_back();
    EXPECT_EQ(ZerlegeKonfigurationsdatei(kurz, abbild), Dateibefund::UnbekanntesFormat);
    EXPECT_EQ(abbild, Standardkonfiguration());
}

} // namespace varnoth
