#include "hardwareinitialisierung.h"

#include "ablauftest.h"
#include "geraetestand.h"
#include "initialisierungsmitschrift.h"
#include "servicetext.h"
#include "texte.h"

#include <algorithm>

namespace varnoth {

using pruefung::Initialisierungsmitschrift;
using pruefung::PruefGeraet;
using pruefung::Wort;

namespace {

constexpr const char* Passwort = "ABCDEFGHIJKLMNOP";
const std::vector<int> PasswortWerte = {0x4142, 0x4344, 0x4546, 0x4748, 0x494A, 0x4B4C, 0x4D4E, 0x4F50};

const Werksdaten Beispiel{.seriennummer = "AB",
                          .jahr = "2009",
                          .monat = "05",
                          .tag = "13",
                          .hauptversion = "1",
                          .unterversion = "5"};

const std::vector<int> Seriennummer = {0x4142, 0x2020, 0x2020, 0x2020, 0x2020,
                                       0x2020, 0x2020, 0x2020, 0x2020, 0x2020};

} // namespace

TEST(PackeZeichen, Puts_the_first_of_two_characters_into_the_high_byte) {
    EXPECT_EQ(PackeZeichen("AB12"), (Werte{0x4142, 0x3132}));
}

TEST(PackeZeichen, Takes_characters_beyond_ASCII_as_bytes) {
    EXPECT_EQ(PackeZeichen("\xC4\xFF"), Werte{0xC4FF});
}

TEST(PackeSeriennummer, Sends_AB_followed_by_nine_registers_of_blanks) {
    EXPECT_EQ(PackeSeriennummer(Beispiel), Werte(Seriennummer.begin(), Seriennummer.end()));
}

TEST(PackeSeriennummer, Fills_ten_registers_with_twenty_characters) {
    const Werte werte = PackeSeriennummer({.seriennummer = "12345678901234567890"});
    EXPECT_EQ(werte.size(), 10U);
    EXPECT_EQ(werte.back(), 0x3930);
}

TEST(PackeSeriennummer, Cuts_a_longer_text_after_twenty_characters) {
    EXPECT_EQ(PackeSeriennummer({.seriennummer = "12345678901234567890XYZ"}),
              PackeSeriennummer({.seriennummer = "12345678901234567890"}));
}

TEST(PackeSeriennummer, Of_an_empty_text_is_blank) {
    EXPECT_EQ(PackeSeriennummer({}), Werte(10, 0x2020));
}

TEST(PackeHerstelldatum, Packs_2009_05_13_in_four_registers) {
    EXPECT_EQ(PackeHerstelldatum(Beispiel), (Werte{0x3230, 0x3039, 0x3035, 0x3133}));
}

TEST(PackeHerstelldatum, Keeps_month_and_day_in_place_where_characters_are_missing) {
    EXPECT_EQ(PackeHerstelldatum({.jahr = "9", .monat = "5", .tag = ""}),
              (Werte{0x3920, 0x2020, 0x3520, 0x2020}));
}

TEST(PackeHerstelldatum, Cuts_longer_texts) {
    EXPECT_EQ(PackeHerstelldatum({.jahr = "20091", .monat = "051", .tag = "131"}),
              PackeHerstelldatum(Beispiel));
}

TEST(PackeHardwareversion, Of_main_version_1_and_sub_version_5_is_261) {
    EXPECT_EQ(PackeHardwareversion(Beispiel), Werte{261});
}

TEST(PackeHardwareversion, Takes_the_number_a_text_begins_with) {
    const std::tuple<const char*, const char*, int> faelle[] = {{"", "", 0},       {"x", "7", 7},
                                                                {" 2", "3b", 515}, {"255", "255", 65535},
                                                                {"1.5", "0", 384}, {"0", "2.5", 2}};
    for (const auto& [haupt, unter, wert] : faelle)
        EXPECT_EQ(PackeHardwareversion({.hauptversion = haupt, .unterversion = unter}), Werte{wert})
            << haupt << " " << unter;
}

class HardwareinitialisierungTest : public pruefung::AblaufTest {
protected:
    HardwareinitialisierungTest() { modService::SetzeServiceText(Passwort); }

    std::vector<int> Adressen() const {
        std::vector<int> adressen;
        for (const auto& vorgang : geraet.geschrieben)
            adressen.push_back(vorgang.adresse);
        return adressen;
    }
    /// The device is silent to writes of one address.
    void SchweigeZu(int adresse) {
        geraet.schweige = [adresse](const std::string& anforderung) {
            return Wort(anforderung, 2) == adresse;
        };
    }
    std::string Gemerkt(const char* schluessel) {
        return einstellungen.LiesText("frmInitHardware", schluessel, "nothing");
    }

