#include "auswahlliste.h"

#include "texte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace varnoth {

namespace {

using testing::ElementsAre;

/// A number with a decimal comma, three digits at most.
std::string MitKomma(double zahl) {
    std::string text = std::to_string(zahl);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    std::ranges::replace(text, '.', ',');
    return text;
}

std::vector<std::string> Texte(const Auswahlliste& liste, std::int32_t zyklus = 1500) {
    return Postentexte(liste, zyklus, MitKomma);
}

std::vector<Auswahlliste> AlleListen() {
    std::vector<Auswahlliste> alle(AlleTeillisten().begin(), AlleTeillisten().end());
    alle.insert(alle.end(), {Stationsadressen(240), Stationsadressen(126), Autosendraten(255),
                             Autosendraten(127), Autosendbaudraten()});
    return alle;
}

struct Grenzfall {
    Auswahlliste liste;
    std::int32_t wert;
    int auswahl;
};

} // namespace

TEST(AuswahllisteTest, Every_item_of_every_list_gives_a_value_that_selects_it) {
    for (const auto& liste : AlleListen())
        for (int auswahl = 0; auswahl < liste.anzahl; ++auswahl)
            EXPECT_EQ(AuswahlFuer(liste, WertFuer(liste, auswahl)), auswahl) << liste.titel;
}

TEST(AuswahllisteTest, The_values_at_the_ends_select_the_first_and_the_last_item) {
    const Grenzfall faelle[] = {
        {Beschreibung(Teilliste::Aufloesung), 5, 0},
        {Beschreibung(Teilliste::Aufloesung), 10, 1},
        {Beschreibung(Teilliste::Aufloesung), 20, 2},
        {Beschreibung(Teilliste::Aufloesung), 40, 3},
        {Beschreibung(Teilliste::Reichweite), 0, 0},
        {Beschreibung(Teilliste::Reichweite), 5, 5},
        {Beschreibung(Teilliste::Filterdurchlaeufe), 1, 0},
        {Beschreibung(Teilliste::Filterdurchlaeufe), 63, 62},
        {Beschreibung(Teilliste::Gruppenzaehler), 1, 0},
        {Beschreibung(Teilliste::Gruppenzaehler), 127, 126},
        {Beschreibung(Teilliste::MinMaxHaltezeit), 1, 0},
        {Beschreibung(Teilliste::MinMaxHaltezeit), 255, 254},
        {Beschreibung(Teilliste::Lochgroesse), 1, 0},
        {Beschreibung(Teilliste::Lochgroesse), 255, 254},
        {Beschreibung(Teilliste::Mittentoleranz), 1, 0},
        {Beschreibung(Teilliste::Mittentoleranz), 255, 254},
        {Stationsadressen(240), 1, 0},
        {Stationsadressen(240), 240, 239},
        {Autosendraten(255), 1, 0},
        {Autosendraten(255), 255, 254},
        {Autosendbaudraten(), 12, 0},
        {Autosendbaudraten(), 16, 4},
    };
    for (const auto& [liste, wert, auswahl] : faelle)
        EXPECT_EQ(AuswahlFuer(liste, wert), auswahl) << liste.titel << ' ' << wert;
}

