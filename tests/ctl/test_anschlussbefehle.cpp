// The commands that find the controller and check its line, at a scripted port.

#include "ctlprobe.h"

#include <array>

namespace varnoth::ctl {

using testing::HasSubstr;
using testing::StartsWith;

class Anschlussbefehle : public CtlTest {
protected:
    /// The controller answers at this device and in this format alone.
    void LassAntwortenAn(const std::string& wo, const std::string& format) {
        geraet.schweige = [this, wo, format](const std::string&) {
            return port.genanntes != wo || port.format != format;
        };
    }
};

TEST_F(Anschlussbefehle, Find_tells_where_and_how_the_controller_answers) {
    LassAntwortenAn("/dev/b", "9600,e,8,1");
    EXPECT_EQ(Fuehre({"find", "/dev/a", "/dev/b"}), Ende::Erledigt);
    EXPECT_EQ(konsole.daten,
              "Controller found at /dev/b with 9600,e,8,1: Varnoth Probe, serial number 4711, address 1.\n");
    EXPECT_THAT(konsole.fortschritt.front(), StartsWith("1/42 /dev/a 38400,n,8,2"));
}

TEST_F(Anschlussbefehle, Find_in_json_tells_every_try) {
    LassAntwortenAn("/dev/b", "38400,n,8,2");
    EXPECT_EQ(Fuehre({"find", "/dev/a", "/dev/b", "--json"}), Ende::Erledigt);
    EXPECT_THAT(
        konsole.daten,
        StartsWith(
            R"({"command": "find", "found": {"device": "/dev/b", "format": "38400,n,8,2", "echo": false, "controller": {"name": "Varnoth Probe", "serialNumber": "4711",)"));
    EXPECT_THAT(
        konsole.daten,
        HasSubstr(
            R"("tries": [{"device": "/dev/a", "format": "38400,n,8,2", "result": "silent", "words": "no reply"}, {"device": "/dev/b", "format": "38400,n,8,2", "result": "found", "words": "controller found"}])"));
}

TEST_F(Anschlussbefehle, Find_keeps_to_the_port_and_the_format_of_the_options) {
    geraet.schweige = [](const std::string&) { return true; };
    EXPECT_EQ(Fuehre({"find", "/dev/a", "/dev/a", "--format", "19200,o,8,1"}), Ende::KeineAntwort);
    EXPECT_EQ(port.geoeffnet, (std::vector<std::pair<int, std::string>>{{1, "19200,o,8,1"}}));
    EXPECT_EQ(konsole.daten, "");
    EXPECT_THAT(konsole.meldungen, StartsWith("varnothctl find: No controller found (1 try)."));
    EXPECT_EQ(Fuehre({"find", "--port", "/dev/a"}), Ende::KeineAntwort);
    EXPECT_EQ(port.geoeffnet.size(), 1U + 21U);
}

TEST_F(Anschlussbefehle, Find_fails_with_the_cause_where_no_port_can_be_opened) {
    port.oeffnenGelingt = false;
    port.befund = {.hindernis = Hindernis::Belegt, .prozesse = {"varnoth (77)"}};
    EXPECT_EQ(Fuehre({"find", "/dev/a"}), Ende::Port);
    EXPECT_THAT(konsole.meldungen, HasSubstr("/dev/a is in use by: varnoth (77)."));
}

TEST_F(Anschlussbefehle, Find_that_is_interrupted_says_so) {
    geraet.schweige = [this](const std::string&) {
        konsole.unterbrochen = true;
        return true;
    };
    EXPECT_EQ(Fuehre({"find", "/dev/a", "--json"}), Ende::Unterbrochen);
    EXPECT_THAT(konsole.daten, StartsWith(R"({"command": "find", "found": null, "tries": [)"));
    EXPECT_THAT(konsole.meldungen, HasSubstr("Search cancelled"));
}

TEST_F(Anschlussbefehle, Linecheck_gives_numbers_and_meaning) {
    EXPECT_EQ(Fuehre({"linecheck", "--requests", "3", "--port", "/dev/pruefung"}), Ende::Erledigt);
    EXPECT_THAT(konsole.daten, HasSubstr("Requests: 3\nAnswered: 3\n"));
    EXPECT_THAT(konsole.daten, HasSubstr("Every request was answered (3). The line is in order.\n"));
    EXPECT_EQ(konsole.fortschritt, (std::vector<std::string>{"1/3", "2/3", "3/3"}));
    EXPECT_EQ(port.gesendet.size(), 3U);
}

TEST_F(Anschlussbefehle, Linecheck_asks_two_hundred_times_unless_told_otherwise) {
    Fuehre({"linecheck", "--json"});
    EXPECT_THAT(
        konsole.daten,
        StartsWith(
            R"({"command": "linecheck", "device": "/dev/pruefung", "format": "38400,n,8,2", "sent": 200, "answered": 200, "silent": 0,)"));
    EXPECT_THAT(konsole.daten, HasSubstr(R"("meaning": [{"kind": "ok",)"));
}

TEST_F(Anschlussbefehle, Linecheck_ends_with_a_code_for_what_it_met) {
    geraet.schweige = [](const std::string&) { return true; };
    EXPECT_EQ(Fuehre({"linecheck", "--requests", "2"}), Ende::KeineAntwort);
    EXPECT_THAT(konsole.daten, HasSubstr("Nothing came: 2\n"));
    geraet.schweige = [this](const std::string&) {
        konsole.unterbrochen = true;
        return false;
    };
    EXPECT_EQ(Fuehre({"linecheck"}), Ende::Unterbrochen);
    EXPECT_THAT(konsole.daten, HasSubstr("Requests: 0\n"));
    konsole.unterbrochen = false;
    geraet.schweige = [this](const std::string&) {
        port.offen = false;
        return true;
    };
    EXPECT_EQ(Fuehre({"linecheck"}), Ende::Port);
    port.oeffnenGelingt = false;
    port.befund = {.hindernis = Hindernis::Fehlt};
    EXPECT_EQ(Fuehre({"linecheck"}), Ende::Port);
    EXPECT_THAT(konsole.meldungen, StartsWith("varnothctl linecheck: There is no device /dev/pruefung."));
    EXPECT_EQ(konsole.daten, "");
}

TEST_F(Anschlussbefehle, Linecheck_takes_no_number_that_is_none) {
    for (const char* worte : {"0", "-3", "x", "", "2x", "1000001"})
        EXPECT_EQ(Fuehre({"linecheck", "--requests=" + std::string(worte)}), Ende::Bedienung) << worte;
    EXPECT_TRUE(port.gesendet.empty());
}

} // namespace varnoth::ctl
