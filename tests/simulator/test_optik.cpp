#include "simulatorprobe.h"

#include <gtest/gtest.h>

namespace varnoth::simulator {

namespace {

constexpr int Status = 0x202C, Werte = 0x214F, Strahlen = 0x2161, Blanking = 0x2034, Geraetestatus = 196;

} // namespace

TEST(Optik, Shows_fixed_beams_in_states_and_measured_values) {
    Probe probe;
    probe.Befehl("scene beams 0 interrupted 3-7,9");
    EXPECT_EQ(probe.Lies(Strahlen, 3), (std::vector<int>{0x83FE, 0xFFFF, 0}));
    EXPECT_EQ(probe.Lies(Werte, 6), (std::vector<int>{3, 9, 6, 1, 32, 26}));
}

TEST(Optik, Leaves_blanked_beams_out_of_measured_values_but_not_of_states) {
    Probe probe;
    probe.Befehl("scene beams 0 interrupted 1,5");
    std::vector<int> muster(32, 0);
    muster[0] = 0x0100;
    probe.Schreibe(Blanking, muster);
    EXPECT_EQ(probe.Lies(Werte, 6), (std::vector<int>{5, 5, 1, 2, 32, 30}));
    EXPECT_EQ(probe.Lies(Strahlen, 1), std::vector<int>{0xEEFF});
}

TEST(Optik, Follows_current_values_by_minima_and_maxima) {
    Probe probe;
    probe.Befehl("scene beams 0 interrupted 10-20");
    probe.Befehl("restart");
    probe.Lies(Status, 1);
    probe.Befehl("scene beams 0 interrupted 5-12");
    EXPECT_EQ(probe.Lies(Werte, 18),
              (std::vector<int>{5, 12, 8, 1, 32, 24, 5, 12, 8, 1, 32, 21, 10, 20, 11, 1, 32, 24}));
}

TEST(Optik, Has_64_registers_of_beam_states) {
    Probe probe;
    EXPECT_EQ(probe.Lies(Strahlen, 64).size(), 64U);
}

TEST(Optik, Shows_presence_in_bit_7_of_the_part_status) {
    Aufbau aufbau = OhneTakt();
    aufbau.strahlen = {32, 0, 16, 0};
    Probe probe(aufbau);
    for (const auto& [teil, vorhanden] : {std::pair{0, true}, {1, false}, {2, true}, {3, false}}) {
        probe.Waehle(teil);
        EXPECT_EQ((probe.Lies(Status, 1).front() & 0x80) != 0, vorhanden) << teil;
    }
}

TEST(Optik, A_removed_part_has_no_beams_and_no_values_until_it_is_back) {
    Probe probe;
    probe.Befehl("part 0 remove");
    EXPECT_EQ(probe.Lies(Status, 1), std::vector<int>{0});
    EXPECT_EQ(probe.Lies(0x200C, 1), std::vector<int>{0});
    EXPECT_EQ(probe.Lies(Strahlen, 2), (std::vector<int>{0, 0}));
    probe.Befehl("part 0 add");
    EXPECT_EQ(probe.Lies(Status, 1).front() & 0x80, 0x80);
    EXPECT_EQ(probe.Lies(0x200C, 1), std::vector<int>{32});
}

TEST(Optik, Reports_that_no_part_is_left) {
    Aufbau aufbau = OhneTakt();
    aufbau.strahlen = {32, 0, 0, 0};
    Probe probe(aufbau);
    EXPECT_EQ(probe.Lies(Geraetestatus, 1).front() & 4, 0);
    probe.Befehl("part 0 remove");
    EXPECT_EQ(probe.Lies(Geraetestatus, 1), std::vector<int>{4});
}

TEST(Schaltausgang, Is_active_when_a_chosen_state_holds_in_the_chosen_part) {
    const std::tuple<int, const char*, bool> faelle[] = {
        {0x0001, "scene beams 0 free", true},
        {0x0001, "scene beams 0 interrupted", false},
        {0x0002, "scene beams 0 interrupted", true},
        {0x0020, "scene beams 0 interrupted 3,8", true},
        {0x0020, "scene beams 0 interrupted 3-8", false},
        {0x0000, "scene beams 0 free", false},
        {0x8000, "scene beams 0 free", false},
        {0x0101, "scene beams 1 free", true},
        {0x0101, "scene beams 1 interrupted", false},
    };
    for (const auto& [wert, szene, aktiv] : faelle) {
        Probe probe;
        probe.Befehl(szene);
        probe.Schreibe(193, {wert});
        EXPECT_EQ(probe.Lies(Geraetestatus, 1).front() & 2, aktiv ? 2 : 0) << wert << ' ' << szene;
    }
}

TEST(Schaltausgang, Toggles_with_every_scan) {
    Probe probe;
    probe.Schreibe(193, {0x4000});
    const int vorher = probe.Lies(Geraetestatus, 1).front();
    probe.jetzt += Abtastzeit;
    EXPECT_EQ(probe.Lies(Geraetestatus, 1).front() ^ vorher, 2);
}

TEST(Strahlenzahl, That_changed_is_reported_until_the_configuration_is_stored) {
    Probe probe;
    EXPECT_EQ(probe.Befehl("beams 2 100"), "ok");
    EXPECT_EQ(probe.Lies(Geraetestatus, 1).front() & 0xF0, 0x40);
    probe.Schreibe(189, {1});
    EXPECT_EQ(probe.Lies(Geraetestatus, 1).front() & 0xF0, 0);
    probe.Waehle(2);
    EXPECT_EQ(probe.Lies(0x200C, 1), std::vector<int>{100});
}

TEST(Strahlenzahl, That_differs_from_the_stored_one_is_reported_after_a_restart) {
    Probe probe;
    probe.Schreibe(189, {1});
    probe.Befehl("beams 0 16");
    probe.Befehl("restart");
    EXPECT_EQ(probe.Lies(Geraetestatus, 1).front() & 0xF0, 0x10);
}

} // namespace varnoth::simulator
