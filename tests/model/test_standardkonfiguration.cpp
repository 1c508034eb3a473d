#include "standardkonfiguration.h"

#include "modelltest.h"
#include "plausibilitaet.h"

namespace varnoth::modDaten {

class Standardkonfiguration : public ModellTest {
protected:
    static void FuelleMitFremdem() {
        for (const auto bereich : AlleSpeicherbereiche)
            ErsetzeBereich(bereich, Werte(Bereich(bereich).size(), 4711));
    }
};

TEST_F(Standardkonfiguration, Sets_every_global_value_to_0) {
    FuelleMitFremdem();
    LadeStandardkonfiguration();
    EXPECT_TRUE(std::ranges::equal(Bereich(Global), Werte(256, 0)));
}

TEST_F(Standardkonfiguration, Sets_the_defaults_of_every_optical_part_and_0_elsewhere) {
    FuelleMitFremdem();
    LadeStandardkonfiguration();
    const std::map<int, int> standard = {{13, 5}, {14, 3}, {19, 1}, {24, 1}, {25, 1}, {26, 1}, {27, 1}};
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        for (std::int16_t a = 0; a < 512; ++a)
            EXPECT_EQ(Wert(Spezifisch, a, teil), standard.contains(a) ? standard.at(a) : 0)
                << "part " << teil << " address " << a;
}

TEST_F(Standardkonfiguration, Sets_the_communication_defaults_and_0_elsewhere) {
    FuelleMitFremdem();
    LadeStandardkonfiguration();
    const std::map<int, int> standard = {{4, 1},    {74, 259}, {75, 20},  {76, 276}, {77, 258}, {78, 259},
                                         {79, 260}, {80, 261}, {81, 262}, {82, 263}, {126, 783}};
    for (std::int16_t a = 0; a < 256; ++a)
        EXPECT_EQ(Wert(Kommunikation, a), standard.contains(a) ? standard.at(a) : 0) << "address " << a;
}

TEST_F(Standardkonfiguration, Has_no_beams_and_passes_the_check) {
    FuelleMitFremdem();
    LadeStandardkonfiguration();
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        EXPECT_EQ(Strahlenzahl(teil), 0);
    EXPECT_EQ(PruefeKonfiguration(), True);
}

TEST_F(Standardkonfiguration, Leaves_the_changed_mark_alone) {
    LadeStandardkonfiguration();
    EXPECT_EQ(IstGeaendert(), False);
    SetzeGeaendert();
    LadeStandardkonfiguration();
    EXPECT_EQ(IstGeaendert(), True);
}

TEST_F(Standardkonfiguration, Like_a_controller_keeps_what_no_write_changes_and_sets_the_rest_back) {
    FuelleMitFremdem();
    const Abbild geraet = DasAbbild();
    const Abbild standard = StandardkonfigurationWie(geraet);
    for (const Parameter& parameter : AlleParameter())
        for (int teil = 0; teil < Exemplare(parameter.bereich); ++teil) {
            const Abbild& erwartet =
                IstSchreibbar(parameter.beschreibung) ? varnoth::Standardkonfiguration() : geraet;
            EXPECT_EQ(standard.HoleParameter(parameter.bereich, parameter.adresse, teil),
                      erwartet.HoleParameter(parameter.bereich, parameter.adresse, teil))
                << "address " << parameter.adresse << " part " << teil;
        }
}

} // namespace varnoth::modDaten
