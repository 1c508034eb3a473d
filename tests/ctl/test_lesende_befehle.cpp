#include "ctlprobe.h"
#include "konfigurationsdatei.h"
#include "standtext.h"

#include <sys/stat.h>

namespace varnoth::ctl {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class LesendeBefehle : public CtlTest {
protected:
    /// The image of a configuration file.
    Abbild InDatei(const std::string& name) const {
        Abbild abbild;
        EXPECT_EQ(ZerlegeKonfigurationsdatei(Inhalt(Pfad(name)), abbild), Dateibefund::Gut);
        return abbild;
    }
    static Abbild Beispiel() {
        Abbild abbild = Standardkonfiguration();
        EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 32, 0));
        EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Lochgroesse, 9, 0));
        return abbild;
    }
};

} // namespace

TEST_F(LesendeBefehle, Identify_tells_what_the_controller_says_of_itself) {
    EXPECT_EQ(Fuehre({"identify"}), Ende::Erledigt);
    EXPECT_EQ(konsole.daten, "Name: Varnoth Probe\nSerial num.: 4711\nCopyright: (C)\nSlave address: 1\n"
                             "Device type: 50\nState: 7\n");
    EXPECT_EQ(konsole.meldungen, "");
}

TEST_F(LesendeBefehle, Identify_in_JSON_tells_the_same) {
    EXPECT_EQ(Fuehre({"identify", "--json"}), Ende::Erledigt);
    EXPECT_EQ(konsole.daten,
              R"({"command": "identify", "controller": {"name": "Varnoth Probe", "serialNumber": "4711", )"
              R"x("copyright": "(C)", "address": 1, "deviceType": 50, "switchingState": 7}})x"
              "\n");
}

TEST_F(LesendeBefehle, Port_and_format_are_those_of_the_settings_unless_the_options_say_otherwise) {
    einstellungen.texte[{"Settings", "ComPort"}] = "3";
    einstellungen.texte[{"Settings", "ComSettings"}] = "9600,e,8,1";
    Fuehre({"identify"});
    Fuehre({"identify", "--port", "com2", "--format", "19200,o,8,1"});
    EXPECT_THAT(port.geoeffnet, ElementsAre(std::pair(3, std::string("9600,e,8,1")),
                                            std::pair(2, std::string("19200,o,8,1"))));
    EXPECT_EQ(einstellungen.geschrieben, 0);
}

TEST_F(LesendeBefehle, A_port_a_format_and_a_time_that_make_no_sense_are_told_before_anything_is_opened) {
    for (const std::vector<std::string>& worte : {std::vector<std::string>{"identify", "--port", "COM5"},
                                                  {"identify", "--port", "COM12"},
                                                  {"identify", "--port="},
                                                  {"identify", "--format", "fast"},
                                                  {"identify", "--timeout", "soon"},
                                                  {"identify", "--timeout", "0"}})
        EXPECT_EQ(Fuehre(worte), Ende::Bedienung) << worte.back();
    EXPECT_THAT(port.geoeffnet, IsEmpty());
    EXPECT_THAT(konsole.meldungen, StartsWith("varnothctl identify: \"0\" is no number of seconds"));
}

TEST_F(LesendeBefehle, What_is_no_port_is_told_with_an_example_for_each_system) {
    EXPECT_EQ(Fuehre({"identify", "--port", "COM5"}), Ende::Bedienung);
    EXPECT_THAT(konsole.meldungen, AllOf(HasSubstr("\"COM5\" is no port"), HasSubstr("/dev/ttyUSB0"),
                                         HasSubstr("on Windows such as COM5")));
}

TEST_F(LesendeBefehle, A_port_that_cannot_be_opened_is_told_with_its_cause) {
    port.oeffnenGelingt = false;
    port.befund.hindernis = Hindernis::Fehlt;
    EXPECT_EQ(Fuehre({"identify"}), Ende::Port);
    EXPECT_THAT(konsole.meldungen, HasSubstr("There is no device /dev/pruefung."));
}

TEST_F(LesendeBefehle, A_controller_that_does_not_answer_is_given_up_after_the_time_that_was_named) {
    geraet.schweige = [](const std::string&) { return true; };
    EXPECT_EQ(Fuehre({"identify", "--timeout", "3"}), Ende::KeineAntwort);
    EXPECT_THAT(konsole.meldungen,
                HasSubstr("No connection over /dev/pruefung, format 38400,n,8,2. Nothing answers."));
    EXPECT_GE(umgebung.uhr, std::chrono::seconds(3));
    EXPECT_LE(umgebung.uhr, std::chrono::seconds(6));
}

