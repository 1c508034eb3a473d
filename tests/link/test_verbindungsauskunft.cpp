#include "verbindungsauskunft.h"

#include "pruefgeraet.h"
#include "texte.h"
#include "transaktionen.h"

#include <gtest/gtest.h>

namespace varnoth {

using pruefung::Stueck;

/// A port that tells what stands in its way.
class VerbindungsauskunftTest : public testing::Test {
protected:
    VerbindungsauskunftTest() {
        SetzeSprachoffset(Englisch);
        modSchnittstelle::OpenCommPort();
        port.antworte = nullptr;
    }
    ~VerbindungsauskunftTest() override { SetzeSprachoffset(Deutsch); }

    std::string Ursache(Portbefund befund) {
        port.befund = std::move(befund);
        return LiesVerbindungsauskunft().ursache;
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefPort port{umgebung};
};

TEST_F(VerbindungsauskunftTest, Port_device_and_format_are_named) {
    modSchnittstelle::SetzeComPort(3);
    modSchnittstelle::SetzeComSettings("9600,e,8,1");
    EXPECT_EQ(LiesVerbindungsauskunft().anschluss, "COM3, /dev/pruefung, format 9600,e,8,1");
}

TEST_F(VerbindungsauskunftTest, The_built_in_controller_is_named_in_place_of_a_port) {
    port.anschluss = {.simuliert = true};
    EXPECT_EQ(LiesVerbindungsauskunft().anschluss, "Built-in controller, format 38400,n,8,2");
}

TEST_F(VerbindungsauskunftTest, A_settings_string_that_is_no_format_is_the_cause) {
    EXPECT_TRUE(
        Ursache({.hindernis = Hindernis::Einstellung}).starts_with("“38400,n,8,2” is no line format"));
}

TEST_F(VerbindungsauskunftTest, A_device_that_is_not_there_is_the_cause) {
    EXPECT_TRUE(Ursache({.hindernis = Hindernis::Fehlt}).starts_with("There is no device /dev/pruefung."));
}

TEST_F(VerbindungsauskunftTest, A_missing_right_names_the_group_and_the_command_that_helps) {
    EXPECT_EQ(
        Ursache({.hindernis = Hindernis::KeinRecht,
                 .eigentuemer = "root",
                 .gruppe = "dialout",
                 .nutzer = "anna"}),
        "anna may not open /dev/pruefung; the group dialout may. Remedy: “sudo usermod -aG dialout anna”, "
        "then log in again.");
}

TEST_F(VerbindungsauskunftTest, A_group_joined_after_the_login_counts_after_the_next_one) {
    EXPECT_EQ(Ursache({.hindernis = Hindernis::KeinRecht,
                       .eigentuemer = "root",
                       .gruppe = "dialout",
                       .gruppeErstNachAnmeldung = true,
                       .nutzer = "anna"}),
              "anna has joined the group dialout lately. That counts after the next login only.");
}

TEST_F(VerbindungsauskunftTest, Without_a_group_that_helps_the_owner_is_named) {
    EXPECT_EQ(
        Ursache({.hindernis = Hindernis::KeinRecht, .eigentuemer = "root", .nutzer = "anna"}),
        "anna may not open /dev/pruefung; it belongs to root. Only an administrator of the computer can "
        "change that.");
}

TEST_F(VerbindungsauskunftTest, The_programs_that_have_the_port_are_named) {
    EXPECT_EQ(Ursache({.hindernis = Hindernis::Belegt, .prozesse = {"term (12)", "cat (34)"}}),
              "/dev/pruefung is in use by: term (12), cat (34). Please end that program.");
    EXPECT_EQ(Ursache({.hindernis = Hindernis::Belegt}), "/dev/pruefung is in use by another program.");
}

TEST_F(VerbindungsauskunftTest, Another_program_at_an_open_port_is_the_cause_before_silence) {
    modModbus::RTUModeH11IndentifikationsAnforderung();
    EXPECT_TRUE(Ursache({.prozesse = {"cat (34)"}}).starts_with("/dev/pruefung is in use by: cat (34)."));
}

TEST_F(VerbindungsauskunftTest, Any_other_error_is_told_in_the_systems_words) {
    port.offen = false;
    EXPECT_EQ(Ursache({.hindernis = Hindernis::Systemfehler}),
              "/dev/pruefung cannot be opened: no such port");
}

TEST_F(VerbindungsauskunftTest, Silence_garbage_and_echo_are_told_apart) {
    modModbus::RTUModeH11IndentifikationsAnforderung();
    EXPECT_TRUE(Ursache({}).starts_with("Nothing answers."));
    port.antworte = [](const std::string&) { return std::vector<Stueck>{{Zeit{0}, "\x81\x92\xA3"}}; };
    modModbus::RTUModeH11IndentifikationsAnforderung();
    EXPECT_TRUE(Ursache({}).starts_with("Something answers that cannot be understood."));
    port.antworte = [](const std::string& bytes) { return std::vector<Stueck>{{Zeit{0}, bytes}}; };
    modModbus::RTUModeH11IndentifikationsAnforderung();
    EXPECT_TRUE(Ursache({}).starts_with("What is sent comes back (echo)."));
    EXPECT_EQ(
        LiesVerbindungsauskunft().einzelheiten,
        "COM1, /dev/pruefung, format 38400,n,8,2\n"
        "Requests: 0 answered, 0 without a port, 1 without a reply, 1 with a reply that was not understood, "
        "1 with an echo");
}

TEST_F(VerbindungsauskunftTest, A_controller_that_has_answered_the_last_request_is_not_called_silent) {
    pruefung::PruefGeraet geraet{port};
    modModbus::RTUModeH11IndentifikationsAnforderung();
    EXPECT_TRUE(Ursache({}).starts_with("The controller answers, but not every time."));
}

TEST_F(VerbindungsauskunftTest, A_port_that_is_back_already_was_not_open) {
    port.offen = port.oeffnenGelingt = false;
    modModbus::RTUModeH11IndentifikationsAnforderung();
    EXPECT_TRUE(Ursache({}).starts_with("The port was not open;"));
}

TEST_F(VerbindungsauskunftTest, Before_any_exchange_no_cause_is_made_up) {
    EXPECT_EQ(Ursache({}), "");
}

TEST_F(VerbindungsauskunftTest, A_device_that_is_called_like_its_port_is_named_once) {
    modSchnittstelle::SetzeGeraet("COM1");
    EXPECT_EQ(LiesVerbindungsauskunft().anschluss, "COM1, format 38400,n,8,2");
}

TEST_F(VerbindungsauskunftTest, The_message_keeps_its_text_and_title) {
    modModbus::RTUModeH11IndentifikationsAnforderung();
    const Meldung meldung = MeldungOhneVerbindung("text", "title");
    EXPECT_EQ(meldung.text, "text");
    EXPECT_EQ(meldung.titel, "title");
    EXPECT_EQ(meldung.symbol, Symbol::Warnung);
    EXPECT_TRUE(
        meldung.informativtext.starts_with("COM1, /dev/pruefung, format 38400,n,8,2\n\nNothing answers."));
    EXPECT_FALSE(meldung.details.empty());
}

} // namespace varnoth
