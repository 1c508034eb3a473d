#include "befehlszeile.h"
#include "texte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth::ctl {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Worte = std::vector<std::string>;

class Befehlszeilen : public testing::Test {
protected:
    Befehlszeilen() { SetzeSprachoffset(Englisch); }

    static std::string Fehler(const Worte& worte) { return LiesBefehlszeile(worte).fehler; }
    static Befehlszeile Lies(const Worte& worte) {
        const auto befund = LiesBefehlszeile(worte);
        EXPECT_EQ(befund.fehler, "");
        return befund.zeile;
    }
};

std::int16_t Sprache(const Worte& worte, const std::map<std::string, std::string>& variablen) {
    return SpracheAus(worte, [&](const char* name) {
        const auto stelle = variablen.find(name);
        return stelle == variablen.end() ? std::string() : stelle->second;
    });
}

} // namespace

TEST_F(Befehlszeilen, Has_its_command_arguments_and_options_in_any_order) {
    const auto zeile = Lies({"--port", "/dev/x", "compare", "a.con", "-j", "b.con", "--timeout=2"});
    ASSERT_NE(zeile.befehl, nullptr);
    EXPECT_EQ(zeile.befehl->name, "compare");
    EXPECT_THAT(zeile.argumente, ElementsAre("a.con", "b.con"));
    EXPECT_EQ(zeile.Wert("port"), "/dev/x");
    EXPECT_EQ(zeile.Wert("timeout"), "2");
    EXPECT_TRUE(zeile.Hat("json"));
    EXPECT_FALSE(zeile.Hat("yes"));
}

TEST_F(Befehlszeilen, A_short_option_may_have_its_value_attached) {
    EXPECT_EQ(Lies({"watch", "-n5"}).Wert("count"), "5");
    EXPECT_EQ(Lies({"read", "-o", "a.con"}).Wert("output"), "a.con");
}

TEST_F(Befehlszeilen, An_empty_value_behind_an_equals_sign_is_a_value) {
    EXPECT_EQ(Lies({"report", "--plant="}).Wert("plant"), "");
}

TEST_F(Befehlszeilen, A_negative_number_is_an_argument) {
    EXPECT_THAT(Lies({"set", "193", "-5"}).argumente, ElementsAre("193", "-5"));
}

TEST_F(Befehlszeilen, Behind_two_dashes_there_is_no_option_any_more) {
    EXPECT_THAT(Lies({"compare", "--", "-a", "--json"}).argumente, ElementsAre("-a", "--json"));
}

TEST_F(Befehlszeilen, A_single_dash_is_an_argument) {
    EXPECT_THAT(Lies({"write", "-"}).argumente, ElementsAre("-"));
}

TEST_F(Befehlszeilen, Without_a_command_there_is_an_error_unless_help_or_version_is_asked_for) {
    EXPECT_EQ(Fehler({}), "A command is missing.");
    EXPECT_EQ(Fehler({"--json"}), "A command is missing.");
    EXPECT_EQ(Fehler({"--help"}), "");
    EXPECT_EQ(Fehler({"--version"}), "");
}

TEST_F(Befehlszeilen, An_unknown_command_is_told_with_the_nearest_ones) {
    EXPECT_EQ(Fehler({"raed"}), "There is no command \"raed\". Perhaps \"read\" was meant.");
    EXPECT_EQ(Fehler({"xyzzy"}), "There is no command \"xyzzy\".");
}

TEST_F(Befehlszeilen, An_unknown_option_is_told_with_the_nearest_ones) {
    EXPECT_EQ(Fehler({"read", "--ouput", "x"}),
              "There is no option --ouput. Perhaps \"--output\" was meant.");
    EXPECT_EQ(Fehler({"read", "-x"}), "There is no option -x.");
}

TEST_F(Befehlszeilen, An_option_of_another_command_is_refused) {
    EXPECT_EQ(Fehler({"read", "--store"}), "\"read\" has no option --store.");
    EXPECT_EQ(Fehler({"write", "a.con", "--store"}), "");
}

TEST_F(Befehlszeilen, An_option_given_twice_is_refused) {
    EXPECT_EQ(Fehler({"read", "-o", "a", "--output=b"}), "The option --output is given twice.");
}

TEST_F(Befehlszeilen, A_missing_value_and_one_too_many_are_told) {
    EXPECT_EQ(Fehler({"read", "--output"}), "FILE is missing behind --output.");
    EXPECT_EQ(Fehler({"read", "--json=1"}), "The option --json takes no value.");
}

TEST_F(Befehlszeilen, Too_few_and_too_many_arguments_are_told) {
    EXPECT_EQ(Fehler({"compare", "a"}), "Something is missing for \"compare\": A B");
    EXPECT_EQ(Fehler({"compare", "a", "b", "c"}), "This is too much for \"compare\": \"c\"");
    EXPECT_EQ(Fehler({"get"}), "Something is missing for \"get\": REGISTER...");
    EXPECT_EQ(Fehler({"get", "1", "2", "3", "4"}), "");
}

TEST_F(Befehlszeilen, A_language_that_there_is_not_is_refused) {
    EXPECT_EQ(Fehler({"read", "--lang", "fr"}), "\"fr\" is no language; there are de and en.");
    EXPECT_EQ(Fehler({"read", "--lang", "de"}), "");
}

TEST_F(Befehlszeilen, The_option_for_the_language_comes_before_the_environment) {
    EXPECT_EQ(Sprache({"read", "--lang", "de"}, {{"LANG", "en_US.UTF-8"}}), Deutsch);
    EXPECT_EQ(Sprache({"--lang=en"}, {{"LC_ALL", "de_DE"}}), Englisch);
    EXPECT_EQ(Sprache({"-l", "de"}, {}), Deutsch);
    EXPECT_EQ(Sprache({"-lde"}, {}), Deutsch);
    EXPECT_EQ(Sprache({"--", "--lang=de"}, {}), Englisch);
}

TEST_F(Befehlszeilen, Of_the_environment_the_first_variable_that_is_set_tells_the_language) {
    EXPECT_EQ(Sprache({}, {{"LANG", "de_AT.UTF-8"}}), Deutsch);
    EXPECT_EQ(Sprache({}, {{"LC_MESSAGES", "en_GB"}, {"LANG", "de_DE"}}), Englisch);
    EXPECT_EQ(Sprache({}, {{"LC_ALL", "de"}, {"LC_MESSAGES", "en_GB"}}), Deutsch);
    EXPECT_EQ(Sprache({}, {{"LC_ALL", ""}, {"LANG", "de"}}), Deutsch);
    EXPECT_EQ(Sprache({}, {}), Englisch);
    EXPECT_EQ(Sprache({}, {{"LANG", "fr_FR"}}), Englisch);
}

} // namespace varnoth::ctl