TEST_F(LesendeBefehle, A_command_goes_on_for_as_long_as_something_succeeds) {
    int anforderungen = 0;
    geraet.schweige = [&anforderungen](const std::string&) { return ++anforderungen % 3 == 0; };
    EXPECT_EQ(Fuehre({"read", "--timeout", "3"}), Ende::Erledigt) << konsole.meldungen;
    EXPECT_GT(umgebung.uhr, std::chrono::seconds(4));
}

TEST_F(LesendeBefehle, A_port_that_is_lost_in_the_middle_is_told_as_such) {
    konsole.beiFortschritt = [this] { port.befund.hindernis = Hindernis::Fehlt; };
    geraet.schweige = [this](const std::string&) { return port.befund.hindernis == Hindernis::Fehlt; };
    EXPECT_EQ(Fuehre({"read", "--timeout", "1"}), Ende::Port);
    port.befund.hindernis = Hindernis::Keines;
    konsole.beiFortschritt = [this] { port.offen = port.oeffnenGelingt = false; };
    EXPECT_EQ(Fuehre({"read", "--timeout", "1"}), Ende::Port) << "it is there again, but not open";
}

TEST_F(LesendeBefehle, The_port_is_closed_at_the_end) {
    Fuehre({"identify"});
    EXPECT_FALSE(port.offen);
}

TEST_F(LesendeBefehle, An_interruption_ends_a_read_after_the_exchange_in_progress) {
    konsole.beiFortschritt = [this] { konsole.unterbrochen = konsole.fortschritt.size() == 5; };
    EXPECT_EQ(Fuehre({"read"}), Ende::Unterbrochen);
    EXPECT_EQ(konsole.daten, "");
    EXPECT_EQ(konsole.meldungen, "varnothctl read: Interrupted.\n");
    EXPECT_FALSE(port.offen);
}

TEST_F(LesendeBefehle, Read_gives_the_configuration_as_text_that_reads_back_as_the_same) {
    geraet.Spezifisch(0, spezifisch::Lochgroesse) = 9;
    EXPECT_EQ(Fuehre({"read"}), Ende::Erledigt);
    const auto befund = LiesStandtext(konsole.daten);
    ASSERT_TRUE(befund.abbild);
    EXPECT_EQ(befund.abbild->HoleRegister(Spezifisch, spezifisch::Lochgroesse, 0), 9);
    EXPECT_EQ(konsole.fortschritt.front(), "Reading 0 %");
    EXPECT_EQ(konsole.fortschritt.back(), "Reading 100 %");
}

TEST_F(LesendeBefehle, Read_makes_a_configuration_file_where_one_is_asked_for) {
    geraet.Spezifisch(0, spezifisch::Lochgroesse) = 9;
    EXPECT_EQ(Fuehre({"read", "-o", Pfad("a.con")}), Ende::Erledigt);
    EXPECT_EQ(InDatei("a.con").HoleRegister(Spezifisch, spezifisch::Lochgroesse, 0), 9);
    EXPECT_EQ(konsole.daten, "");
    EXPECT_EQ(konsole.meldungen, "Saved: " + Pfad("a.con") + "\n");
}

TEST_F(LesendeBefehle, Quiet_leaves_messages_and_progress_out_but_no_error) {
    EXPECT_EQ(Fuehre({"read", "-o", Pfad("a.con"), "--quiet"}), Ende::Erledigt);
    EXPECT_EQ(konsole.meldungen, "");
    EXPECT_THAT(konsole.fortschritt, IsEmpty());
    EXPECT_EQ(Fuehre({"read", "-o", Pfad("a.con"), "--quiet"}), Ende::Bedienung);
    EXPECT_NE(konsole.meldungen, "");
}

