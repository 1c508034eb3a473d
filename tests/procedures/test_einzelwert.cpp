#include "einzelwert.h"

#include "ablauftest.h"
#include "geraetestand.h"
#include "registerabbild.h"

namespace varnoth {

using pruefung::PruefGeraet;

namespace {

Einzelregister GlobalesRegister(const std::string& adresse) {
    return {.adresse = adresse};
}

} // namespace

TEST(BereichsOffset, Is_the_device_address_at_which_a_range_begins) {
    EXPECT_EQ(BereichsOffset(0), 0);
    EXPECT_EQ(BereichsOffset(1), 8192);
    EXPECT_EQ(BereichsOffset(2), 16384);
}

TEST(BereichsOffset, Of_any_other_range_is_0) {
    for (const int bereich : {-1, 3, 100})
        EXPECT_EQ(BereichsOffset(bereich), 0) << bereich;
}

TEST(Registeradresse, Is_the_number_typed_counted_from_the_start_of_the_range) {
    const std::tuple<int, const char*, int> faelle[] = {
        {0, "0", 0},          {0, "212", 212},     {1, "44", 0x202C},    {2, "132", 0x4084},
        {0, "&H84", 0x84},    {2, "&h84", 0x4084}, {1, "&O17", 0x200F},  {0, "  12", 12},
        {0, "12 mm", 12},     {0, "1e2", 100},     {0, "0.5", 0},        {0, "1.5", 2},
        {0, "2.5", 2},        {0, "2.6", 3},       {0, "65535", 0xFFFF}, {2, "49151", 0xFFFF},
        {1, "-1", 0x1FFF},    {2, "-16384", 0},    {0, "-0.4", 0},       {0, "65535.4", 0xFFFF},
        {0, "&HFFFF", 0xFFFF}};
    for (const auto& [bereich, text, adresse] : faelle)
        EXPECT_EQ(Registeradresse({.adressOffset = BereichsOffset(bereich), .adresse = text}), adresse)
            << text;
}

TEST(Registeradresse, Without_a_number_is_the_first_of_the_range) {
    for (const int bereich : {0, 1, 2})
        for (const char* text : {"", " ", "x", "&H", "OK"})
            EXPECT_EQ(Registeradresse({.adressOffset = BereichsOffset(bereich), .adresse = text}),
                      BereichsOffset(bereich));
}

TEST(Registeradresse, Outside_of_16_bits_is_none) {
    const std::pair<int, const char*> faelle[] = {
        {0, "65536"},  {0, "65535.6"}, {0, "-1"},          {0, "-0.6"},
        {1, "57344"},  {1, "-8193"},   {2, "49152"},       {2, "-16385"},
        {2, "&HC000"}, {0, "1e300"},   {0, "&H10000"},     {0, "&HFFFFFFFF"},
        {0, "1e999"},  {0, "-1e999"},  {0, "&H100000000"}, {0, "&O77777777777"}};
    for (const auto& [bereich, text] : faelle)
        EXPECT_EQ(Registeradresse({.adressOffset = BereichsOffset(bereich), .adresse = text}), std::nullopt)
            << text;
}

TEST(Registerwert, Is_the_number_typed) {
    const std::pair<const char*, int> faelle[] = {
        {"0", 0},         {"10", 10}, {"&H1234", 0x1234}, {"&H8000", 32768}, {"&HFFFF", 65535},
        {"65535", 65535}, {"-1", -1}, {"-32768", -32768}, {"&O17", 15},      {"", 0},
        {"OK", 0},        {"???", 0}, {"  7 ", 7},        {"12abc", 12},     {"0.5", 0},
        {"1.5", 2},       {"2.5", 2}, {"-1.5", -2},       {"3.49", 3}};
    for (const auto& [text, wert] : faelle)
        EXPECT_EQ(Registerwert(text), wert) << text;
}

TEST(Registerwert, That_no_register_holds_is_none) {
    for (const char* text :
         {"65536", "65535.5", "-32769", "-32768.6", "&H10000", "1e9", "1e999", "&H100000000", "&HFFFFFFFFF"})
        EXPECT_EQ(Registerwert(text), std::nullopt) << text;
}

TEST(Registerwert, Of_a_very_long_text_is_known_at_once) {
    constexpr std::size_t laenge = 1'000'000;
    EXPECT_EQ(Registerwert(std::string(laenge, 'x')), 0);
    EXPECT_EQ(Registerwert(std::string(laenge, '0')), 0);
    EXPECT_EQ(Registerwert(std::string(laenge, '0') + '7'), 7);
    EXPECT_EQ(Registerwert(std::string(laenge, '9')), std::nullopt);
}

class EinzelwertTest : public pruefung::AblaufTest {};

TEST_F(EinzelwertTest, Reading_global_register_0_of_a_device_holding_1234_hex_shows_it) {
    geraet.Register(0) = 0x1234;
    EXPECT_EQ(LiesEinzelwert(GlobalesRegister("0")), "&H1234");
}

TEST_F(EinzelwertTest, A_value_of_10_shows_as_HA) {
    geraet.Register(5) = 10;
    EXPECT_EQ(LiesEinzelwert(GlobalesRegister("5")), "&HA");
}

TEST_F(EinzelwertTest, Values_at_the_limits_are_shown_whole) {
    for (const auto& [wert, text] : {std::pair{0, "&H0"}, {0x8000, "&H8000"}, {0xFFFF, "&HFFFF"}}) {
        geraet.Register(5) = wert;
        EXPECT_EQ(LiesEinzelwert(GlobalesRegister("5")), text);
    }
}

TEST_F(EinzelwertTest, The_part_is_selected_before_every_read_in_every_range) {
    for (const int bereich : {0, 1, 2}) {
        geraet.geschrieben.clear();
        geraet.gelesen.clear();
        LiesEinzelwert({.optikteil = 3, .adressOffset = BereichsOffset(bereich), .adresse = "7"});
        ASSERT_EQ(geraet.geschrieben.size(), 1U);
        EXPECT_EQ(geraet.geschrieben[0].adresse, 212);
        EXPECT_EQ(geraet.geschrieben[0].werte, std::vector<int>{3});
        EXPECT_EQ(geraet.gelesen, (std::vector<std::pair<int, int>>{{BereichsOffset(bereich) + 7, 1}}));
    }
}

TEST_F(EinzelwertTest, The_part_is_selected_before_every_write_in_every_range) {
    for (const int bereich : {0, 1, 2}) {
        geraet.geschrieben.clear();
        const int adresse = BereichsOffset(bereich) + 7;
        SchreibeEinzelwert({.optikteil = 2, .adressOffset = BereichsOffset(bereich), .adresse = "7"}, "99");
        ASSERT_EQ(geraet.geschrieben.size(), 2U);
        EXPECT_EQ(geraet.geschrieben[0].adresse, 212);
        EXPECT_EQ(geraet.geschrieben[0].werte, std::vector<int>{2});
        EXPECT_EQ(geraet.geschrieben[1], (PruefGeraet::Schreibvorgang{2, adresse, {99}}));
    }
}

TEST_F(EinzelwertTest, A_specific_register_is_that_of_the_part_selected) {
    geraet.Spezifisch(1, 44) = 0x80;
    geraet.Spezifisch(2, 44) = 0x40;
    EXPECT_EQ(LiesEinzelwert({.optikteil = 2, .adressOffset = BereichsOffset(1), .adresse = "44"}), "&H40");
}

TEST_F(EinzelwertTest, A_write_that_is_confirmed_shows_OK) {
    EXPECT_EQ(SchreibeEinzelwert(GlobalesRegister("193"), "&H1F"), "OK");
    EXPECT_EQ(geraet.Register(193), 0x1F);
}

TEST_F(EinzelwertTest, A_negative_value_is_sent_as_its_low_16_bits) {
    SchreibeEinzelwert(GlobalesRegister("193"), "-2");
    EXPECT_EQ(geraet.Register(193), 0xFFFE);
}

TEST_F(EinzelwertTest, A_second_write_without_retyping_sends_the_0_that_OK_reads_as) {
    const std::string gezeigt = SchreibeEinzelwert(GlobalesRegister("193"), "31");
    EXPECT_EQ(SchreibeEinzelwert(GlobalesRegister("193"), gezeigt), "OK");
    EXPECT_EQ(geraet.Register(193), 0);
}

TEST_F(EinzelwertTest, An_empty_address_field_addresses_register_0_of_the_chosen_range) {
    for (const int bereich : {0, 1, 2})
        LiesEinzelwert({.adressOffset = BereichsOffset(bereich), .adresse = ""});
    EXPECT_EQ(geraet.gelesen, (std::vector<std::pair<int, int>>{{0, 1}, {8192, 1}, {16384, 1}}));
}

TEST_F(EinzelwertTest, A_selection_that_fails_shows_question_marks_and_stops) {
    SchweigeImmer();
    EXPECT_EQ(LiesEinzelwert(GlobalesRegister("0")), "???");
    EXPECT_EQ(AnzahlAnforderungen(), 1);
    EXPECT_EQ(SchreibeEinzelwert(GlobalesRegister("0"), "1"), "???");
    EXPECT_EQ(AnzahlAnforderungen(), 2);
}

TEST_F(EinzelwertTest, A_read_that_fails_shows_question_marks_without_a_retry_or_a_box) {
    geraet.schweige = [this](const std::string&) { return AnzahlAnforderungen() > 1; };
    EXPECT_EQ(LiesEinzelwert(GlobalesRegister("0")), "???");
    EXPECT_EQ(AnzahlAnforderungen(), 2);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(EinzelwertTest, A_write_that_fails_shows_question_marks_without_a_retry_or_a_box) {
    geraet.schweige = [this](const std::string&) { return AnzahlAnforderungen() > 1; };
    EXPECT_EQ(SchreibeEinzelwert(GlobalesRegister("0"), "1"), "???");
    EXPECT_EQ(AnzahlAnforderungen(), 2);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(EinzelwertTest, An_address_beyond_16_bits_shows_question_marks_and_sends_nothing) {
    for (const char* adresse : {"65536", "-1", "&H10000", "&H100000000"}) {
        EXPECT_EQ(LiesEinzelwert(GlobalesRegister(adresse)), "???") << adresse;
        EXPECT_EQ(SchreibeEinzelwert(GlobalesRegister(adresse), "1"), "???") << adresse;
    }
    EXPECT_EQ(LiesEinzelwert({.adressOffset = BereichsOffset(2), .adresse = "49152"}), "???");
    EXPECT_EQ(AnzahlAnforderungen(), 0);
}

TEST_F(EinzelwertTest, A_value_that_no_register_holds_shows_question_marks_and_sends_nothing) {
    for (const char* wert : {"65536", "-32769", "&H10000"})
        EXPECT_EQ(SchreibeEinzelwert(GlobalesRegister("193"), wert), "???") << wert;
    EXPECT_EQ(AnzahlAnforderungen(), 0);
}

TEST_F(EinzelwertTest, What_the_controller_holds_of_a_parameter_is_not_known_after_a_write_into_it) {
    const auto unbekanntNach = [](const Einzelregister& wahl) {
        modGeraetestand::MerkeGelesen({}, "4711");
        SchreibeEinzelwert(wahl, "1");
        EXPECT_TRUE(modGeraetestand::HoleGeraetestand().value().ausDieserVerbindung);
        return modGeraetestand::HoleGeraetestand().value().unbekannt;
    };
    EXPECT_EQ(unbekanntNach(GlobalesRegister("193")),
              (Parametermenge{{Speicherbereich::GlobaleGeraetedaten, global::PnpAusgang}}));
    const std::string letztes = std::to_string(spezifisch::Blankingmuster + 31);
    EXPECT_EQ(unbekanntNach({.optikteil = 2, .adressOffset = BereichsOffset(1), .adresse = letztes}),
              (Parametermenge{{Spezifisch, spezifisch::Blankingmuster, 2}}));
    EXPECT_EQ(unbekanntNach(GlobalesRegister("178")), Parametermenge{}) << "the password";
}

TEST_F(EinzelwertTest, A_write_without_a_confirmation_may_have_been_taken_and_a_reading_changes_nothing) {
    modGeraetestand::MerkeGelesen({}, "4711");
    LiesEinzelwert(GlobalesRegister("193"));
    EXPECT_TRUE(modGeraetestand::HoleGeraetestand()->IstGelesen());
    geraet.schweige = [this](const std::string&) { return geraet.geschrieben.size() == 2; };
    EXPECT_EQ(SchreibeEinzelwert(GlobalesRegister("193"), "1"), "???");
    EXPECT_FALSE(modGeraetestand::HoleGeraetestand()->IstGelesen());
}

TEST_F(EinzelwertTest, After_a_command_what_the_controller_held_is_from_before) {
    modGeraetestand::MerkeGelesen({}, "4711");
    SchreibeEinzelwert(GlobalesRegister("189"), "3");
    EXPECT_FALSE(modGeraetestand::HoleGeraetestand()->ausDieserVerbindung);
}

TEST_F(EinzelwertTest, The_register_image_is_left_alone) {
    geraet.Register(193) = 77;
    LiesEinzelwert(GlobalesRegister("193"));
    SchreibeEinzelwert(GlobalesRegister("193"), "78");
    Werte werte(1);
    modDaten::HoleGlobaleDaten(193, 1, werte);
    EXPECT_EQ(werte[0], 0);
    EXPECT_EQ(modDaten::IstGeaendert(), False);
}

} // namespace varnoth
