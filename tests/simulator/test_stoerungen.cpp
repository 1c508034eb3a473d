#include "simulatorprobe.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace varnoth::simulator {

namespace {

const Bytes Richtig = MitCrc({1, 3, 2, 0, 50});

Bytes Hintereinander(std::initializer_list<Bytes> antworten) {
    Bytes alle;
    for (const Bytes& antwort : antworten)
        alle.insert(alle.end(), antwort.begin(), antwort.end());
    return alle;
}

using Ankuenfte = std::vector<std::pair<Zeit, std::size_t>>;

/// When how many bytes of the reply to a read of one register come.
Ankuenfte AnkuenfteBei(const std::string& stoerung) {
    Simulator simulator(OhneTakt());
    simulator.Befehl("fault " + stoerung, Zeit{0});
    simulator.Empfange(Leseanfrage(0, 1), Zeit{0});
    Ankuenfte ankuenfte;
    while (const auto faellig = simulator.NaechsteFaelligkeit())
        ankuenfte.emplace_back(*faellig, simulator.Entnimm(*faellig).size());
    return ankuenfte;
}

Bytes Gestoert(const std::string& stoerung) {
    Probe probe;
    EXPECT_EQ(probe.Befehl("fault " + stoerung), "ok");
    return probe.Frage(Leseanfrage(0, 1));
}

} // namespace

TEST(Stoerung, Changes_the_reply_as_its_name_says) {
    Bytes falscheCrc = Richtig;
    falscheCrc.back() ^= 0xFF;
    Bytes gekippt = Richtig;
    gekippt[4] ^= 0x02;
    const std::pair<std::string, Bytes> faelle[] = {
        {"silence", {}},
        {"crc", falscheCrc},
        {"address", MitCrc({2, 3, 2, 0, 50})},
        {"exception", Ausnahme(3, 4)},
        {"exception=6", Ausnahme(3, 6)},
        {"stray=2", {0x55, 0x55, 1, 3, 2, 0, 50, Richtig[5], Richtig[6]}},
        {"pieces", Richtig},
        {"surplus=2", {1, 3, 2, 0, 50, Richtig[5], Richtig[6], 0x55, 0x55}},
        {"late", Richtig},
        {"flip=33", gekippt},
        {"repeat", Hintereinander({Richtig, Richtig})},
        {"repeat-twice", Hintereinander({Richtig, Richtig, Richtig})},
        {"repeat-flip=33", Hintereinander({Richtig, gekippt})},
        {"repeat-earlier", Richtig},
    };
    for (const auto& [stoerung, antwort] : faelle)
        EXPECT_EQ(Gestoert(stoerung), antwort) << stoerung;
}

TEST(Stoerung, Pieces_come_with_gaps) {
    EXPECT_EQ(AnkuenfteBei("pieces=40"), (Ankuenfte{{Zeit{0}, 2}, {Zeit{40000}, 2}, {Zeit{80000}, 3}}));
}

TEST(Stoerung, A_repeated_reply_comes_after_its_time) {
    EXPECT_EQ(AnkuenfteBei("repeat=500"), (Ankuenfte{{Zeit{0}, 7}, {Zeit{500000}, 7}}));
    EXPECT_EQ(AnkuenfteBei("repeat=0"), (Ankuenfte{{Zeit{0}, 14}}));
    EXPECT_EQ(AnkuenfteBei("repeat-twice=30"), (Ankuenfte{{Zeit{0}, 7}, {Zeit{30000}, 7}, {Zeit{60000}, 7}}));
    EXPECT_EQ(AnkuenfteBei("repeat-flip=9,120"), (Ankuenfte{{Zeit{0}, 7}, {Zeit{120000}, 7}}));
}

TEST(Stoerung, A_repeated_reply_lets_the_next_one_wait) {
    Simulator simulator(OhneTakt());
    simulator.Befehl("fault repeat=100:1", Zeit{0});
    simulator.Empfange(Leseanfrage(0, 1), Zeit{0});
    simulator.Empfange(Leseanfrage(24, 1), Zeit{10000});
    EXPECT_EQ(simulator.Entnimm(Zeit{99999}), Richtig);
    EXPECT_EQ(simulator.Entnimm(Zeit{100000}), Hintereinander({Richtig, MitCrc({1, 3, 2, 1, 2})}));
}

