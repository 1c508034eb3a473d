#include "aufzeichnungseinstellungen.h"

#include "pruefumgebung.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using testing::EndsWith;

class AufzeichnungseinstellungenTest : public testing::Test {
protected:
    void Setze(const char* schluessel, const char* text) {
        einstellungen.texte[{"Aufzeichnung", schluessel}] = text;
    }

    pruefung::PruefEinstellungen einstellungen;
};

TEST_F(AufzeichnungseinstellungenTest, A_new_choice_records_every_pass_in_both_forms_without_limits) {
    const auto wahl = LiesAufzeichnungswahl(einstellungen);
    EXPECT_EQ(wahl, Aufzeichnungswahl{});
    EXPECT_TRUE(wahl.vrec && wahl.csv);
    EXPECT_EQ(wahl.rhythmus, Rhythmus::JederDurchgang);
}

TEST_F(AufzeichnungseinstellungenTest, Every_choice_comes_back_as_it_was_stored) {
    const Aufzeichnungswahl wahl{.vrec = false,
                                 .csv = true,
                                 .csvart = Csvart::ExcelDeutsch,
                                 .rhythmus = Rhythmus::AlleSekunden,
                                 .sekunden = 7,
                                 .megabyte = 20,
                                 .mitternacht = true,
                                 .endeMinuten = 90,
                                 .behalteStunden = 48};
    SchreibAufzeichnungswahl(einstellungen, wahl);
    EXPECT_EQ(LiesAufzeichnungswahl(einstellungen), wahl);
    SchreibAufzeichnungswahl(einstellungen, {.rhythmus = Rhythmus::BeiAenderung});
    EXPECT_EQ(LiesAufzeichnungswahl(einstellungen).rhythmus, Rhythmus::BeiAenderung);
}

TEST_F(AufzeichnungseinstellungenTest, Only_what_differs_is_stored) {
    SchreibAufzeichnungswahl(einstellungen, {});
    SchreibFlugschreiber(einstellungen, {});
    EXPECT_EQ(einstellungen.geschrieben, 0);
    SchreibAufzeichnungswahl(einstellungen, {.megabyte = 3});
    EXPECT_EQ(einstellungen.geschrieben, 1);
}

TEST_F(AufzeichnungseinstellungenTest, Absurd_settings_count_as_their_nearest_or_as_none) {
    Setze("Sekunden", "-4");
    Setze("Megabyte", "99999999");
    Setze("Rhythmus", "Walzer");
    Setze("Csvart", "");
    Setze("Vrec", "0");
    Setze("Csv", "0");
    const auto wahl = LiesAufzeichnungswahl(einstellungen);
    EXPECT_EQ(wahl.sekunden, 1);
    EXPECT_EQ(wahl.megabyte, 10'000);
    EXPECT_EQ(wahl.rhythmus, Rhythmus::JederDurchgang);
    EXPECT_EQ(wahl.csvart, Csvart::Standard);
    EXPECT_TRUE(wahl.vrec);
}

TEST_F(AufzeichnungseinstellungenTest, The_flight_recorder_has_its_memory_within_bounds) {
    EXPECT_EQ(LiesFlugschreiber(einstellungen), Flugschreiber{});
    SchreibFlugschreiber(einstellungen, {.alleTeile = true, .megabyte = 100});
    EXPECT_EQ(LiesFlugschreiber(einstellungen), (Flugschreiber{.alleTeile = true, .megabyte = 100}));
    Setze("FlugschreiberMB", "1000000");
    EXPECT_EQ(LiesFlugschreiber(einstellungen).megabyte, 512);
}

TEST_F(AufzeichnungseinstellungenTest,
       Recordings_go_into_a_folder_among_the_documents_until_another_is_chosen) {
    EXPECT_THAT(LiesAufzeichnungsordner(einstellungen), EndsWith("/Varnoth"));
    SchreibAufzeichnungsordner(einstellungen, "/mnt/records");
    EXPECT_EQ(LiesAufzeichnungsordner(einstellungen), "/mnt/records");
}

} // namespace varnoth
