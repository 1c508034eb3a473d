#include "simulatorprobe.h"

#include <gtest/gtest.h>

namespace varnoth::simulator {

TEST(Befehle, Get_and_set_reach_every_range) {
    Probe probe;
    for (const std::string name : {"global 193", "specific 1 13", "communication 74"}) {
        EXPECT_EQ(probe.Befehl("set " + name + " 0x1234"), "ok");
        EXPECT_EQ(probe.Befehl("get " + name), "ok 4660");
    }
    probe.Waehle(1);
    EXPECT_EQ(probe.Lies(0x200D, 1), std::vector<int>{0x1234});
}

TEST(Befehle, Set_may_give_a_part_an_impossible_beam_count) {
    Probe probe;
    probe.Befehl("set specific 0 12 600");
    EXPECT_EQ(probe.Lies(0x200C, 1), std::vector<int>{600});
}

TEST(Befehle, Set_may_report_an_unreadable_configuration) {
    Probe probe;
    probe.Befehl("set global 196 0x1000");
    EXPECT_EQ(probe.Lies(196, 1).front() & 0xF0F0, 0x1000);
}

TEST(Befehle, Freeze_stops_the_scene_and_run_lets_it_go_on) {
    Probe probe;
    probe.Waehle(3);
    probe.Befehl("scene freeze");
    const auto bild = probe.Lies(0x2161, 18);
    probe.jetzt += std::chrono::seconds{5};
    EXPECT_EQ(probe.Lies(0x2161, 18), bild);
    probe.Befehl("scene run");
    probe.jetzt += std::chrono::seconds{5};
    EXPECT_NE(probe.Lies(0x2161, 18), bild);
}

TEST(Befehle, Beams_fixed_are_given_back_to_the_scene) {
    Probe probe;
    probe.Befehl("scene freeze");
    const auto bild = probe.Lies(0x2161, 2);
    probe.Befehl("scene beams 0 free");
    EXPECT_EQ(probe.Lies(0x2161, 2), (std::vector<int>{0xFFFF, 0xFFFF}));
    probe.Befehl("scene beams 0 interrupted");
    EXPECT_EQ(probe.Lies(0x2161, 2), (std::vector<int>{0, 0}));
    probe.Befehl("scene beams 0 auto");
    EXPECT_EQ(probe.Lies(0x2161, 2), bild);
}

TEST(Befehle, Stats_count_requests_by_function) {
    Probe probe;
    probe.Frage(Kennungsanfrage());
    probe.Lies(0, 1);
    probe.Lies(0, 1);
    probe.Waehle(0);
    probe.Lies(300, 1);
    EXPECT_EQ(probe.Befehl("stats clear"), "ok 03=3 09=0 10=1 11=1 refused=1 broken=0 foreign=0");
    EXPECT_EQ(probe.Befehl("stats"), "ok 03=0 09=0 10=0 11=0 refused=0 broken=0 foreign=0");
}

TEST(Befehle, Log_off_writes_nothing) {
    Probe probe;
    probe.Befehl("log off");
    probe.Lies(0, 1);
    EXPECT_TRUE(probe.protokoll.empty());
    probe.Befehl("log on");
    probe.Lies(0, 1);
    EXPECT_EQ(probe.protokoll.size(), 1U);
}

TEST(Befehle, State_tells_address_parts_selection_and_autosend) {
    Probe probe;
    probe.Befehl("part 3 remove");
    probe.Waehle(2);
    EXPECT_EQ(probe.Befehl("state"), "ok address=1 beams=32,64,128,0 selected=2 autosend=off");
}

TEST(Befehle, That_are_wrong_are_answered_with_an_error) {
    Aufbau aufbau = OhneTakt();
    aufbau.strahlen = {32, 64, 0, 0};
    Probe probe(aufbau);
    for (const char* zeile : {"",
                              "bogus",
                              "part",
                              "part 4 add",
                              "part 0 away",
                              "part 2 add",
                              "beams 0 0",
                              "beams 0 513",
                              "beams 0 449",
                              "get",
                              "get global 256",
                              "get local 1",
                              "get specific 4 0",
                              "set global 1",
                              "set global 1 65536",
                              "set specific 0 44 0",
                              "scene",
                              "scene stop",
                              "scene beams",
                              "scene beams 0",
                              "scene beams 0 half",
                              "scene beams 0 interrupted 0",
                              "scene beams 0 interrupted 5-3",
                              "scene beams 0 interrupted 513",
                              "log",
                              "log maybe",
                              "stats all",
                              "fault",
                              "fault bogus",
                              "restart now"})
        EXPECT_TRUE(probe.Befehl(zeile).starts_with("error ")) << zeile;
    EXPECT_EQ(probe.Befehl("state"), "ok address=1 beams=32,64,0,0 selected=0 autosend=off");
}

TEST(Befehle, Help_names_them_all) {
    Probe probe;
    const std::string hilfe = probe.Befehl("help");
    for (const char* wort :
         {"fault", "part", "beams", "restart", "get", "set", "scene", "log", "stats", "state"})
        EXPECT_NE(hilfe.find(wort), std::string::npos) << wort;
}

} // namespace varnoth::simulator