TEST(AuswahllisteTest, A_value_outside_the_list_selects_nothing) {
    const Grenzfall faelle[] = {
        {Beschreibung(Teilliste::Aufloesung), 15, KeineAuswahl},
        {Beschreibung(Teilliste::Aufloesung), 0, KeineAuswahl},
        {Beschreibung(Teilliste::Reichweite), 6, KeineAuswahl},
        {Beschreibung(Teilliste::Reichweite), 65535, KeineAuswahl},
        {Beschreibung(Teilliste::Filterdurchlaeufe), 0, KeineAuswahl},
        {Beschreibung(Teilliste::Filterdurchlaeufe), 64, KeineAuswahl},
        {Beschreibung(Teilliste::Gruppenzaehler), 0, KeineAuswahl},
        {Beschreibung(Teilliste::Gruppenzaehler), 128, KeineAuswahl},
        {Beschreibung(Teilliste::Gruppenzaehler), 0x8000, KeineAuswahl},
        {Beschreibung(Teilliste::MinMaxHaltezeit), 0, KeineAuswahl},
        {Beschreibung(Teilliste::MinMaxHaltezeit), 256, KeineAuswahl},
        {Beschreibung(Teilliste::Lochgroesse), 256, KeineAuswahl},
        {Beschreibung(Teilliste::Mittentoleranz), 257, KeineAuswahl},
        {Stationsadressen(240), 0, KeineAuswahl},
        {Autosendraten(255), 0, KeineAuswahl},
        {Autosendbaudraten(), 11, KeineAuswahl},
        {Autosendbaudraten(), 17, KeineAuswahl},
    };
    for (const auto& [liste, wert, auswahl] : faelle)
        EXPECT_EQ(AuswahlFuer(liste, wert), auswahl) << liste.titel << ' ' << wert;
}

TEST(AuswahllisteTest, Only_the_low_six_bits_select_the_integration_time) {
    EXPECT_EQ(AuswahlFuer(Beschreibung(Teilliste::Filterdurchlaeufe), 65), 0);
    EXPECT_EQ(AuswahlFuer(Beschreibung(Teilliste::Filterdurchlaeufe), 0xFFC7), 6);
}

TEST(AuswahllisteTest, Bit_15_does_not_touch_the_selected_group_count) {
    EXPECT_EQ(AuswahlFuer(Beschreibung(Teilliste::Gruppenzaehler), 0x8005), 4);
}

TEST(AuswahllisteTest, The_format_bits_do_not_touch_the_selected_baud_rate) {
    EXPECT_EQ(AuswahlFuer(Autosendbaudraten(), 783), 3);
}

TEST(AuswahllisteTest, No_selection_gives_one_less_than_the_first_value) {
    EXPECT_EQ(WertFuer(Beschreibung(Teilliste::Reichweite), KeineAuswahl), -1);
    EXPECT_EQ(WertFuer(Autosendbaudraten(), KeineAuswahl), 11);
    for (const Teilliste liste :
         {Teilliste::Filterdurchlaeufe, Teilliste::Gruppenzaehler, Teilliste::MinMaxHaltezeit,
          Teilliste::Lochgroesse, Teilliste::Mittentoleranz})
        EXPECT_EQ(WertFuer(Beschreibung(liste), KeineAuswahl), 0);
    EXPECT_EQ(WertFuer(Stationsadressen(240), KeineAuswahl), 0);
}

TEST(AuswahllisteTest, No_resolution_gives_the_value_0) {
    EXPECT_EQ(WertFuer(Beschreibung(Teilliste::Aufloesung), KeineAuswahl), 0);
}

TEST(AuswahllisteTest, The_resolutions_and_ranges_have_their_texts) {
    EXPECT_THAT(Texte(Beschreibung(Teilliste::Aufloesung)), ElementsAre("5mm", "10mm", "20mm", "40mm"));
    EXPECT_THAT(Texte(Beschreibung(Teilliste::Reichweite)),
                ElementsAre("0,05 - 0,3m", "0,20 - 1,0m", "0,50 - 1,5m", "1,00 - 2,5m", "2,00 - 3,5m",
                            "3,00 - 4,0m"));
}

TEST(AuswahllisteTest, A_cycle_time_of_1500_us_gives_items_of_1_5_ms_and_its_multiples) {
    const auto filter = Texte(Beschreibung(Teilliste::Filterdurchlaeufe), 1500);
    ASSERT_EQ(filter.size(), 63U);
    EXPECT_EQ(filter[0], "1,5ms");
    EXPECT_EQ(filter[1], "3ms");
    EXPECT_EQ(filter[2], "4,5ms");
    EXPECT_EQ(filter[62], "94,5ms");
    EXPECT_EQ(Texte(Beschreibung(Teilliste::MinMaxHaltezeit), 1500).back(), "382,5ms");
    EXPECT_EQ(Texte(Autosendraten(255), 1500).back(), "382,5ms");
}

