#include "uebernahme.h"

#include "plausibilitaet.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

const Parameterstelle Reichweite{Spezifisch, spezifisch::Reichweite, 1};
const Parameterstelle Aufloesung{Spezifisch, spezifisch::Aufloesung, 1};

Abbild Mit(const Parameterstelle& stelle, std::int32_t wert, Abbild abbild = Standardkonfiguration()) {
    EXPECT_TRUE(abbild.SetzeRegister(stelle.bereich, stelle.adresse, wert, stelle.optikteil));
    return abbild;
}

} // namespace

TEST(Uebernahme, Takes_over_what_was_picked_and_nothing_else) {
    const Abbild quelle = Mit(Aufloesung, 40, Mit(Reichweite, 5));
    const auto uebernahme = Uebernimm(Standardkonfiguration(), quelle, {Reichweite});
    EXPECT_TRUE(uebernahme.unplausible.empty());
    EXPECT_EQ(uebernahme.abbild, Mit(Reichweite, 5));
}

TEST(Uebernahme, Names_the_parameters_that_would_be_implausible) {
    const Abbild quelle = Mit(Aufloesung, 7, Mit(Reichweite, 5));
    EXPECT_EQ(Uebernimm(Standardkonfiguration(), quelle, {Aufloesung, Reichweite}).unplausible,
              Parametermenge{Aufloesung});
    EXPECT_TRUE(Uebernimm(Standardkonfiguration(), quelle, {Reichweite}).unplausible.empty());
}

TEST(Uebernahme, Checks_the_whole_configuration_and_not_only_what_was_picked) {
    const Abbild ziel = Mit({Kommunikation, kommunikation::Stationsadresse}, 0);
    EXPECT_EQ(Uebernimm(ziel, Mit(Reichweite, 5), {Reichweite}).unplausible,
              (Parametermenge{{Kommunikation, kommunikation::Stationsadresse}}));
}

TEST(Uebernahme, Only_rows_that_differ_and_that_a_write_sends_can_be_taken_over) {
    using enum Vergleichsklasse;
    EXPECT_TRUE(IstUebernehmbar({Reichweite, Verschieden, {1}, {2}}));
    for (const auto klasse : {Gleich, NurInA, NurInB, NichtLesbar})
        EXPECT_FALSE(IstUebernehmbar({Reichweite, klasse, {1}, {2}}));
    EXPECT_FALSE(IstUebernehmbar({{Spezifisch, spezifisch::Strahlenzahl, 1}, Verschieden, {1}, {2}}));
    EXPECT_FALSE(IstUebernehmbar({{Kommunikation, kommunikation::Format}, Verschieden, {1}, {2}}));
}

TEST(Uebernahme, What_is_implausible_names_every_parameter_that_breaks_a_rule_with_its_part) {
    Werte datenblock(30, 0);
    datenblock[0] = 0x7F;
    Abbild abbild = Mit(Aufloesung, 7);
    ASSERT_TRUE(abbild.SetzeParameter(Kommunikation, kommunikation::Datenblock, datenblock));
    EXPECT_EQ(UnplausibleStellen(abbild),
              (Parametermenge{Aufloesung, {Kommunikation, kommunikation::Datenblock}}));
}

} // namespace varnoth
