#include "fehlschlagsumme.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;

class FehlschlagsummeTest : public testing::Test {
protected:
    FehlschlagsummeTest() { Sieh(0s); }

    void Sieh(Zeit uhr) { summe.Nimm(anzahl, uhr, Systemzeit(1h) + uhr); }

    Ereignisspeicher speicher;
    Fehlschlagsumme summe{speicher};
    std::array<unsigned long, 5> anzahl{100, 0, 7, 0, 0};
};

TEST_F(FehlschlagsummeTest, What_has_failed_before_and_what_succeeds_is_no_event) {
    anzahl[0] += 1000;
    Sieh(1s);
    EXPECT_EQ(speicher.Ende(), 0U);
}

TEST_F(FehlschlagsummeTest, Failures_of_a_kind_are_one_event_with_number_and_duration) {
    for (int sekunde = 1; sekunde <= 20; ++sekunde) {
        anzahl[2] += 3;
        Sieh(std::chrono::seconds(sekunde));
    }
    ASSERT_EQ(speicher.Ende(), 1U);
    EXPECT_EQ(speicher.Hole(0), (Ereignis{.art = Ereignisart::Fehlgeschlagen,
                                          .zeit = Systemzeit(1h) + 1s,
                                          .laufzeit = 1s,
                                          .offen = true,
                                          .anzahl = 60,
                                          .neu = 2,
                                          .dauer = 19s}));
}

TEST_F(FehlschlagsummeTest, Each_kind_is_an_event_of_its_own) {
    ++anzahl[1];
    anzahl[4] += 2;
    Sieh(1s);
    ASSERT_EQ(speicher.Ende(), 2U);
    EXPECT_EQ(speicher.Hole(0).neu, 1);
    EXPECT_EQ(speicher.Hole(1).neu, 4);
    EXPECT_EQ(speicher.Hole(1).anzahl, 2U);
}

TEST_F(FehlschlagsummeTest, A_stretch_ends_after_ten_seconds_without_a_failure) {
    ++anzahl[3];
    Sieh(1s);
    Sieh(11s);
    EXPECT_TRUE(speicher.Hole(0).offen);
    Sieh(12s);
    EXPECT_FALSE(speicher.Hole(0).offen);
    ++anzahl[3];
    Sieh(13s);
    EXPECT_EQ(speicher.Ende(), 2U);
    EXPECT_EQ(speicher.Hole(0).anzahl, 1U);
}

TEST_F(FehlschlagsummeTest, Failures_without_end_give_an_event_every_ten_minutes) {
    for (int sekunde = 1; sekunde <= 3600; ++sekunde) {
        ++anzahl[2];
        Sieh(std::chrono::seconds(sekunde));
    }
    EXPECT_EQ(speicher.Ende(), 6U);
    EXPECT_EQ(speicher.Hole(1).anzahl, 600U);
}

} // namespace varnoth