TEST(AuswahllisteTest, Counts_are_plain_decimal_numbers) {
    EXPECT_EQ(Texte(Beschreibung(Teilliste::Gruppenzaehler)).front(), "1");
    EXPECT_EQ(Texte(Beschreibung(Teilliste::Gruppenzaehler)).back(), "127");
    EXPECT_EQ(Texte(Beschreibung(Teilliste::Lochgroesse)).back(), "255");
    EXPECT_EQ(Texte(Beschreibung(Teilliste::Mittentoleranz)).back(), "255");
}

TEST(AuswahllisteTest, Station_addresses_are_hexadecimal_up_to_the_bus_limit) {
    const auto modbus = Texte(Stationsadressen(240));
    ASSERT_EQ(modbus.size(), 240U);
    EXPECT_EQ(modbus.front(), "1H");
    EXPECT_EQ(modbus[9], "AH");
    EXPECT_EQ(modbus.back(), "F0H");
    EXPECT_EQ(Texte(Stationsadressen(126)).back(), "7EH");
}

TEST(AuswahllisteTest, The_autosend_baud_rates_begin_at_4_8_KB) {
    EXPECT_THAT(Texte(Autosendbaudraten()), ElementsAre("4,8 KB", "9,6 KB", "19,2 KB", "38,4 KB", "57,6 KB"));
}

TEST(AuswahllisteTest, Every_list_belongs_to_a_parameter_that_is_written_to_the_controller) {
    for (const auto& liste : AlleListen())
        EXPECT_TRUE(IstSchreibbar(Beschreibung(liste.bereich, liste.adresse))) << liste.titel;
}

TEST(AuswahllisteTest, The_lists_of_an_optical_part_are_written_in_the_order_of_their_registers) {
    std::vector<std::int16_t> adressen;
    for (const auto& liste : AlleTeillisten())
        adressen.push_back(liste.adresse);
    EXPECT_THAT(adressen, ElementsAre(13, 14, 19, 24, 25, 26, 27));
}

TEST(AuswahllisteTest, A_value_outside_the_list_is_told_in_the_language_of_the_moment) {
    const auto& aufloesung = Beschreibung(Teilliste::Aufloesung);
    EXPECT_EQ(Hinweistext(aufloesung, 15), "Wert im Varnoth: 15");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Hinweistext(aufloesung, 15), "Value in the Varnoth: 15");
}

TEST(AuswahllisteTest, A_value_in_the_list_needs_no_telling) {
    EXPECT_EQ(Hinweistext(Beschreibung(Teilliste::Aufloesung), 20), "");
}

TEST(AuswahllisteTest, What_is_told_are_the_bits_of_the_list_alone) {
    EXPECT_EQ(Hinweistext(Beschreibung(Teilliste::Gruppenzaehler), 0x8000 + 200), "Wert im Varnoth: 200");
    EXPECT_EQ(Hinweistext(Autosendbaudraten(), 0x300 + 10), "Wert im Varnoth: 10");
    EXPECT_EQ(Hinweistext(Beschreibung(Teilliste::Filterdurchlaeufe), 128), "Wert im Varnoth: 128");
}

TEST(AuswahllisteTest, The_transmitted_value_stands_in_brackets) {
    EXPECT_EQ(UebertragenerWert(Beschreibung(Teilliste::Filterdurchlaeufe), 11), "(12)");
    EXPECT_EQ(UebertragenerWert(Beschreibung(Teilliste::MinMaxHaltezeit), 254), "(255)");
    EXPECT_EQ(UebertragenerWert(Beschreibung(Teilliste::Reichweite), 0), "(0)");
    EXPECT_EQ(UebertragenerWert(Autosendraten(255), 0), "(1)");
}

TEST(AuswahllisteTest, Without_a_selection_no_value_is_transmitted) {
    EXPECT_EQ(UebertragenerWert(Beschreibung(Teilliste::Reichweite), KeineAuswahl), "");
}

} // namespace varnoth
