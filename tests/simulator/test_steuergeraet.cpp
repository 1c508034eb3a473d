#include "simulatorprobe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth::simulator {

TEST(Kennung, Asked_at_address_0_is_answered_with_the_own_address) {
    Aufbau aufbau = OhneTakt();
    aufbau.adresse = 17;
    Probe probe(aufbau);
    const Bytes antwort = probe.Frage(Kennungsanfrage());
    ASSERT_GT(antwort.size(), 7U);
    EXPECT_EQ(antwort[0], 17);
    EXPECT_EQ(antwort[1], 0x11);
    EXPECT_EQ(antwort[2], antwort.size() - 5);
    EXPECT_EQ(antwort[4], 50);
    EXPECT_EQ(Crc(antwort), 0);
    EXPECT_EQ(std::string(antwort.begin() + 5, antwort.end() - 2), "Varnoth Simulator;SIM-0001;(c) Varnoth");
}

TEST(Lesen, Gives_the_registers_high_byte_first) {
    Probe probe;
    EXPECT_EQ(probe.Frage(Leseanfrage(24, 2)), MitCrc({1, 3, 4, 1, 2, 2, 3}));
}

TEST(Lesen, Of_no_register_gives_the_byte_count_0) {
    Probe probe;
    EXPECT_EQ(probe.Frage(Leseanfrage(0, 0)), MitCrc({1, 3, 0}));
}

TEST(Lesen, Reaches_just_the_three_ranges) {
    const std::pair<int, bool> faelle[] = {{0, true},      {255, true},    {256, false},    {0x1FFF, false},
                                           {0x2000, true}, {0x21FF, true}, {0x2200, false}, {0x3FFF, false},
                                           {0x4000, true}, {0x40FF, true}, {0x4100, false}, {0xFFFF, false}};
    Probe probe;
    for (const auto& [adresse, lesbar] : faelle)
        EXPECT_EQ(probe.Lies(adresse, 1).size(), lesbar ? 1U : 0U) << adresse;
}

TEST(Lesen, Is_refused_with_the_exception_that_fits) {
    Probe probe;
    EXPECT_EQ(probe.Frage(Leseanfrage(256, 1)), Ausnahme(3, 2));
    EXPECT_EQ(probe.Frage(Leseanfrage(255, 2)), Ausnahme(3, 2));
    EXPECT_EQ(probe.Frage(Leseanfrage(0, 126)), Ausnahme(3, 3));
}

TEST(Lesen, Goes_to_the_part_selected) {
    Probe probe;
    for (const auto& [teil, strahlen] : {std::pair{0, 32}, {1, 64}, {2, 128}, {3, 288}}) {
        probe.Waehle(teil);
        EXPECT_EQ(probe.Lies(0x200C, 1), std::vector<int>{strahlen});
    }
}

TEST(Schreiben, Echoes_start_and_count) {
    Probe probe;
    EXPECT_EQ(probe.Frage(Schreibanfrage(0x200D, {10})), MitCrc({1, 0x10, 0x20, 0x0D, 0, 1}));
    EXPECT_EQ(probe.Lies(0x200D, 1), std::vector<int>{10});
}

TEST(Schreiben, Takes_every_parameter_of_the_configuration) {
    Probe probe;
    for (const auto& [adresse, anzahl] : {std::pair{193, 1},
                                          {0x200D, 1},
                                          {0x200E, 1},
                                          {0x2013, 1},
                                          {0x2018, 1},
                                          {0x2019, 1},
                                          {0x201A, 1},
                                          {0x201B, 1},
                                          {0x2034, 32},
                                          {0x4004, 1},
                                          {0x4008, 1},
                                          {0x404A, 1},
                                          {0x404B, 30},
                                          {0x407E, 1}})
        EXPECT_TRUE(probe.Schreibe(adresse, std::vector<int>(static_cast<std::size_t>(anzahl), 1)))
            << adresse;
}

TEST(Schreiben, Works_for_parts_that_are_not_there) {
    Aufbau aufbau = OhneTakt();
    aufbau.strahlen = {32, 0, 0, 0};
    Probe probe(aufbau);
    probe.Waehle(3);
    EXPECT_TRUE(probe.Schreibe(0x200D, {20}));
}

