#include "registerbeschreibung.h"

#include <gtest/gtest.h>

#include <map>

namespace varnoth {

namespace {

using Ort = std::pair<Speicherbereich, int>;

const std::map<Ort, Registerbeschreibung> Erwartet = {
    {{Global, 0}, {1, 0, 0}},          {{Global, 9}, {10, 0, 0}},        {{Global, 20}, {4, 0, 0}},
    {{Global, 24}, {1, 0, 0}},         {{Global, 25}, {1, 0, 0}},        {{Global, 193}, {1, 1, 2}},
    {{Global, 196}, {1, 0, 0}},        {{Spezifisch, 12}, {1, 0, 0}},    {{Spezifisch, 13}, {1, 1, 2}},
    {{Spezifisch, 14}, {1, 1, 2}},     {{Spezifisch, 19}, {1, 1, 2}},    {{Spezifisch, 24}, {1, 1, 2}},
    {{Spezifisch, 25}, {1, 1, 2}},     {{Spezifisch, 26}, {1, 1, 2}},    {{Spezifisch, 27}, {1, 1, 2}},
    {{Spezifisch, 44}, {1, 0, 1}},     {{Spezifisch, 52}, {32, 1, 2}},   {{Spezifisch, 335}, {18, 0, 1}},
    {{Kommunikation, 0}, {1, 0, 0}},   {{Kommunikation, 2}, {1, 1, 0}},  {{Kommunikation, 4}, {1, 1, 2}},
    {{Kommunikation, 8}, {1, 1, 2}},   {{Kommunikation, 74}, {1, 1, 2}}, {{Kommunikation, 75}, {30, 1, 2}},
    {{Kommunikation, 126}, {1, 1, 2}},
};

} // namespace

TEST(Registerbeschreibung, Describes_every_parameter_and_no_other_address) {
    for (const auto bereich : AlleSpeicherbereiche)
        for (std::int16_t adresse = 0; adresse < AnzahlAdressen(bereich); ++adresse) {
            const auto zeile = Erwartet.find({bereich, adresse});
            const auto erwartet = zeile == Erwartet.end() ? Registerbeschreibung{} : zeile->second;
            EXPECT_EQ(Beschreibung(bereich, adresse), erwartet)
                << "range " << static_cast<int>(bereich) << " address " << adresse;
        }
}

TEST(Registerbeschreibung, Knows_no_parameter_outside_the_range) {
    EXPECT_EQ(Beschreibung(Global, -1).Laenge, 0);
    EXPECT_EQ(Beschreibung(Global, 256).Laenge, 0);
    EXPECT_EQ(Beschreibung(Spezifisch, 512).Laenge, 0);
    EXPECT_EQ(Beschreibung(Kommunikation, 256).Laenge, 0);
}

TEST(Registerbeschreibung, The_specific_range_has_512_addresses_for_each_of_four_parts) {
    EXPECT_EQ(AnzahlAdressen(Spezifisch), 512);
    EXPECT_EQ(Exemplare(Spezifisch), 4);
    EXPECT_EQ(AnzahlAdressen(Global), 256);
    EXPECT_EQ(Exemplare(Global), 1);
    EXPECT_EQ(AnzahlAdressen(Kommunikation), 256);
    EXPECT_EQ(Exemplare(Kommunikation), 1);
}

TEST(Registerbeschreibung, Configuration_that_is_only_read_is_not_writable) {
    EXPECT_TRUE(IstLesbar({1, 1, 0}));
    EXPECT_FALSE(IstSchreibbar({1, 1, 0}));
}

TEST(Registerbeschreibung, Information_is_not_writable_even_with_write_access) {
    EXPECT_TRUE(IstLesbar({1, 0, 2}));
    EXPECT_FALSE(IstSchreibbar({1, 0, 2}));
}

TEST(Registerbeschreibung, A_parameter_without_transfer_is_neither_readable_nor_writable) {
    EXPECT_FALSE(IstLesbar({1, 1, 1}));
    EXPECT_FALSE(IstSchreibbar({1, 1, 1}));
}

TEST(Registerbeschreibung, An_address_without_parameter_is_neither_readable_nor_writable) {
    EXPECT_FALSE(IstLesbar({0, 1, 2}));
    EXPECT_FALSE(IstSchreibbar({0, 1, 2}));
}

TEST(Standardwerte, Satisfy_every_rule_of_their_register) {
    for (const auto& standard : AlleStandardwerte())
        for (const auto& regel : AlleWerteregeln()) {
            const bool trifftZu = regel.bereich == standard.bereich && regel.adresse == standard.adresse;
            EXPECT_TRUE(!trifftZu || Erfuellt(regel, standard.wert)) << "address " << standard.adresse;
        }
}

TEST(Registerbeschreibung, The_list_of_parameters_names_each_once_in_the_order_of_ranges_and_addresses) {
    auto zeile = Erwartet.begin();
    ASSERT_EQ(AlleParameter().size(), Erwartet.size());
    for (const Parameter& parameter : AlleParameter()) {
        EXPECT_EQ((Ort{parameter.bereich, parameter.adresse}), zeile->first);
        EXPECT_EQ(parameter.beschreibung, zeile->second);
        ++zeile;
    }
}

TEST(Registerbeschreibung, A_walk_gives_the_parameters_of_one_range_that_qualify_in_the_order_of_addresses) {
    const auto adressen = [](Speicherbereich bereich, auto bedingung) {
        std::vector<int> gefundene;
        for (const Parameter& parameter : ParameterMit(bereich, bedingung))
            gefundene.push_back(parameter.adresse);
        return gefundene;
    };
    EXPECT_EQ(adressen(Global, IstLesbar), (std::vector{0, 9, 20, 24, 25, 193, 196}));
    EXPECT_EQ(adressen(Spezifisch, IstLesbar), (std::vector{12, 13, 14, 19, 24, 25, 26, 27, 52}));
    EXPECT_EQ(adressen(Kommunikation, IstLesbar), (std::vector{0, 2, 4, 8, 74, 75, 126}));
    EXPECT_EQ(adressen(Global, IstSchreibbar), (std::vector{193}));
    EXPECT_EQ(adressen(Spezifisch, IstSchreibbar), (std::vector{13, 14, 19, 24, 25, 26, 27, 52}));
    EXPECT_EQ(adressen(Kommunikation, IstSchreibbar), (std::vector{4, 8, 74, 75, 126}));
}

TEST(Registerbeschreibung, The_controller_has_the_ranges_at_0_2000H_and_4000H) {
    EXPECT_EQ(Geraeteadresse(Global, 0), 0);
    EXPECT_EQ(Geraeteadresse(Global, 212), 212);
    EXPECT_EQ(Geraeteadresse(Spezifisch, 44), 0x202C);
    EXPECT_EQ(Geraeteadresse(Kommunikation, 132), 0x4084);
}

} // namespace varnoth