TEST(Stoerung, Every_reply_is_repeated_for_a_while) {
    Probe probe;
    probe.Befehl("fault repeat:3");
    for (const std::size_t laenge : {14U, 14U, 14U, 7U})
        EXPECT_EQ(probe.Frage(Leseanfrage(0, 1)).size(), laenge);
}

TEST(Stoerung, A_reply_of_earlier_comes_behind_this_one) {
    const Bytes version = MitCrc({1, 3, 2, 1, 2});
    for (const auto& [zurueck, frueher] : {std::pair{1, version}, {2, Richtig}, {3, Bytes{}}}) {
        Probe probe;
        probe.Frage(Leseanfrage(0, 1));
        probe.Frage(Leseanfrage(24, 1));
        probe.Befehl("fault repeat-earlier=" + std::to_string(zurueck) + ",0");
        EXPECT_EQ(probe.Frage(Leseanfrage(0, 1)), Hintereinander({Richtig, frueher})) << zurueck;
    }
}

TEST(Stoerung, A_reply_of_earlier_is_the_one_that_should_have_been) {
    Probe probe;
    probe.Befehl("fault crc:1");
    probe.Frage(Leseanfrage(0, 1));
    probe.Befehl("fault repeat-earlier=1");
    EXPECT_EQ(probe.Frage(Leseanfrage(0, 1)), Hintereinander({Richtig, Richtig}));
}

TEST(Stoerung, Late_comes_after_its_time) {
    Simulator simulator(OhneTakt());
    simulator.Befehl("fault late=1200", Zeit{0});
    simulator.Empfange(Leseanfrage(0, 1), Zeit{0});
    EXPECT_EQ(simulator.NaechsteFaelligkeit(), std::chrono::milliseconds{1200});
}

TEST(Stoerung, Ends_after_its_count) {
    Probe probe;
    probe.Befehl("fault silence:2");
    EXPECT_TRUE(probe.Lies(0, 1).empty());
    EXPECT_TRUE(probe.Lies(0, 1).empty());
    EXPECT_FALSE(probe.Lies(0, 1).empty());
}

TEST(Stoerung, Without_a_count_lasts_until_it_is_taken_back) {
    Probe probe;
    probe.Befehl("fault silence");
    for (int i = 0; i < 20; ++i)
        EXPECT_TRUE(probe.Lies(0, 1).empty());
    probe.Befehl("fault none");
    EXPECT_FALSE(probe.Lies(0, 1).empty());
}

TEST(Stoerung, For_one_function_spares_the_others) {
    Probe probe;
    probe.Befehl("fault silence:1@0x10");
    EXPECT_FALSE(probe.Lies(0, 1).empty());
    EXPECT_FALSE(probe.Schreibe(0x200D, {10}));
    EXPECT_TRUE(probe.Schreibe(0x200D, {10}));
}

TEST(Stoerung, Silence_loses_the_reply_only) {
    Probe probe;
    probe.Befehl("fault silence:1");
    probe.Schreibe(0x200D, {10});
    EXPECT_EQ(probe.Lies(0x200D, 1), std::vector<int>{10});
}

TEST(Stoerung, An_exception_refuses_the_request) {
    Probe probe;
    probe.Befehl("fault exception:1");
    probe.Schreibe(0x200D, {10});
    EXPECT_EQ(probe.Lies(0x200D, 1), std::vector<int>{5});
}

TEST(Stoerung, Several_follow_one_another) {
    Probe probe;
    probe.Befehl("fault silence:1");
    probe.Befehl("fault exception:1");
    EXPECT_TRUE(probe.Frage(Leseanfrage(0, 1)).empty());
    EXPECT_EQ(probe.Frage(Leseanfrage(0, 1)), Ausnahme(3, 4));
    EXPECT_EQ(probe.Frage(Leseanfrage(0, 1)), Richtig);
}

TEST(Stoerung, Is_not_used_up_by_requests_without_a_reply) {
    Probe probe;
    probe.Befehl("fault silence:1");
    probe.Frage(Leseanfrage(0, 1, 2));
    probe.Frage(MitCrc({1, 0x09}));
    probe.Frage(Schreibanfrage(212, {0}, 0));
    EXPECT_TRUE(probe.Frage(Leseanfrage(0, 1)).empty());
}