    pruefung::PruefEinstellungen einstellungen;
    Initialisierungsmitschrift anzeige;
};

TEST_F(HardwareinitialisierungTest, Each_group_is_written_after_the_password_and_at_last_all_is_stored) {
    EXPECT_TRUE(InitialisiereHardware(anzeige, Beispiel));
    EXPECT_EQ(geraet.geschrieben, (std::vector<PruefGeraet::Schreibvorgang>{
                                      {0, 178, PasswortWerte},
                                      {0, 9, Seriennummer},
                                      {0, 178, PasswortWerte},
                                      {0, 20, {0x3230, 0x3039, 0x3035, 0x3133}},
                                      {0, 178, PasswortWerte},
                                      {0, 24, {261}},
                                      {0, 189, {2}},
                                  }));
}

TEST_F(HardwareinitialisierungTest, The_factory_data_that_the_controller_held_is_not_known_any_more) {
    constexpr auto Bereich = Speicherbereich::GlobaleGeraetedaten;
    modGeraetestand::MerkeGelesen({}, "4711");
    InitialisiereHardware(anzeige, Beispiel);
    EXPECT_EQ(modGeraetestand::HoleGeraetestand().value().unbekannt,
              (Parametermenge{{Bereich, global::Seriennummer},
                              {Bereich, global::Herstelldatum},
                              {Bereich, global::Hardwareversion}}));
}

TEST_F(HardwareinitialisierungTest, Each_step_shows_its_name) {
    InitialisiereHardware(anzeige, Beispiel);
    EXPECT_EQ(anzeige.schritte,
              (std::vector<std::string>{"Passwort", "Seriennummer", "Passwort", "Herstelldatum", "Passwort",
                                        "Hardware Version", "EEPROM update"}));
}

TEST_F(HardwareinitialisierungTest, The_steps_are_in_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    InitialisiereHardware(anzeige, Beispiel);
    EXPECT_EQ(anzeige.schritte,
              (std::vector<std::string>{"Password", "Serial number", "Password", "Date of manufacture",
                                        "Password", "Hardware version", "EEPROM update"}));
}

TEST_F(HardwareinitialisierungTest, Each_step_counts_its_attempts_from_1) {
    geraet.schweige = [schweigen = 2](const std::string& anforderung) mutable {
        return Wort(anforderung, 2) == 20 && schweigen-- > 0;
    };
    EXPECT_TRUE(InitialisiereHardware(anzeige, Beispiel));
    EXPECT_EQ(anzeige.versuche, (std::vector<int>{1, 1, 1, 1, 2, 3, 1, 1, 1}));
}

TEST_F(HardwareinitialisierungTest, A_silent_device_is_kept_in_the_first_step_without_limit_until_cancel) {
    SchweigeImmer();
    anzeige.abbruchBeiVersuch = 25;
    EXPECT_FALSE(InitialisiereHardware(anzeige, Beispiel));
    EXPECT_EQ(AnzahlAnforderungen(), 25);
    EXPECT_EQ(anzeige.schritte, std::vector<std::string>{"Passwort"});
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(HardwareinitialisierungTest,
       A_cancel_during_step_4_leaves_serial_number_and_password_written_but_no_date) {
    SchweigeZu(20);
    anzeige.abbruchBeiVersuch = 3;
    EXPECT_FALSE(InitialisiereHardware(anzeige, Beispiel));
    EXPECT_EQ(Adressen(), (std::vector<int>{178, 9, 178}));
    EXPECT_EQ(Gemerkt("Seriennummer"), "AB");
}

TEST_F(HardwareinitialisierungTest, A_cancel_counts_even_when_the_write_in_progress_succeeds) {
    anzeige.abbruchBeiSchritt = 2;
    EXPECT_FALSE(InitialisiereHardware(anzeige, Beispiel));
    EXPECT_EQ(Adressen(), (std::vector<int>{178, 9}));
    EXPECT_EQ(Gemerkt("Seriennummer"), "nothing");
}

TEST_F(HardwareinitialisierungTest, What_was_written_is_kept_in_the_settings) {
    InitialisiereHardware(anzeige, Beispiel);
    EXPECT_EQ(Gemerkt("Seriennummer"), "AB");
    EXPECT_EQ(Gemerkt("Hauptversion"), "1");
    EXPECT_EQ(Gemerkt("Unterversion"), "5");
}

TEST_F(HardwareinitialisierungTest, A_version_that_is_never_confirmed_is_not_kept) {
    SchweigeZu(24);
    anzeige.abbruchBeiVersuch = 2;
    InitialisiereHardware(anzeige, Beispiel);
    EXPECT_EQ(Gemerkt("Hauptversion"), "nothing");
    EXPECT_EQ(Gemerkt("Unterversion"), "nothing");
}

TEST_F(HardwareinitialisierungTest, A_serial_number_beyond_ASCII_is_kept_in_UTF8) {
    InitialisiereHardware(anzeige, {.seriennummer = "\304A1"});
    EXPECT_EQ(Gemerkt("Seriennummer"), "ÄA1");
}

TEST_F(HardwareinitialisierungTest, The_password_is_kept_and_shown_nowhere) {
    InitialisiereHardware(anzeige, Beispiel);
    for (const auto& [wo, text] : einstellungen.texte)
        EXPECT_EQ(text.find(Passwort), std::string::npos) << wo.second;
    for (const auto& schritt : anzeige.schritte)
        EXPECT_EQ(schritt.find(Passwort), std::string::npos);
}

TEST_F(HardwareinitialisierungTest, A_password_of_another_length_than_16_sends_nothing) {
    for (const std::string passwort : {"", "ABCDEFGHIJKLMNO", "ABCDEFGHIJKLMNOPQ"}) {
        modService::SetzeServiceText(passwort);
        EXPECT_FALSE(InitialisiereHardware(anzeige, Beispiel)) << passwort;
    }
    EXPECT_EQ(AnzahlAnforderungen(), 0);
    EXPECT_TRUE(anzeige.schritte.empty());
    EXPECT_EQ(einstellungen.geschrieben, 0);
}

TEST_F(HardwareinitialisierungTest, Password_characters_beyond_ASCII_are_sent_as_bytes) {
    modService::SetzeServiceText("aaaaaaaaaaaaaaa\xE4");
    InitialisiereHardware(anzeige, Beispiel);
    EXPECT_EQ(geraet.geschrieben.at(0).werte.back(), 0x61E4);
}

} // namespace varnoth
