#include "leitungstakt.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;

namespace {

constexpr Zeit Zeichen = 1000us; // 10 bits at 10000 baud
constexpr std::size_t Anforderung = 8;

} // namespace

class LeitungstaktTest : public testing::Test {
protected:
    LeitungstaktTest() {
        takt.Stelle("10000,n,8,1");
        takt.Gesendet(0us, Anforderung);
    }
    /// The first of the reply's characters, as early as a line in order can bring it.
    void BringeErstes() { takt.Empfangen((Anforderung + 1) * Zeichen, 1); }

    Leitungstakt takt;
};

TEST_F(LeitungstaktTest, A_request_has_left_after_the_time_of_its_characters) {
    EXPECT_EQ(takt.Sendeende(), 8ms);
    takt.Gesendet(5ms, 2);
    EXPECT_EQ(takt.Sendeende(), 10ms) << "behind the one that was still leaving";
    takt.Gesendet(50ms, 2);
    EXPECT_EQ(takt.Sendeende(), 52ms);
}

/// A line whose requests and replies follow each other.
class PuenktlichkeitTest : public testing::Test {
protected:
    PuenktlichkeitTest() { takt.Stelle("10000,n,8,1"); }
    /// One exchange of 8 and 7 characters, its reply there so much before or behind its time.
    bool KamZuFrueh(Zeit verspaetung) {
        jetzt += 1s;
        takt.Gesendet(jetzt, Anforderung);
        takt.Empfangen(jetzt + (Anforderung + 7) * Zeichen + verspaetung, 7);
        return takt.KamZuFrueh();
    }
    void Bewaehre(int austausche) {
        for (int i = 0; i < austausche; ++i)
            EXPECT_FALSE(KamZuFrueh(0us)) << i;
    }

    Leitungstakt takt;
    Zeit jetzt{0};
};

TEST_F(PuenktlichkeitTest,
       What_comes_sooner_than_request_and_reply_can_pass_the_line_is_too_early_to_be_the_reply) {
    Bewaehre(20);
    EXPECT_TRUE(KamZuFrueh(-2ms));
    EXPECT_FALSE(KamZuFrueh(0us));
    EXPECT_FALSE(KamZuFrueh(500ms));
}

TEST_F(PuenktlichkeitTest, A_line_is_believed_to_keep_its_pace_after_twenty_replies) {
    Bewaehre(19);
    EXPECT_FALSE(KamZuFrueh(-2ms));
    Bewaehre(19);
    EXPECT_FALSE(KamZuFrueh(-2ms));
}

TEST_F(PuenktlichkeitTest, A_line_that_turns_out_to_be_faster_is_believed_no_more_from_the_third_reply_on) {
    Bewaehre(20);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(KamZuFrueh(-2ms)) << i;
    for (int i = 0; i < 30; ++i)
        EXPECT_FALSE(KamZuFrueh(-2ms)) << i;
}

TEST_F(PuenktlichkeitTest, What_is_known_of_a_line_stays_while_its_settings_do) {
    Bewaehre(20);
    takt.Stelle("10000,n,8,1");
    EXPECT_TRUE(KamZuFrueh(-2ms));
    takt.Stelle("9600,n,8,1");
    EXPECT_FALSE(KamZuFrueh(-2ms));
}

/// A line whose replies begin some time behind their requests.
class AntwortzeitTest : public testing::Test {
protected:
    AntwortzeitTest() { takt.Stelle("10000,n,8,1"); }
    /// One exchange: nothing of the reply had come so long behind the request's end.
    bool KamSpaet(Zeit nichtsBis, Zeit gelesen) {
        jetzt += 1s;
        takt.Gesendet(jetzt, Anforderung);
        takt.NochNichts(jetzt + Anforderung * Zeichen + nichtsBis);
        takt.Empfangen(jetzt + Anforderung * Zeichen + gelesen, 1);
        takt.NochNichts(jetzt + Anforderung * Zeichen + gelesen + 300ms); // of the rest
        takt.Empfangen(jetzt + Anforderung * Zeichen + gelesen + 400ms, 6);
        return takt.KamSpaet();
    }
    bool KamSpaet(Zeit nach) { return KamSpaet(nach, nach + 1ms); }
    void Gewoehne(Zeit nach, int austausche = 20) {
        for (int i = 0; i < austausche; ++i)
            EXPECT_FALSE(KamSpaet(nach)) << i;
    }

    Leitungstakt takt;
    Zeit jetzt{0};
};

TEST_F(AntwortzeitTest, A_reply_is_late_that_begins_more_than_ten_milliseconds_behind_twice_the_usual_time) {
    Gewoehne(5ms);
    EXPECT_FALSE(KamSpaet(20ms));
    EXPECT_TRUE(KamSpaet(24ms));
}

