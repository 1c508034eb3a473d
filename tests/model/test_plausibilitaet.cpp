#include "plausibilitaet.h"

#include "modelltest.h"
#include "standardkonfiguration.h"
#include "texte.h"

namespace varnoth::modDaten {

namespace {

/// The values of one register that pass and those that fail.
struct Regelfall {
    std::int16_t adresse;
    Werte gut;
    Werte schlecht;
};

} // namespace

class Plausibilitaet : public ModellTest {
protected:
    Plausibilitaet() { LadeStandardkonfiguration(); }

    static bool BestehtMit(Speicherbereich bereich, std::int16_t adresse, int optikteil, std::int32_t wert) {
        const std::int32_t vorher = Wert(bereich, adresse, optikteil);
        SetzeWert(bereich, adresse, optikteil, wert);
        const bool plausibel = IstPlausibel();
        SetzeWert(bereich, adresse, optikteil, vorher);
        return plausibel;
    }
    static void Pruefe(Speicherbereich bereich, const Regelfall& fall) {
        for (int teil = 0; teil < Exemplare(bereich); ++teil) {
            for (const auto wert : fall.gut)
                EXPECT_TRUE(BestehtMit(bereich, fall.adresse, teil, wert))
                    << "part " << teil << " address " << fall.adresse << " value " << wert;
            for (const auto wert : fall.schlecht)
                EXPECT_FALSE(BestehtMit(bereich, fall.adresse, teil, wert))
                    << "part " << teil << " address " << fall.adresse << " value " << wert;
        }
    }
};

TEST_F(Plausibilitaet, A_beam_count_is_at_most_512_in_every_part) {
    Pruefe(Spezifisch, {12, {0, 1, 512, -1}, {513, 65535}});
}

TEST_F(Plausibilitaet, A_resolution_is_5_10_20_or_40_in_every_part) {
    Pruefe(Spezifisch, {13, {5, 10, 20, 40}, {0, 4, 6, 15, 41, 65535, -5}});
}

TEST_F(Plausibilitaet, A_sensing_distance_is_0_to_5_in_every_part) {
    Pruefe(Spezifisch, {14, {0, 5, -1}, {6, 65535}});
}

TEST_F(Plausibilitaet, A_filter_count_is_1_to_63_in_every_part) {
    Pruefe(Spezifisch, {19, {1, 63, -1}, {0, 64, 65535}});
}

TEST_F(Plausibilitaet, A_group_counter_is_1_to_127_whatever_its_flag_in_every_part) {
    Pruefe(Spezifisch, {24, {1, 127, 0x8001, 0x807F}, {0, 128, 0x8000, 0x8080, 0x7FFF}});
}

TEST_F(Plausibilitaet, Hold_time_hole_size_and_tolerance_are_1_to_255_in_every_part) {
    for (const auto adresse : std::vector<std::int16_t>{25, 26, 27})
        Pruefe(Spezifisch, {adresse, {1, 255, -1}, {0, 256, 65535}});
}

TEST_F(Plausibilitaet, A_station_address_is_1_to_240) {
    Pruefe(Kommunikation, {4, {1, 240, -1}, {0, 241, 65535}});
}

TEST_F(Plausibilitaet, A_pause_time_is_at_most_65535_and_may_be_negative) {
    Pruefe(Kommunikation, {8, {0, 65535, -1, -5}, {65536}});
}

TEST_F(Plausibilitaet, An_autosend_mode_is_0_1_3_or_4_whatever_stands_above_its_7_bits) {
    Pruefe(Kommunikation, {74, {0, 1, 3, 4, 0x80, 0xFF04}, {2, 5, 0x7F, 0x82, 0xFF02}});
}

TEST_F(Plausibilitaet, Autosend_0x105_fails_and_0x183_passes) {
    Pruefe(Kommunikation, {74, {0x183}, {0x105}});
}

TEST_F(Plausibilitaet, Data_block_0x314_passes_and_0x400_and_0x015_fail) {
    Pruefe(Kommunikation, {75, {0x314}, {0x400, 0x015}});
}

TEST_F(Plausibilitaet, A_data_block_has_a_length_up_to_20_and_at_most_0x300_above_it) {
    Pruefe(Kommunikation, {75, {0, 20, 0x300, -256}, {21, 0x315, 0x401, 0x10000, -1}});
}

TEST_F(Plausibilitaet, Other_registers_of_the_data_block_are_not_checked) {
    Pruefe(Kommunikation, {76, {0, 65535}, {}});
    Pruefe(Kommunikation, {104, {0, 65535}, {}});
}

TEST_F(Plausibilitaet, An_image_of_zeros_fails) {
    LeereAbbild();
    EXPECT_FALSE(IstPlausibel());
}

TEST_F(Plausibilitaet, A_plausible_image_stays_without_a_message) {
    SetzeWert(Spezifisch, 12, 1, 64);
    const auto vorher = Kopie();
    EXPECT_EQ(PruefeKonfiguration(), True);
    EXPECT_EQ(Kopie(), vorher);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(Plausibilitaet, A_plausible_image_causes_no_reaction) {
    int reaktionen = 0;
    SetzeReaktionAufUnplausiblesAbbild([&] { ++reaktionen; });
    PruefeKonfiguration();
    EXPECT_EQ(reaktionen, 0);
}

TEST_F(Plausibilitaet, An_implausible_image_is_replaced_by_the_default_configuration) {
    const auto standard = Kopie();
    SetzeWert(Spezifisch, 12, 3, 513);
    EXPECT_EQ(PruefeKonfiguration(), False);
    EXPECT_EQ(Kopie(), standard);
}

TEST_F(Plausibilitaet, An_implausible_image_is_reported_in_one_warning_box) {
    SetzeWert(Spezifisch, 12, 3, 513);
    PruefeKonfiguration();
    EXPECT_EQ(umgebung.meldungen, (std::vector<Meldung>{{.text = LadeText(3102)}}));
}

TEST_F(Plausibilitaet, The_reaction_comes_before_the_message_and_the_message_before_the_defaults) {
    std::vector<std::string> ablauf;
    SetzeReaktionAufUnplausiblesAbbild([&] { ablauf.push_back("reaction"); });
    umgebung.beiMeldung = [&](const Meldung&) {
        ablauf.push_back(Strahlenzahl(0) == 600 ? "message" : "message after defaults");
    };
    SetzeWert(Spezifisch, 12, 0, 600);
    PruefeKonfiguration();
    EXPECT_EQ(ablauf, (std::vector<std::string>{"reaction", "message"}));
}

TEST_F(Plausibilitaet, An_implausible_image_leaves_the_changed_mark_alone) {
    SetzeWert(Spezifisch, 12, 0, 600);
    PruefeKonfiguration();
    EXPECT_EQ(IstGeaendert(), False);
}

TEST_F(Plausibilitaet, A_part_that_reports_600_beams_is_repaired_to_0) {
    for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeSpezifischeDaten(12, 1, teil, {600});
    KorrigiereStrahlenzahlen();
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        EXPECT_EQ(Strahlenzahl(teil), 0);
}

TEST_F(Plausibilitaet, The_repair_leaves_a_count_of_512) {
    SetzeSpezifischeDaten(12, 1, 2, {512});
    LoescheGeaendert();
    KorrigiereStrahlenzahlen();
    EXPECT_EQ(Strahlenzahl(2), 512);
    EXPECT_EQ(IstGeaendert(), False);
}

} // namespace varnoth::modDaten
