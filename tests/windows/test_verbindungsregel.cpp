#include "verbindungsregel.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;
using enum Verbindungszustand;

/// The rule, looking at facts that a test changes from one look to the next.
class VerbindungsregelTest : public testing::Test {
protected:
    Verbindungsbild Betrachte() { return regel.Betrachte(tatsachen); }
    Verbindungsbild BetrachteNach(Zeit dauer) {
        tatsachen.jetzt += dauer;
        tatsachen.uhrzeit =
            tatsachen.uhrzeit.addMSecs(std::chrono::duration_cast<std::chrono::milliseconds>(dauer).count());
        return Betrachte();
    }
    void GeheLive() {
        tatsachen.liveDaten = tatsachen.portOffen = tatsachen.unterwegs = true;
        tatsachen.letzteAntwort = tatsachen.wartetSeit = tatsachen.jetzt;
        EXPECT_EQ(Betrachte().zustand, Live);
    }
    void Halt() { tatsachen.liveDaten = tatsachen.portOffen = tatsachen.unterwegs = false; }

    Verbindungsregel regel;
    const QDateTime start{{2026, 3, 4}, {14, 5}};
    Verbindungstatsachen tatsachen{.jetzt = 1000s, .uhrzeit = start};
};

TEST_F(VerbindungsregelTest, Before_any_connection_it_is_offline_since_the_first_look) {
    Betrachte();
    const auto bild = BetrachteNach(10min);
    EXPECT_EQ(bild.zustand, Offline);
    EXPECT_EQ(bild.seit, start);
    EXPECT_TRUE(bild.startBieten);
}

TEST_F(VerbindungsregelTest, While_the_connection_flow_runs_it_connects_and_offers_no_start) {
    tatsachen.verbindet = true;
    const auto bild = Betrachte();
    EXPECT_EQ(bild.zustand, Verbindet);
    EXPECT_FALSE(bild.startBieten);
}

TEST_F(VerbindungsregelTest, The_search_is_offered_once_nobody_answered_and_live_data_is_not_running) {
    EXPECT_FALSE(Betrachte().sucheBieten);
    tatsachen.fehlgeschlagen = true;
    EXPECT_TRUE(Betrachte().sucheBieten);
    tatsachen.simuliert = true;
    EXPECT_FALSE(Betrachte().sucheBieten);
    tatsachen.simuliert = false;
    tatsachen.verbindet = true;
    EXPECT_FALSE(Betrachte().sucheBieten);
}

TEST_F(VerbindungsregelTest, Polling_with_replies_is_live_and_offers_no_start) {
    GeheLive();
    EXPECT_FALSE(Betrachte().startBieten);
}

TEST_F(VerbindungsregelTest, A_reply_that_stays_away_is_waited_for_in_whole_seconds) {
    GeheLive();
    EXPECT_EQ(BetrachteNach(1200ms).zustand, Live);
    EXPECT_EQ(BetrachteNach(1ms).zustand, Wartet);
    const auto bild = BetrachteNach(2700ms);
    EXPECT_EQ(bild.zustand, Wartet);
    EXPECT_EQ(bild.dauer, 3s);
}

TEST_F(VerbindungsregelTest, Live_data_that_asks_nothing_is_paused_since_the_last_reply) {
    GeheLive();
    tatsachen.unterwegs = false;
    const auto bild = BetrachteNach(5s);
    EXPECT_EQ(bild.zustand, Pausiert);
    EXPECT_EQ(bild.dauer, 5s);
}

TEST_F(VerbindungsregelTest, A_lost_connection_is_offline_since_it_was_lost) {
    Betrachte();
    GeheLive();
    tatsachen.verloren = true;
    BetrachteNach(10min);
    const auto bild = BetrachteNach(20min);
    EXPECT_EQ(bild.zustand, Offline);
    EXPECT_EQ(bild.seit, start.addSecs(600));
    EXPECT_FALSE(bild.startBieten) << "polling is still on";
}

TEST_F(VerbindungsregelTest, A_lost_connection_that_answers_again_is_live) {
    GeheLive();
    tatsachen.verloren = true;
    BetrachteNach(10s);
    tatsachen.verloren = false;
    tatsachen.letzteAntwort = tatsachen.wartetSeit = tatsachen.jetzt;
    EXPECT_EQ(Betrachte().zustand, Live);
}

TEST_F(VerbindungsregelTest, Live_data_that_was_stopped_says_since_when_and_offers_start) {
    Betrachte();
    GeheLive();
    Halt();
    BetrachteNach(1min);
    const auto bild = BetrachteNach(1h);
    EXPECT_EQ(bild.zustand, Angehalten);
    EXPECT_EQ(bild.seit, start.addSecs(60));
    EXPECT_TRUE(bild.startBieten);
}

TEST_F(VerbindungsregelTest, A_dialog_that_has_the_line_for_itself_changes_nothing_of_what_was_stopped) {
    Betrachte();
    GeheLive();
    Halt();
    Betrachte();
    tatsachen.portOffen = true;
    EXPECT_EQ(BetrachteNach(1min).zustand, PortOffen);
    EXPECT_FALSE(Betrachte().startBieten);
    tatsachen.portOffen = false;
    EXPECT_EQ(BetrachteNach(1min).zustand, Angehalten);
    EXPECT_EQ(Betrachte().seit, start);
}