TEST(Stoerung, Holds_from_the_start_when_the_bench_says_so) {
    Aufbau aufbau = OhneTakt();
    aufbau.stoerungen.push_back(LiesStoerung("silence:1"));
    Probe probe(aufbau);
    EXPECT_TRUE(probe.Frage(Kennungsanfrage()).empty());
    EXPECT_FALSE(probe.Frage(Kennungsanfrage()).empty());
}

TEST(Stoerung, A_forgotten_register_keeps_its_value_though_the_write_is_confirmed) {
    Probe probe;
    probe.Befehl("fault forget=0x200E");
    for (const int teil : {0, 1}) {
        probe.Waehle(teil);
        const int vorher = probe.Lies(0x200E, 1).at(0);
        EXPECT_TRUE(probe.Schreibe(0x200D, {20}));
        EXPECT_TRUE(probe.Schreibe(0x200E, {vorher + 1}));
        EXPECT_EQ(probe.Lies(0x200D, 2), (std::vector{20, vorher}));
    }
}

TEST(Stoerung, Of_a_block_only_the_forgotten_register_keeps_its_value) {
    Probe probe;
    probe.Befehl("fault forget=0x404C");
    const int vorher = probe.Lies(0x404C, 1).at(0);
    EXPECT_TRUE(probe.Schreibe(0x404B, {1, 2, 3}));
    EXPECT_EQ(probe.Lies(0x404B, 3), (std::vector{1, vorher, 3}));
}

TEST(Stoerung, A_register_is_forgotten_so_many_times_and_reads_do_not_count) {
    Probe probe;
    probe.Befehl("fault forget=0x4008:1");
    probe.Lies(0x4008, 1);
    probe.Schreibe(0x4008, {77});
    EXPECT_NE(probe.Lies(0x4008, 1), std::vector{77});
    probe.Schreibe(0x4008, {77});
    EXPECT_EQ(probe.Lies(0x4008, 1), std::vector{77});
}

TEST(Stoerung, A_restart_at_a_write_loses_what_is_not_stored_and_the_part_that_was_selected) {
    Probe probe;
    probe.Schreibe(0x4008, {77});
    probe.Waehle(2);
    probe.Befehl("fault restart-at=0x200E:1");
    EXPECT_TRUE(probe.Schreibe(0x200E, {5}));
    EXPECT_EQ(probe.Befehl("get specific 0 14"), "ok 5");
    EXPECT_NE(probe.Befehl("get specific 2 14"), "ok 5");
    EXPECT_NE(probe.Lies(0x4008, 1), std::vector{77});
}

TEST(Stoerung, At_a_write_lets_as_many_pass_as_it_says) {
    Probe probe;
    probe.Befehl("fault forget=0x4008,2:1");
    for (const int wert : {71, 72, 73, 74})
        probe.Schreibe(0x4008, {wert});
    EXPECT_EQ(probe.Lies(0x4008, 1), std::vector{74});
    probe.Befehl("fault forget=0x4008,1:1");
    probe.Schreibe(0x4008, {75});
    probe.Schreibe(0x4008, {76});
    EXPECT_EQ(probe.Lies(0x4008, 1), std::vector{75});
}

TEST(Stoerung, At_a_write_leaves_replies_alone_and_stands_beside_one_that_does_not) {
    Probe probe;
    probe.Befehl("fault forget=0x4008");
    EXPECT_EQ(probe.Frage(Leseanfrage(0, 1)), Richtig);
    probe.Befehl("fault silence:1");
    EXPECT_TRUE(probe.Frage(Leseanfrage(0, 1)).empty());
}

TEST(Stoerung, Is_noted_in_the_log) {
    Probe probe;
    probe.Befehl("fault crc:1");
    probe.Lies(0, 1);
    EXPECT_EQ(probe.protokoll, (std::vector<std::string>{"read global 0 = 50", "fault crc at function 3"}));
}

TEST(Stoerung, Written_wrongly_is_refused) {
    for (const char* text : {"", "bogus", "late=x", "late=-1", "late=60001", "crc:0", "crc@0", "crc=1",
                             "crc:", "late=1500:3@x", "repeat=60001", "repeat=1,2", "repeat-earlier=32",
                             "repeat-flip=1,60001", "repeat-flip=1,", "forget", "restart-at", "forget=65536"})
        EXPECT_THROW(LiesStoerung(text), std::invalid_argument) << text;
}

} // namespace varnoth::simulator
