#include "zustandsmerker.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;

class ZustandsmerkerTest : public testing::Test {
protected:
    void Zustand(Zeit uhr, int zustand, int simuliert = 0) {
        merker.Merke(
            {.art = Ereignisart::Zustand, .laufzeit = uhr, .alt = simuliert, .neu = zustand, .text = "COM1"});
    }

    Ereignisspeicher speicher;
    Zustandsmerker merker{speicher};
};

TEST_F(ZustandsmerkerTest, Each_new_state_is_an_event) {
    Zustand(0s, 6);
    Zustand(1s, 0);
    Zustand(2s, 1);
    ASSERT_EQ(speicher.Ende(), 3U);
    EXPECT_EQ(speicher.Hole(2).neu, 1);
    EXPECT_EQ(speicher.Hole(2).anzahl, 1U);
}

TEST_F(ZustandsmerkerTest, Going_to_and_fro_between_two_is_one_event_with_count_and_duration) {
    Zustand(0s, 1);
    for (int i = 1; i <= 20; ++i)
        Zustand(std::chrono::seconds(2 * i), i % 2 != 0 ? 2 : 1);
    ASSERT_EQ(speicher.Ende(), 2U);
    EXPECT_EQ(speicher.Hole(1).anzahl, 20U);
    EXPECT_EQ(speicher.Hole(1).neu, 1);
    EXPECT_EQ(speicher.Hole(1).dauer, 38s);
    EXPECT_EQ(speicher.Hole(1).text, "COM1");
}

TEST_F(ZustandsmerkerTest, After_a_rest_or_a_minute_the_next_is_an_event_again) {
    Zustand(0s, 1);
    Zustand(1s, 2);
    Zustand(12s, 1);
    EXPECT_EQ(speicher.Ende(), 3U);
    for (int sekunde = 13; sekunde <= 300; ++sekunde)
        Zustand(std::chrono::seconds(sekunde), sekunde % 2 != 0 ? 2 : 1);
    EXPECT_EQ(speicher.Ende(), 7U);
}

TEST_F(ZustandsmerkerTest, Another_controller_is_another_state) {
    Zustand(0s, 1);
    Zustand(1s, 2);
    Zustand(2s, 1, 1);
    EXPECT_EQ(speicher.Ende(), 3U);
}

} // namespace varnoth