TEST(Schreiben, Is_refused_with_the_exception_that_fits) {
    const std::tuple<int, std::vector<int>, int> faelle[] = {
        {0, {1}, 2},      {196, {1}, 2}, {0x200C, {1}, 2}, {0x202C, {1}, 2}, {0x2161, {1}, 2},
        {0x4002, {1}, 2}, {300, {1}, 2}, {193, {1, 1}, 2}, {193, {}, 3},     {212, {4}, 3},
        {213, {1}, 3},    {189, {4}, 3}, {189, {0}, 3},    {0x4084, {3}, 3},
    };
    for (const auto& [adresse, werte, code] : faelle) {
        Probe probe;
        EXPECT_EQ(probe.Frage(Schreibanfrage(adresse, werte)), Ausnahme(0x10, code)) << adresse;
    }
}

TEST(Schreiben, With_a_byte_count_that_does_not_fit_is_refused) {
    Probe probe;
    EXPECT_EQ(probe.Frage(MitCrc({1, 0x10, 0, 193, 0, 2, 2, 0, 1})), Ausnahme(0x10, 3));
}

TEST(Schreiben, To_all_stations_is_carried_out_without_a_reply) {
    Probe probe;
    EXPECT_TRUE(probe.Frage(Schreibanfrage(0x200D, {40}, 0)).empty());
    EXPECT_EQ(probe.Lies(0x200D, 1), std::vector<int>{40});
}

TEST(Funktionen, That_are_unknown_are_refused) {
    for (const std::uint8_t funktion : Bytes{0x01, 0x04, 0x06, 0x2B}) {
        Probe probe;
        EXPECT_EQ(probe.Frage(MitCrc({1, funktion, 0, 1, 0, 1})), Ausnahme(funktion, 1)) << int{funktion};
    }
}

TEST(Funktion09, Is_noted_and_not_answered) {
    Probe probe;
    EXPECT_TRUE(probe.Frage(MitCrc({1, 0x09})).empty());
    EXPECT_EQ(probe.protokoll, std::vector<std::string>{"function 09"});
}

TEST(Autosend, Is_switched_by_the_control_value) {
    Probe probe;
    EXPECT_TRUE(probe.Schreibe(0x4084, {2}));
    EXPECT_NE(probe.Befehl("state").find("autosend=on"), std::string::npos);
    EXPECT_TRUE(probe.Schreibe(0x4084, {4}));
    EXPECT_NE(probe.Befehl("state").find("autosend=off"), std::string::npos);
}

TEST(Protokoll, Names_ranges_and_values_in_order) {
    Probe probe;
    probe.Waehle(1);
    probe.Schreibe(0x200D, {10});
    probe.Lies(0x200D, 2);
    probe.Schreibe(0x4008, {7});
    probe.Lies(300, 1);
    EXPECT_EQ(probe.protokoll, (std::vector<std::string>{
                                   "write global 212 = 1",
                                   "write specific[1] 13 = 10",
                                   "read specific[1] 13..14 = 10 3",
                                   "write communication 8 = 7",
                                   "refused function 3: exception 2",
                               }));
}

TEST(Werkseinstellung, Lies_within_the_limits_of_a_plausible_configuration) {
    Probe probe;
    EXPECT_EQ(probe.Lies(0, 1), std::vector<int>{50});
    EXPECT_EQ(probe.Lies(0x4000, 1), std::vector<int>{0});
    EXPECT_EQ(probe.Lies(0x4002, 1), std::vector<int>{0x30F});
    EXPECT_EQ(probe.Lies(0x404A, 9), (std::vector<int>{259, 20, 276, 258, 259, 260, 261, 262, 263}));
    for (int teil = 0; teil < Optikteile; ++teil) {
        probe.Waehle(teil);
        EXPECT_EQ(probe.Lies(0x200D, 2), (std::vector<int>{5, 3}));
        for (const int adresse : {19, 24, 25, 26, 27})
            EXPECT_THAT(probe.Lies(0x2000 + adresse, 1).front(),
                        testing::AllOf(testing::Ge(1), testing::Le(63)));
    }
}

} // namespace varnoth::simulator