TEST_F(AntwortzeitTest, Before_twenty_replies_none_is_late) {
    Gewoehne(5ms, 19);
    EXPECT_FALSE(KamSpaet(500ms));
}

TEST_F(AntwortzeitTest, A_reply_that_was_read_late_because_nobody_looked_is_not_late) {
    Gewoehne(5ms);
    EXPECT_FALSE(KamSpaet(4ms, 900ms));
}

TEST_F(AntwortzeitTest, One_late_reply_does_not_change_what_is_usual_and_five_in_a_row_do) {
    Gewoehne(5ms);
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(KamSpaet(200ms));
    EXPECT_FALSE(KamSpaet(5ms));
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(KamSpaet(200ms));
    EXPECT_FALSE(KamSpaet(400ms));
}

TEST_F(AntwortzeitTest, What_is_usual_follows_a_line_that_grows_slower_or_faster) {
    Gewoehne(5ms);
    Gewoehne(19ms, 40);
    EXPECT_FALSE(KamSpaet(45ms));
    Gewoehne(5ms, 40);
    EXPECT_TRUE(KamSpaet(24ms));
}

TEST_F(AntwortzeitTest, What_is_usual_stays_known_while_the_settings_do) {
    Gewoehne(5ms);
    takt.Stelle("10000,n,8,1");
    EXPECT_TRUE(KamSpaet(50ms));
    takt.Stelle("9600,n,8,1");
    EXPECT_FALSE(KamSpaet(50ms));
}

TEST_F(LeitungstaktTest, Before_the_first_character_nothing_is_known) {
    EXPECT_EQ(takt.Schlafdauer(1ms, 40), 0us);
}

TEST_F(LeitungstaktTest, The_rest_needs_its_time_on_the_line_and_is_awaited_a_little_early) {
    BringeErstes();
    const Zeit jetzt = (Anforderung + 1) * Zeichen;
    EXPECT_GT(takt.Schlafdauer(jetzt, 40), 38ms);
    EXPECT_LT(takt.Schlafdauer(jetzt, 40), 39ms);
    EXPECT_EQ(takt.Schlafdauer(jetzt, 40) - takt.Schlafdauer(jetzt + 10ms, 40), 10ms);
    EXPECT_EQ(takt.Schlafdauer(jetzt + 40ms, 40), 0us);
    EXPECT_GT(takt.Schlafdauer(jetzt, 2), 0us);
    EXPECT_EQ(takt.Schlafdauer(jetzt, 1), 0us);
}

TEST_F(LeitungstaktTest, A_reply_of_forty_characters_is_not_overslept_when_its_clock_is_three_percent_fast) {
    BringeErstes();
    const Zeit jetzt = (Anforderung + 1) * Zeichen;
    EXPECT_LE(takt.Schlafdauer(jetzt, 40), 40 * Zeichen * 97 / 100);
}

TEST_F(LeitungstaktTest, What_is_read_late_does_not_put_off_the_end_of_the_reply) {
    BringeErstes();
    takt.Empfangen(30ms, 19); // the last of them came at 28 ms
    EXPECT_GT(takt.Schlafdauer(30ms, 10), 6ms);
    EXPECT_LE(takt.Schlafdauer(30ms, 10), 7ms);
}

TEST_F(LeitungstaktTest, A_line_that_is_faster_than_its_settings_has_no_pace_until_the_next_request) {
    takt.Empfangen(3ms, 1);
    EXPECT_EQ(takt.Schlafdauer(3ms, 40), 0us);
    takt.Empfangen(30ms, 1);
    EXPECT_EQ(takt.Schlafdauer(30ms, 40), 0us);
    takt.Gesendet(100ms, Anforderung);
    takt.Empfangen(109ms, 1);
    EXPECT_GT(takt.Schlafdauer(109ms, 40), 30ms);
}

TEST_F(LeitungstaktTest, Many_characters_at_once_tell_a_fast_line_too) {
    takt.Empfangen((Anforderung + 1) * Zeichen, 12);
    EXPECT_EQ(takt.Schlafdauer((Anforderung + 1) * Zeichen, 40), 0us);
}

TEST_F(LeitungstaktTest, Settings_that_cannot_be_read_give_no_pace) {
    takt.Stelle("fast");
    takt.Gesendet(0us, Anforderung);
    takt.Empfangen(20ms, 1);
    EXPECT_EQ(takt.Schlafdauer(20ms, 40), 0us);
    EXPECT_EQ(takt.Sendeende(), 0us);
}

} // namespace varnoth
