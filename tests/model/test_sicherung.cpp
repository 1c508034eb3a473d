#include "sicherung.h"

#include "registeradressen.h"

#include <gtest/gtest.h>

#include <chrono>

namespace varnoth {

namespace {

using namespace std::chrono;

system_clock::time_point Sicherungszeit(int tausendstel = 0) {
    return sys_days{2026y / 11 / 22} + 4h + 30min + 12s + milliseconds(tausendstel);
}

Abbild MitNummer(const Werte& nummer) {
    Abbild abbild;
    EXPECT_TRUE(abbild.SetzeParameter(Global, global::Seriennummer, nummer));
    return abbild;
}

} // namespace

TEST(Sicherungsnamen, The_name_is_the_time_in_UTC_with_thousandths) {
    EXPECT_EQ(Sicherungsname(Sicherungszeit(7)), "2026-11-22_04-30-12-007Z");
    EXPECT_EQ(Sicherungsname(Sicherungszeit(999)), "2026-11-22_04-30-12-999Z");
}

TEST(Sicherungsnamen, A_name_gives_its_time_back_also_with_a_number_behind_it) {
    for (const int tausendstel : {0, 7, 999}) {
        EXPECT_EQ(ZeitAusName(Sicherungsname(Sicherungszeit(tausendstel))), Sicherungszeit(tausendstel));
        EXPECT_EQ(ZeitAusName(Sicherungsname(Sicherungszeit(tausendstel)) + "_12"),
                  Sicherungszeit(tausendstel));
    }
}

TEST(Sicherungsnamen, Other_names_give_no_time) {
    for (const char* name :
         {"", "a", "2026-11-22_04-30-12-007", "2026-11-22_04-30-12-007Z_", "2026-11-22_04-30-12-007Zx",
          "2026-11-22_04-30-12-007Z_1x", "2026-13-22_04-30-12-007Z", "2026-02-30_04-30-12-007Z",
          "x2026-11-22_04-30-12-007Z", "2026-11-22_04-30-12-00aZ", "2026-11-22_04-30-12-007Z_1234567"})
        EXPECT_FALSE(ZeitAusName(name)) << name;
}

struct Ordnerfall {
    const char* nummer;
    const char* ordner;
};

TEST(Sicherungsordnernamen, Of_a_serial_number_only_harmless_characters_stay) {
    for (const auto& [nummer, ordner] :
         {Ordnerfall{"SIM-0001", "SIM-0001"}, Ordnerfall{"ab_9", "ab_9"}, Ordnerfall{"AZaz09", "AZaz09"},
          Ordnerfall{"../../etc", "______etc"}, Ordnerfall{"..", "__"}, Ordnerfall{".", "_"},
          Ordnerfall{"a/b\\c:d", "a_b_c_d"}, Ordnerfall{"\n\t\x01", "___"}, Ordnerfall{"Ä", "__"},
          Ordnerfall{"", "ohne-nummer"}, Ordnerfall{"CON", "CON_"}, Ordnerfall{"lpt1", "lpt1_"},
          Ordnerfall{"COM9", "COM9_"}})
        EXPECT_EQ(Sicherungsordnername(nummer), ordner) << nummer;
    EXPECT_EQ(Sicherungsordnername(std::string(500, 'x')), std::string(40, 'x'));
    EXPECT_EQ(Sicherungsordnername(std::string("a\0b", 3)), "a_b");
}

TEST(Seriennummer, Two_characters_of_each_register_make_it_without_blanks_around_it) {
    EXPECT_EQ(Seriennummer(MitNummer(
                  {0x2041, 0x4231, 0x3220, 0x2020, 0x2020, 0x2020, 0x2020, 0x2020, 0x2020, 0x2020})),
              "AB12");
}

TEST(Seriennummer, An_empty_image_has_none) {
    EXPECT_EQ(Seriennummer({}), "");
}

TEST(Sicherungstext, What_is_written_is_read_back) {
    const Sicherungsangaben angaben{.zeit = Sicherungszeit(),
                                    .anlass = Sicherungsanlass::VorNeuer,
                                    .seriennummer = "SIM-0001",
                                    .softwareversion = "2.3",
                                    .strahlen = "32, 16, 0, 0",
                                    .programm = "1.0.0"};
    Sicherungsangaben gelesen = LiesSicherungstext(AlsSicherungstext(angaben));
    gelesen.zeit = angaben.zeit;
    EXPECT_EQ(gelesen, angaben);
}

TEST(Sicherungstext, Every_occasion_is_told_and_an_unknown_one_is_nothing) {
    for (const auto anlass : {Sicherungsanlass::VorDemSchreiben, Sicherungsanlass::VorDemVerbinden,
                              Sicherungsanlass::VorNeuer, Sicherungsanlass::VorDemOeffnen})
        EXPECT_EQ(LiesSicherungstext(AlsSicherungstext({.zeit = Sicherungszeit(), .anlass = anlass})).anlass,
                  anlass);
    EXPECT_FALSE(LiesSicherungstext("[Sicherung]\nAnlass=Zauberei\n").anlass);
}

TEST(Sicherungstext, A_serial_number_cannot_add_lines) {
    const std::string text =
        AlsSicherungstext({.zeit = Sicherungszeit(), .seriennummer = "1\nProgramm=9\r[x]"});
    EXPECT_EQ(LiesSicherungstext(text).seriennummer, "1 Programm=9 [x]");
    EXPECT_EQ(LiesSicherungstext(text).programm, "");
}

TEST(Sicherungstext, Any_other_text_says_nothing) {
    EXPECT_EQ(LiesSicherungstext(""), Sicherungsangaben{});
    EXPECT_EQ(LiesSicherungstext(std::string("\0\xFF[[=\n=", 7)), Sicherungsangaben{});
}

TEST(Sicherungstext, Number_version_and_beam_counts_come_from_the_image) {
    Abbild abbild = MitNummer(Werte(10, 0x4141));
    EXPECT_TRUE(abbild.SetzeRegister(Global, global::Softwareversion, 0x0203));
    EXPECT_TRUE(
        abbild.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl, 64, 1));
    const auto angaben = AngabenZu(abbild, Sicherungszeit());
    EXPECT_EQ(angaben.zeit, Sicherungszeit());
    EXPECT_EQ(angaben.seriennummer, std::string(20, 'A'));
    EXPECT_EQ(angaben.softwareversion, "2.3");
    EXPECT_EQ(angaben.strahlen, "0, 64, 0, 0");
}

} // namespace varnoth
