#include "passwortschutz.h"

#include "busprobe.h"
#include "servicetext.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace busprobe;

namespace {

constexpr int Passwortadresse = 178;

Werte Passwort() {
    return {0x5661, 0x726E, 0x6F74, 0x682D, 0x5365, 0x7276, 0x6963, 0x6531};
}

} // namespace

class PasswortschutzTest : public testing::Test {
protected:
    PasswortschutzTest() { modService::SetzeServiceText("Varnoth-Service1"); }

    /// How many bytes may be shown of the request, and of what came.
    std::pair<std::size_t, std::size_t> Zeigbar(const Probe& probe) {
        const auto zeigbares = schutz.Pruefe(probe);
        return {zeigbares.anforderung, zeigbares.empfangen};
    }
    static std::pair<std::size_t, std::size_t> Alles(const Probe& probe) {
        return {probe.anforderung.size(), probe.empfangen.size()};
    }

    Passwortschutz schutz;
};

TEST_F(PasswortschutzTest, Exchanges_about_other_registers_may_be_shown_whole) {
    for (const Probe& probe : {Gelesen(177, {1}), Gelesen(186, {1}), Geschrieben(0x4000 + 178, {1}),
                               Geschrieben(186, {1}), Ungefragtes("xyz"), Unbeantwortet(5)})
        EXPECT_EQ(Zeigbar(probe), Alles(probe));
}

TEST_F(PasswortschutzTest, Of_a_write_of_the_password_what_is_written_is_hidden_and_the_confirmation_is_not) {
    const Probe probe = Geschrieben(Passwortadresse, Passwort());
    EXPECT_EQ(Zeigbar(probe), std::pair(std::size_t{7}, probe.empfangen.size()));
}

TEST_F(PasswortschutzTest, So_is_every_single_register_of_it_whatever_it_holds) {
    modService::SetzeServiceText("");
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(Zeigbar(Geschrieben(Passwortadresse + i, {0x4142})).first, 7U) << i;
    EXPECT_EQ(Zeigbar(Geschrieben(170, Werte(9, 0x4142))).first, 7U) << "a block that reaches into it";
}

TEST_F(PasswortschutzTest, What_is_read_from_its_registers_is_hidden) {
    modService::SetzeServiceText("");
    const Probe probe = Gelesen(Passwortadresse, Passwort());
    EXPECT_EQ(Zeigbar(probe), std::pair(probe.anforderung.size(), std::size_t{0}));
}

TEST_F(PasswortschutzTest, An_echo_of_it_is_hidden) {
    modService::SetzeServiceText("");
    Probe probe = Geschrieben(Passwortadresse, Passwort());
    probe.empfangen = probe.anforderung + probe.empfangen;
    probe.ergebnis = Austauschergebnis::Echo;
    EXPECT_EQ(Zeigbar(probe), std::pair(std::size_t{7}, std::size_t{0}));
}

TEST_F(PasswortschutzTest, What_comes_late_behind_it_is_hidden_until_an_exchange_has_gone_cleanly) {
    modService::SetzeServiceText("");
    Probe stumm = Geschrieben(Passwortadresse, Passwort());
    stumm.empfangen.clear();
    stumm.ergebnis = Austauschergebnis::Zeitueberschreitung;
    Zeigbar(stumm);
    EXPECT_EQ(Zeigbar(Ungefragtes("oth-Service1")).second, 0U);
    EXPECT_EQ(Zeigbar(Ungefragtes("1")).second, 0U) << "the last byte of an echo";
    Probe mitRest = Gelesen(5, {1});
    mitRest.empfangen = "e1" + mitRest.empfangen;
    EXPECT_EQ(Zeigbar(mitRest).second, 0U);
    const Probe saubere = Gelesen(5, {1});
    EXPECT_EQ(Zeigbar(saubere), Alles(saubere));
    EXPECT_EQ(Zeigbar(Ungefragtes("abc")).second, 3U);
}

TEST_F(PasswortschutzTest, Wherever_four_characters_of_it_come_what_is_behind_them_is_hidden) {
    EXPECT_EQ(Zeigbar(Ungefragtes("xyServ!")).second, 2U);
    EXPECT_EQ(Zeigbar(Ungefragtes("xySer!")).second, 6U) << "three are an accident";
    EXPECT_EQ(Zeigbar(Geschrieben(0x4000 + 10, Passwort())).first, 7U) << "typed into other registers";
}

TEST_F(PasswortschutzTest, The_blanks_that_fill_up_a_short_one_are_no_trace_of_it) {
    modService::SetzeServiceText("kurz            ");
    EXPECT_EQ(Zeigbar(Ungefragtes("ab      cd")).second, 10U);
    EXPECT_EQ(Zeigbar(Ungefragtes("ab kurz")).second, 3U);
}

TEST_F(PasswortschutzTest, A_text_loses_every_occurrence_of_it) {
    EXPECT_EQ(OhnePasswort("a Varnoth-Service1, Varnoth-Service1!"), "a ••, ••!");
    EXPECT_EQ(OhnePasswort("Varnoth-Service"), "Varnoth-Service");
    modService::SetzeServiceText("kurz            ");
    EXPECT_EQ(OhnePasswort("ein kurzes"), "ein ••es");
    modService::SetzeServiceText("\xFC\xFC\xFC\xFC            "); // one byte a character
    EXPECT_EQ(OhnePasswort("ein üüüü"), "ein ••");
    modService::SetzeServiceText("                ");
    EXPECT_EQ(OhnePasswort("a    b"), "a    b");
}

TEST_F(PasswortschutzTest, Settings_that_by_their_name_hold_a_password_are_confidential) {
    for (const char* schluessel : {"Passwort", "ServicePassword", "KENNWORT", "pwd", "ApiToken"})
        EXPECT_TRUE(IstVertraulich(schluessel)) << schluessel;
    for (const char* schluessel : {"ComPort", "Width", "Seriennummer", ""})
        EXPECT_FALSE(IstVertraulich(schluessel)) << schluessel;
}

} // namespace varnoth