TEST_F(LesendeBefehle, A_file_that_is_there_is_replaced_only_when_the_user_says_so) {
    Schreibe(Pfad("a.con"), "old");
    EXPECT_EQ(Fuehre({"read", "-o", Pfad("a.con")}), Ende::Bedienung);
    konsole.antwort = false;
    EXPECT_EQ(Fuehre({"read", "-o", Pfad("a.con")}), Ende::Unterbrochen);
    EXPECT_THAT(konsole.fragen, ElementsAre(Pfad("a.con") + " is there already. Replace it?"));
    EXPECT_EQ(Inhalt(Pfad("a.con")), "old");
    EXPECT_TRUE(port.gesendet.empty());
    konsole.antwort = true;
    EXPECT_EQ(Fuehre({"read", "-o", Pfad("a.con")}), Ende::Erledigt);
    EXPECT_EQ(InDatei("a.con").HoleRegister(Spezifisch, spezifisch::Strahlenzahl, 0), 32);
}

TEST_F(LesendeBefehle, What_is_no_place_for_a_file_is_told_before_anything_is_sent) {
    ASSERT_EQ(::mkfifo(Pfad("pipe").c_str(), 0600), 0);
    for (const std::string& pfad : {Pfad(""), Pfad("pipe"), std::string("/dev/null")})
        EXPECT_EQ(Fuehre({"read", "--yes", "-o", pfad}), Ende::Datei) << pfad;
    EXPECT_TRUE(port.gesendet.empty());
    EXPECT_EQ(Fuehre({"read", "-o", Pfad("missing/a.con")}), Ende::Datei);
    EXPECT_THAT(konsole.meldungen, HasSubstr("missing/a.con"));
}

TEST_F(LesendeBefehle, Read_warns_of_values_that_no_controller_takes) {
    geraet.Spezifisch(0, spezifisch::Lochgroesse) = 0;
    EXPECT_EQ(Fuehre({"read"}), Ende::Erledigt);
    EXPECT_THAT(konsole.meldungen,
                HasSubstr("No controller takes these values:\nOptical part 1, Hole size/width: 0"));
}

TEST_F(LesendeBefehle, Export_turns_a_file_into_text_and_import_makes_the_same_file_of_it) {
    Schreibe(Pfad("a.con"), AlsKonfigurationsdatei(Beispiel()));
    EXPECT_EQ(Fuehre({"export", Pfad("a.con"), "-o", Pfad("a.txt")}), Ende::Erledigt);
    EXPECT_EQ(Inhalt(Pfad("a.txt")), Standtext(Beispiel()));
    EXPECT_EQ(Fuehre({"import", Pfad("a.txt"), "-o", Pfad("b.con")}), Ende::Erledigt);
    EXPECT_EQ(Inhalt(Pfad("b.con")), Inhalt(Pfad("a.con")));
    EXPECT_TRUE(port.gesendet.empty());
}

TEST_F(LesendeBefehle, Export_without_a_source_is_that_of_the_controller) {
    EXPECT_EQ(Fuehre({"export"}), Ende::Erledigt);
    EXPECT_THAT(konsole.daten, HasSubstr("Optical part 1 / Count of beams/segments / 12 / 32\n"));
}

TEST_F(LesendeBefehle, Import_names_every_wrong_line_and_makes_no_file) {
    std::string text = Standtext(Beispiel());
    text.replace(text.find("20mm") == std::string::npos ? text.find("5mm") : text.find("20mm"), 3, "7mm");
    text += "Optical part 1 / Nonsense / 3 / 4\n";
    Schreibe(Pfad("a.txt"), text);
    EXPECT_EQ(Fuehre({"import", Pfad("a.txt"), "-o", Pfad("b.con")}), Ende::Datei);
    EXPECT_THAT(konsole.meldungen, HasSubstr(Pfad("a.txt") + ": Line "));
    EXPECT_THAT(konsole.meldungen, HasSubstr("There is no “Nonsense” in this range."));
    EXPECT_FALSE(std::filesystem::exists(Pfad("b.con")));
}

TEST_F(LesendeBefehle, Import_refuses_values_that_no_controller_takes) {
    Abbild abbild = Beispiel();
    EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Lochgroesse, 0, 0));
    Schreibe(Pfad("a.txt"), Standtext(abbild));
    EXPECT_EQ(Fuehre({"import", Pfad("a.txt"), "-o", Pfad("b.con")}), Ende::Datei);
    EXPECT_THAT(konsole.meldungen, HasSubstr("Hole size/width: 0"));
    EXPECT_FALSE(std::filesystem::exists(Pfad("b.con")));
}

