#include "simulatorprobe.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace varnoth::simulator {

namespace {

/// End of the n-th character from `anfang` on, at 38400 baud.
Zeit NachZeichen(Zeit anfang, std::int64_t zeichen) {
    return std::chrono::ceil<Zeit>(anfang + std::chrono::nanoseconds{zeichen * 11 * 1'000'000'000 / 38400});
}

using Lieferung = std::vector<std::pair<Zeit, std::size_t>>;

/// When how many bytes become readable after a request sent at 1 s.
Lieferung Liefere(Simulator& simulator, const Bytes& anfrage) {
    simulator.Empfange(anfrage, std::chrono::seconds{1});
    Lieferung lieferung;
    while (const auto faellig = simulator.NaechsteFaelligkeit())
        lieferung.emplace_back(*faellig, simulator.Entnimm(*faellig).size());
    return lieferung;
}

constexpr std::chrono::seconds Anfang{1};

} // namespace

TEST(Leitung, Delivers_lots_of_eight_when_their_last_byte_has_arrived) {
    Simulator simulator{Aufbau{}};
    EXPECT_EQ(Liefere(simulator, Leseanfrage(0, 8)), (Lieferung{{NachZeichen(Anfang, 8 + 8), 8},
                                                                {NachZeichen(Anfang, 8 + 16), 8},
                                                                {NachZeichen(Anfang, 8 + 21), 5}}));
}

TEST(Leitung, Delivers_lots_of_the_size_asked_for) {
    Aufbau aufbau;
    aufbau.los = 1;
    Simulator simulator(aufbau);
    EXPECT_EQ(Liefere(simulator, Leseanfrage(0, 1)).size(), 7U);
}

TEST(Leitung, Is_slower_at_a_lower_speed) {
    Aufbau aufbau;
    aufbau.baud = 1100;
    aufbau.los = 100;
    Simulator simulator(aufbau);
    EXPECT_EQ(Liefere(simulator, Leseanfrage(0, 1)), (Lieferung{{std::chrono::milliseconds{1000 + 150}, 7}}));
}

TEST(Leitung, Waits_the_turnaround_before_a_reply) {
    Aufbau aufbau;
    aufbau.bedenkzeit = Zeit{700};
    Simulator simulator(aufbau);
    EXPECT_EQ(Liefere(simulator, Leseanfrage(0, 1)).back().first, NachZeichen(Anfang + Zeit{700}, 8 + 7));
}

TEST(Leitung, Times_a_request_in_pieces_by_its_last_byte) {
    const Bytes anfrage = Leseanfrage(0, 1);
    Simulator simulator{Aufbau{}};
    simulator.Empfange(std::span(anfrage).first(6), Zeit{0});
    simulator.Empfange(std::span(anfrage).subspan(6), Zeit{5000});
    EXPECT_EQ(simulator.NaechsteFaelligkeit(), NachZeichen(Zeit{5000}, 2 + 7));
}

TEST(Leitung, A_late_caller_gets_all_that_is_due_and_delays_nothing) {
    Simulator simulator{Aufbau{}};
    simulator.Empfange(Leseanfrage(0, 8), Zeit{0});
    EXPECT_EQ(simulator.Entnimm(NachZeichen(Zeit{0}, 8 + 18)).size(), 16U);
    EXPECT_EQ(simulator.NaechsteFaelligkeit(), NachZeichen(Zeit{0}, 8 + 21));
}

TEST(Leitung, Gives_nothing_before_its_time) {
    Simulator simulator{Aufbau{}};
    simulator.Empfange(Leseanfrage(0, 1), Zeit{0});
    EXPECT_TRUE(simulator.Entnimm(*simulator.NaechsteFaelligkeit() - Zeit{1}).empty());
}

TEST(Leitung, Unpaced_delivers_everything_at_once) {
    Simulator simulator(OhneTakt());
    EXPECT_EQ(Liefere(simulator, Leseanfrage(0, 50)), (Lieferung{{Anfang, 105}}));
}

TEST(Leitung, Cut_loses_what_is_on_its_way) {
    Simulator simulator{Aufbau{}};
    simulator.Empfange(Leseanfrage(0, 1), Zeit{0});
    simulator.TrenneLeitung();
    EXPECT_EQ(simulator.NaechsteFaelligkeit(), std::nullopt);
    EXPECT_EQ(Liefere(simulator, Leseanfrage(0, 1)).back().first, NachZeichen(Anfang, 8 + 7));
}

TEST(Leitung, Sends_a_second_reply_after_the_first) {
    Simulator simulator{Aufbau{}};
    EXPECT_EQ(simulator.Befehl("fault late=1500:1", Zeit{0}), "ok");
    simulator.Empfange(Leseanfrage(0, 1), Zeit{0});
    const auto lieferung = Liefere(simulator, Leseanfrage(0, 1));
    ASSERT_EQ(lieferung.size(), 2U);
    EXPECT_EQ(lieferung[0].first, NachZeichen(std::chrono::milliseconds{1500}, 8 + 7));
    EXPECT_EQ(lieferung[1].first, NachZeichen(std::chrono::milliseconds{1500}, 8 + 7 + 7));
}

} // namespace varnoth::simulator