TEST_F(VerbindungsregelTest, A_dialog_whose_request_has_no_reply_waits) {
    tatsachen.portOffen = tatsachen.unterwegs = true;
    tatsachen.wartetSeit = tatsachen.jetzt;
    EXPECT_EQ(Betrachte().zustand, PortOffen);
    EXPECT_EQ(BetrachteNach(2s).zustand, Wartet);
}

TEST_F(VerbindungsregelTest, A_failed_attempt_to_connect_after_a_stop_leaves_it_offline) {
    GeheLive();
    Halt();
    Betrachte();
    tatsachen.verbindet = true;
    Betrachte();
    tatsachen.verbindet = false;
    EXPECT_EQ(Betrachte().zustand, Offline);
}

TEST_F(VerbindungsregelTest, A_lost_connection_that_is_stopped_stays_offline_since_it_was_lost) {
    Betrachte();
    GeheLive();
    tatsachen.verloren = true;
    BetrachteNach(1min);
    Halt();
    const auto bild = BetrachteNach(1min);
    EXPECT_EQ(bild.zustand, Offline);
    EXPECT_EQ(bild.seit, start.addSecs(60));
    EXPECT_TRUE(bild.startBieten);
}

TEST_F(VerbindungsregelTest, Passes_a_second_are_those_of_the_last_two_seconds) {
    GeheLive();
    Verbindungsbild bild;
    for (int i = 0; i < 24; ++i) {
        tatsachen.durchgaenge += i < 10 ? 1 : 4;
        tatsachen.letzteAntwort = tatsachen.wartetSeit = tatsachen.jetzt + 250ms;
        bild = BetrachteNach(250ms);
    }
    EXPECT_NEAR(bild.durchgaengeJeSekunde, 16, 0.01);
}

TEST_F(VerbindungsregelTest, Another_rate_is_given_once_a_second) {
    GeheLive();
    std::vector<double> raten;
    for (int i = 0; i < 40; ++i) {
        tatsachen.durchgaenge += static_cast<unsigned>(i + 1);
        tatsachen.letzteAntwort = tatsachen.wartetSeit = tatsachen.jetzt + 250ms;
        const double neue = BetrachteNach(250ms).durchgaengeJeSekunde;
        if (raten.empty() || raten.back() != neue)
            raten.push_back(neue);
    }
    EXPECT_EQ(raten.size(), 10);
}

TEST_F(VerbindungsregelTest, Slow_passes_have_a_rate_too) {
    GeheLive();
    Verbindungsbild bild;
    for (int i = 0; i < 60; ++i) {
        tatsachen.durchgaenge = static_cast<unsigned>(i / 20);
        tatsachen.letzteAntwort = tatsachen.wartetSeit = tatsachen.jetzt + 250ms;
        bild = BetrachteNach(250ms);
    }
    EXPECT_NEAR(bild.durchgaengeJeSekunde, 0.2, 0.01);
}

TEST_F(VerbindungsregelTest, A_rate_is_given_only_while_live_and_begins_anew_afterwards) {
    GeheLive();
    for (int i = 0; i < 4; ++i) {
        tatsachen.durchgaenge += 3;
        BetrachteNach(250ms);
    }
    EXPECT_EQ(BetrachteNach(5s).durchgaengeJeSekunde, 0);
    tatsachen.letzteAntwort = tatsachen.wartetSeit = tatsachen.jetzt;
    ++tatsachen.durchgaenge;
    EXPECT_EQ(Betrachte().durchgaengeJeSekunde, 0) << "one look is no rate";
}

TEST_F(VerbindungsregelTest, The_simulated_controller_and_the_failures_are_passed_on) {
    tatsachen.simuliert = true;
    tatsachen.fehlschlaege = 7;
    EXPECT_TRUE(Betrachte().simuliert);
    EXPECT_EQ(Betrachte().fehlschlaege, 7);
}

TEST_F(VerbindungsregelTest,
       A_window_that_keeps_the_program_from_listening_pauses_live_data_and_loses_nothing) {
    GeheLive();
    tatsachen.aufgehalten = true;
    EXPECT_EQ(BetrachteNach(1200ms).zustand, Live);
    const auto bild = BetrachteNach(3800ms);
    EXPECT_EQ(bild.zustand, Pausiert);
    EXPECT_EQ(bild.dauer, 5s);
    tatsachen.aufgehalten = false;
    tatsachen.letzteAntwort = tatsachen.wartetSeit = tatsachen.jetzt;
    EXPECT_EQ(Betrachte().zustand, Live);
}

TEST_F(VerbindungsregelTest, A_window_that_keeps_a_dialog_from_listening_makes_no_controller_silent) {
    tatsachen.portOffen = tatsachen.unterwegs = tatsachen.aufgehalten = true;
    tatsachen.wartetSeit = tatsachen.jetzt;
    EXPECT_EQ(BetrachteNach(5s).zustand, PortOffen);
    tatsachen.aufgehalten = false;
    EXPECT_EQ(Betrachte().zustand, Wartet);
}

} // namespace varnoth
