#include "simulatorprobe.h"

#include <gtest/gtest.h>

namespace varnoth::simulator {

TEST(GeraeteCrc, Gives_the_known_checksums) {
    EXPECT_EQ(MitCrc({0x00, 0x11}), (Bytes{0x00, 0x11, 0xC1, 0xBC}));
    EXPECT_EQ(MitCrc({0x01, 0x03, 0, 0, 0, 2}), (Bytes{0x01, 0x03, 0, 0, 0, 2, 0xC4, 0x0B}));
}

TEST(GeraeteCrc, Is_0_over_a_frame_with_its_checksum) {
    EXPECT_EQ(Crc(Bytes{0x01, 0x03, 0, 0, 0, 2, 0xC4, 0x0B}), 0);
}

TEST(Anfrage, Is_recognised_at_every_split_point) {
    for (const Bytes& anfrage :
         {Kennungsanfrage(), Leseanfrage(0, 2), Schreibanfrage(75, std::vector<int>(30, 1))})
        for (std::size_t schnitt = 1; schnitt < anfrage.size(); ++schnitt) {
            Simulator simulator(OhneTakt());
            simulator.Empfange(std::span(anfrage).first(schnitt), Zeit{0});
            EXPECT_TRUE(simulator.Entnimm(Zeit::max()).empty()) << schnitt;
            simulator.Empfange(std::span(anfrage).subspan(schnitt), Zeit{5000});
            EXPECT_FALSE(simulator.Entnimm(Zeit::max()).empty()) << schnitt;
        }
}

TEST(Anfrage, Is_recognised_byte_by_byte) {
    Simulator simulator(OhneTakt());
    for (const std::uint8_t zeichen : Leseanfrage(0, 1))
        simulator.Empfange(std::span(&zeichen, 1), Zeit{0});
    EXPECT_EQ(simulator.Entnimm(Zeit::max()), MitCrc({1, 3, 2, 0, 50}));
}

TEST(Anfrage, Two_in_one_batch_get_two_replies) {
    Bytes beide = Leseanfrage(0, 1);
    const Bytes zweite = Kennungsanfrage();
    beide.insert(beide.end(), zweite.begin(), zweite.end());
    Probe probe;
    EXPECT_GT(probe.Frage(beide).size(), 7U + 7U);
}

TEST(Anfrage, With_a_wrong_checksum_is_ignored) {
    Bytes kaputt = Leseanfrage(0, 1);
    kaputt.back() ^= 1;
    Probe probe;
    EXPECT_TRUE(probe.Frage(kaputt).empty());
    EXPECT_EQ(probe.protokoll, std::vector<std::string>{"broken frame ignored"});
    EXPECT_EQ(probe.Lies(0, 1), std::vector<int>{50});
}

TEST(Anfrage, After_garbage_and_a_quiet_wire_is_recognised) {
    for (const Bytes& muell :
         {Bytes{0x55}, Bytes{1, 3, 0}, Bytes{1, 0x10, 0, 0, 0, 1, 200}, Bytes(300, 0xAA)}) {
        Probe probe;
        EXPECT_TRUE(probe.Frage(muell).empty());
        EXPECT_EQ(probe.Lies(0, 1), std::vector<int>{50}) << muell.size();
    }
}

TEST(Anfrage, Torn_apart_by_a_long_gap_is_no_request) {
    const Bytes anfrage = Leseanfrage(0, 1);
    Simulator simulator(OhneTakt());
    simulator.Empfange(std::span(anfrage).first(4), Zeit{0});
    simulator.Empfange(std::span(anfrage).subspan(4), std::chrono::milliseconds{30});
    EXPECT_TRUE(simulator.Entnimm(Zeit::max()).empty());
}

TEST(Anfrage, To_another_station_gets_no_reply_and_does_not_disturb) {
    Probe probe;
    EXPECT_TRUE(probe.Frage(Leseanfrage(0, 1, 2)).empty());
    EXPECT_TRUE(probe.Frage(Leseanfrage(0, 1, 0xFF)).empty());
    EXPECT_EQ(probe.Befehl("stats"), "ok 03=0 09=0 10=0 11=0 refused=0 broken=0 foreign=2");
}

} // namespace varnoth::simulator
