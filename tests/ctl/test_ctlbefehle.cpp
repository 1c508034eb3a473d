#include "ctlbefehle.h"
#include "ctlprobe.h"
#include "programmversion.h"

#include <algorithm>
#include <set>

namespace varnoth::ctl {

namespace {

using testing::HasSubstr;
using testing::Not;

std::set<std::string_view> Namen(std::span<const Option> optionen) {
    std::set<std::string_view> namen;
    for (const Option& option : optionen)
        namen.insert(option.name);
    return namen;
}

} // namespace

TEST(Befehlstafel, Every_option_of_a_command_is_in_the_table_of_options_and_belongs_to_one) {
    std::set<std::string_view> benutzte;
    for (const Befehl& befehl : AlleBefehle())
        for (const std::string_view option : befehl.optionen)
            if (!option.empty()) {
                EXPECT_TRUE(Namen(EigeneOptionen()).contains(option)) << befehl.name << " " << option;
                benutzte.insert(option);
            }
    EXPECT_EQ(benutzte, Namen(EigeneOptionen()));
}

TEST(Befehlstafel, No_name_and_no_letter_stands_for_two_options) {
    std::set<std::string_view> namen;
    std::set<char> buchstaben;
    for (const auto reihe : {AllgemeineOptionen(), EigeneOptionen()})
        for (const Option& option : reihe) {
            EXPECT_TRUE(namen.insert(option.name).second) << option.name;
            EXPECT_TRUE(option.kurz == 0 || buchstaben.insert(option.kurz).second) << option.name;
        }
}

TEST(Befehlstafel, Arguments_have_a_name_exactly_where_there_can_be_some) {
    for (const Befehl& befehl : AlleBefehle())
        EXPECT_EQ(befehl.argumente != 0, befehl.hoechstens > 0) << befehl.name;
}

class Hilfetexte : public CtlTest {};

TEST_F(Hilfetexte, The_help_names_every_command_and_every_common_option) {
    EXPECT_EQ(Fuehre({"--help"}), Ende::Erledigt);
    for (const Befehl& befehl : AlleBefehle())
        EXPECT_THAT(konsole.daten, HasSubstr("\n  " + std::string(befehl.name) + " ")) << befehl.name;
    for (const Option& option : AllgemeineOptionen())
        EXPECT_THAT(konsole.daten, HasSubstr("--" + std::string(option.name))) << option.name;
}

TEST_F(Hilfetexte, The_help_on_a_command_names_its_own_options_and_those_of_no_other) {
    for (const Befehl& befehl : AlleBefehle()) {
        EXPECT_EQ(Fuehre({std::string(befehl.name), "--help"}), Ende::Erledigt);
        for (const Option& option : EigeneOptionen()) {
            const std::string zeile = "--" + std::string(option.name) + "  ";
            const std::string mitWert = "--" + std::string(option.name) + " ";
            if (Nimmt(befehl, option.name))
                EXPECT_THAT(konsole.daten, HasSubstr(mitWert)) << befehl.name;
            else
                EXPECT_THAT(konsole.daten, Not(HasSubstr(zeile))) << befehl.name;
        }
    }
}

TEST_F(Hilfetexte, No_line_of_the_help_is_wider_than_100_characters_in_either_language) {
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        std::string alles;
        for (const Befehl& befehl : AlleBefehle()) {
            Fuehre({std::string(befehl.name), "--help"});
            alles += konsole.daten;
        }
        Fuehre({"--help"});
        for (const std::string_view zeile : Zeilen(alles + konsole.daten))
            EXPECT_LE(zeile.size(), 104U) << zeile;
    }
}

TEST_F(Hilfetexte, The_help_needs_no_controller_and_no_arguments) {
    port.oeffnenGelingt = false;
    EXPECT_EQ(Fuehre({"write", "--help"}), Ende::Erledigt);
    EXPECT_TRUE(port.geoeffnet.empty());
    EXPECT_THAT(konsole.daten, HasSubstr("Usage: varnothctl write [OPTION]... SOURCE\n"));
}

TEST_F(Hilfetexte, The_version_is_that_of_the_project) {
    EXPECT_EQ(Fuehre({"--version"}), Ende::Erledigt);
    EXPECT_EQ(konsole.daten, "varnothctl " + std::string(Programmversion()) + "\n");
}

TEST_F(Hilfetexte, A_wrong_command_line_says_what_is_wrong_and_where_more_is_told) {
    EXPECT_EQ(Fuehre({"read", "x"}), Ende::Bedienung);
    EXPECT_EQ(konsole.daten, "");
    EXPECT_EQ(konsole.meldungen, "varnothctl read: This is too much for \"read\": \"x\"\n"
                                 "\"varnothctl read --help\" tells more.\n");
}

} // namespace varnoth::ctl
