#include "simulatoroptionen.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace varnoth::simulator {

namespace {

Optionen Lies(std::vector<const char*> worte) {
    return LiesOptionen(worte);
}

std::string Beschwerde(std::vector<const char*> worte) {
    try {
        LiesOptionen(worte);
        return {};
    } catch (const std::invalid_argument& fehler) {
        return fehler.what();
    }
}

} // namespace

TEST(Simulatoroptionen, Are_all_read) {
    const Optionen o = Lies({"--link",
                             "/a",
                             "--beams",
                             "10,0,20",
                             "--address",
                             "7",
                             "--baud",
                             "9600",
                             "--format",
                             "19200,e,8,1",
                             "--lot",
                             "1",
                             "--turnaround",
                             "300",
                             "--unpaced",
                             "--seed",
                             "5",
                             "--store",
                             "f",
                             "--password",
                             "0123456789abcdef",
                             "--log",
                             "-",
                             "--control",
                             "/c",
                             "--fault",
                             "crc:2",
                             "--fault",
                             "silence",
                             "--echo",
                             "--exit-with-parent",
                             "--help",
                             "--version"});
    EXPECT_TRUE(o.echo);
    EXPECT_EQ(o.verknuepfung, "/a");
    EXPECT_EQ(o.aufbau.strahlen, (std::array{10, 0, 20, 0}));
    EXPECT_EQ(o.aufbau.adresse, 7);
    EXPECT_EQ(o.aufbau.baud, 19200) << "the format says it";
    EXPECT_EQ(o.aufbau.format, (Zeichenformat{.baud = 19200, .paritaet = 'e', .stoppbits = 1}));
    EXPECT_EQ(o.aufbau.los, 1);
    EXPECT_EQ(o.aufbau.bedenkzeit, Zeit{300});
    EXPECT_FALSE(o.aufbau.getaktet);
    EXPECT_EQ(o.aufbau.startwert, 5U);
    EXPECT_EQ(o.aufbau.speicherdatei, "f");
    EXPECT_EQ(o.aufbau.passwort, "0123456789abcdef");
    EXPECT_EQ(o.protokoll, "-");
    EXPECT_EQ(o.steuerkanal, "/c");
    EXPECT_EQ(o.aufbau.stoerungen.size(), 2U);
    EXPECT_TRUE(o.endetMitEltern);
    EXPECT_TRUE(o.hilfe);
    EXPECT_TRUE(o.version);
}

TEST(Simulatoroptionen, Accept_512_beams_in_all_and_no_more) {
    EXPECT_EQ(Beschwerde({"--beams", "128,128,128,128"}), "");
    EXPECT_EQ(Beschwerde({"--beams", "129,128,128,128"}),
              "beams: at most 512 in all parts together, these are 513");
}

TEST(Simulatoroptionen, That_are_wrong_are_refused_with_a_sentence) {
    for (const auto& worte : std::vector<std::vector<const char*>>{{"--bogus"},
                                                                   {"x"},
                                                                   {"--link"},
                                                                   {"--beams", "0"},
                                                                   {"--beams", "1,2,3,4,5"},
                                                                   {"--beams", "a"},
                                                                   {"--beams", ""},
                                                                   {"--address", "0"},
                                                                   {"--address", "241"},
                                                                   {"--baud", "0"},
                                                                   {"--format", "9600,e,8"},
                                                                   {"--format", "9601,e,8,1"},
                                                                   {"--format", "9600,x,8,1"},
                                                                   {"--format", "9600,,8,1"},
                                                                   {"--format", "9600,e,7,1"},
                                                                   {"--format", "9600,e,8,3"},
                                                                   {"--lot", "0"},
                                                                   {"--password", "short"},
                                                                   {"--fault", "bogus"}})
        EXPECT_NE(Beschwerde(worte), "") << worte.front();
}

TEST(Simulatoroptionen, Are_all_named_by_the_help) {
    for (const char* name :
         {"--link", "--beams", "--address", "--baud", "--format", "--echo", "--lot", "--unpaced", "--seed",
          "--store", "--password", "--log", "--control", "--fault", "--exit-with-parent"})
        EXPECT_NE(Hilfetext().find(name), std::string::npos) << name;
}

} // namespace varnoth::simulator