TEST_F(LesendeBefehle, Import_needs_a_target_that_is_not_its_source) {
    Schreibe(Pfad("a.txt"), Standtext(Beispiel()));
    EXPECT_EQ(Fuehre({"import", Pfad("a.txt")}), Ende::Bedienung);
    EXPECT_EQ(Fuehre({"import", Pfad("a.txt"), "-o", Pfad("./a.txt"), "--yes"}), Ende::Bedienung);
    EXPECT_EQ(Fuehre({"import", "device", "-o", Pfad("b.con")}), Ende::Bedienung);
    EXPECT_EQ(Inhalt(Pfad("a.txt")), Standtext(Beispiel()));
}

TEST_F(LesendeBefehle, A_source_that_is_no_configuration_is_told_as_what_it_is) {
    ASSERT_EQ(::mkfifo(Pfad("pipe").c_str(), 0600), 0);
    Schreibe(Pfad("junk"), "hello");
    Schreibe(Pfad("newer.con"), std::string("Varnoth Konfiguration\x09") + std::string(11000, '\0'));
    Schreibe(Pfad("empty"), "");
    const std::pair<std::string, std::string> faelle[] = {
        {Pfad("missing"), "The file or folder does not exist."},
        {Pfad(""), "folder"},
        {Pfad("pipe"), "pipe"},
        {"/dev/null", "/dev/null"},
        {Pfad("junk"), "holds no configuration that can be used"},
        {Pfad("empty"), "holds no configuration that can be used"},
        {Pfad("newer.con"), "Unknown file version"},
    };
    for (const auto& [pfad, grund] : faelle) {
        EXPECT_EQ(Fuehre({"export", pfad}), Ende::Datei) << pfad;
        EXPECT_THAT(konsole.meldungen, HasSubstr(grund)) << pfad;
        EXPECT_EQ(konsole.daten, "");
    }
}

TEST_F(LesendeBefehle, Report_tells_of_the_controller_and_of_the_fields_given) {
    EXPECT_EQ(Fuehre({"report", "--plant", "Hall 7", "--machine", "Winder", "--person", "A. Smith"}),
              Ende::Erledigt);
    EXPECT_THAT(konsole.daten, StartsWith("<!DOCTYPE html>"));
    for (const char* const wort : {"Hall 7", "Winder", "A. Smith", "Varnoth Probe", "Controller, read on "})
        EXPECT_THAT(konsole.daten, HasSubstr(wort));
}

TEST_F(LesendeBefehle, Report_on_a_file_says_which_and_needs_no_controller) {
    Schreibe(Pfad("a.con"), AlsKonfigurationsdatei(Beispiel()));
    EXPECT_EQ(Fuehre({"report", Pfad("a.con"), "-o", Pfad("a.html")}), Ende::Erledigt);
    EXPECT_THAT(Inhalt(Pfad("a.html")), HasSubstr("a.con"));
    EXPECT_THAT(Inhalt(Pfad("a.html")), Not(HasSubstr("read on")));
    EXPECT_TRUE(port.gesendet.empty());
}

TEST_F(LesendeBefehle, Reset_asks_first_and_tells_the_controller_to_start_anew) {
    EXPECT_EQ(Fuehre({"reset"}), Ende::Bedienung);
    EXPECT_TRUE(port.gesendet.empty());
    konsole.antwort = false;
    EXPECT_EQ(Fuehre({"reset"}), Ende::Unterbrochen);
    EXPECT_THAT(geraet.geschrieben, IsEmpty());
    EXPECT_EQ(Fuehre({"reset", "--yes"}), Ende::Erledigt);
    EXPECT_THAT(geraet.geschrieben,
                ElementsAre(pruefung::PruefGeraet::Schreibvorgang{0, global::Kommando, {3}}));
    EXPECT_EQ(konsole.daten, "The controller starts anew.\n");
}

TEST_F(LesendeBefehle, A_controller_that_answers_but_does_not_obey_is_told_apart_from_a_silent_one) {
    geraet.schweige = [](const std::string& anforderung) { return anforderung.at(1) == 0x10; };
    EXPECT_EQ(Fuehre({"reset", "--yes"}), Ende::Abgelehnt);
    EXPECT_EQ(konsole.meldungen, "varnothctl reset: The controller answers, but does not carry this out.\n");
}

} // namespace varnoth::ctl
