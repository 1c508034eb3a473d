#include "qtumgebung.h"

#include <QTimer>
#include <gtest/gtest.h>

#include <functional>
#include <thread>

namespace varnoth {

using namespace std::chrono_literals;

class QtUmgebungTest : public testing::Test {
protected:
    /// Whether an event that becomes pending right after one thing is left alone by another. Only a try
    /// within a moment counts: a machine that is busy elsewhere gets some more.
    bool Laesst(const std::function<void()>& davor, const std::function<void()>& danach) {
        for (int versuch = 0; versuch < 1000; ++versuch) {
            davor();
            const Zeit beginn = umgebung.Uhr();
            bool bedient = false;
            const QObject empfaenger;
            QTimer::singleShot(0, &empfaenger, [&bedient] { bedient = true; });
            danach();
            if (umgebung.Uhr() - beginn < 2ms)
                return !bedient;
        }
        ADD_FAILURE() << "the machine is too slow";
        return false;
    }

    QtUmgebung umgebung;
};

TEST_F(QtUmgebungTest, A_wait_without_events_lasts_its_time) {
    for (const Zeit dauer : {1500us, 20000us}) {
        const Zeit ende = umgebung.Uhr() + dauer;
        int gewartet = 0;
        for (; umgebung.Uhr() < ende; ++gewartet)
            umgebung.WarteAufEreignis(ende - umgebung.Uhr());
        EXPECT_LT(umgebung.Uhr() - ende, 500ms) << dauer.count();
        EXPECT_LT(gewartet, 100) << "a wait that returns at once would be asked thousands of times";
    }
}

TEST_F(QtUmgebungTest, A_wait_ends_with_the_first_event) {
    bool bedient = false;
    QTimer::singleShot(5, [&bedient] { bedient = true; });
    const Zeit beginn = umgebung.Uhr();
    while (!bedient && umgebung.Uhr() - beginn < 10s)
        umgebung.WarteAufEreignis(10s);
    EXPECT_TRUE(bedient);
    EXPECT_LT(umgebung.Uhr() - beginn, 5s);
}

TEST_F(QtUmgebungTest, Pending_events_are_run_and_the_open_forms_counted) {
    int bedient = 0;
    QTimer::singleShot(0, [&bedient] { ++bedient; });
    umgebung.SetzeFormularzaehler([] { return 3; });
    EXPECT_EQ(umgebung.LasseEreignisseLaufen(), 3);
    EXPECT_EQ(bedient, 1);
}

TEST_F(QtUmgebungTest, Events_that_ran_a_moment_ago_are_not_looked_for_again) {
    const auto laufen = [this] { umgebung.LasseEreignisseLaufen(); };
    const auto nutzen = [this] { umgebung.NutzeWartezeit(); };
    const auto kurz = [this] { umgebung.WarteAufEreignis(1ms); };
    EXPECT_TRUE(Laesst(laufen, laufen));
    EXPECT_TRUE(Laesst(nutzen, laufen));
    EXPECT_TRUE(Laesst(laufen, kurz));
    EXPECT_FALSE(Laesst(laufen, nutzen));
}

TEST_F(QtUmgebungTest, Events_are_looked_for_again_after_a_moment) {
    umgebung.LasseEreignisseLaufen();
    bool bedient = false;
    QTimer::singleShot(0, [&bedient] { bedient = true; });
    const Zeit beginn = umgebung.Uhr();
    while (!bedient && umgebung.Uhr() - beginn < 10s)
        umgebung.LasseEreignisseLaufen();
    EXPECT_TRUE(bedient);
}

TEST_F(QtUmgebungTest, Behind_a_wait_for_an_event_events_run_at_once) {
    umgebung.LasseEreignisseLaufen();
    bool bedient = false;
    QTimer::singleShot(0, [] {});
    umgebung.WarteAufEreignis(10s);
    QTimer::singleShot(0, [&bedient] { bedient = true; });
    umgebung.LasseEreignisseLaufen();
    EXPECT_TRUE(bedient);
}

TEST_F(QtUmgebungTest, Messages_take_the_way_that_was_set) {
    std::string gezeigt;
    umgebung.SetzeMeldungsweg([&gezeigt](const Meldung& meldung) {
        gezeigt = meldung.text;
        return Antwort::Nein;
    });
    EXPECT_EQ(umgebung.ZeigeMeldung({.text = "x"}), Antwort::Nein);
    EXPECT_EQ(gezeigt, "x");
}

TEST_F(QtUmgebungTest, A_witness_hears_of_each_message_before_it_is_answered_and_changes_nothing) {
    std::vector<std::string> gang;
    umgebung.SetzeMeldungszeuge([&](const Meldung& meldung) { gang.push_back("heard: " + meldung.text); });
    umgebung.SetzeMeldungsweg([&](const Meldung& meldung) {
        gang.push_back("answered: " + meldung.text);
        return Antwort::Nein;
    });
    EXPECT_EQ(umgebung.ZeigeMeldung({.text = "Frage"}), Antwort::Nein);
    EXPECT_EQ(gang, (std::vector<std::string>{"heard: Frage", "answered: Frage"}));
}

TEST_F(QtUmgebungTest, Without_windows_a_message_gets_the_answer_of_a_box_that_is_closed) {
    EXPECT_EQ(umgebung.ZeigeMeldung({.text = "x", .knoepfe = Knoepfe::Ok}), Antwort::Ok);
    EXPECT_EQ(umgebung.ZeigeMeldung({.text = "x", .knoepfe = Knoepfe::OkAbbrechen}), Antwort::Abbrechen);
    EXPECT_EQ(umgebung.ZeigeMeldung({.text = "x", .knoepfe = Knoepfe::JaNeinAbbrechen}), Antwort::Abbrechen);
}

TEST_F(QtUmgebungTest, Status_texts_reach_who_shows_them) {
    int gezeigtesFeld = 0;
    umgebung.SetzeStatusanzeige([&gezeigtesFeld](int feld, const std::string&) { gezeigtesFeld = feld; });
    umgebung.ZeigeStatustext(FeldSchaltausgang, "x");
    EXPECT_EQ(gezeigtesFeld, FeldSchaltausgang);
}

TEST_F(QtUmgebungTest, Events_that_do_not_come_back_hold_the_program_up_whoever_has_them_run) {
    const std::function<void()> wege[] = {[this] { umgebung.LasseEreignisseLaufen(); },
                                          [this] { umgebung.NutzeWartezeit(); },
                                          [this] { umgebung.WarteAufEreignis(100ms); }};
    for (const auto& lasseLaufen : wege) {
        const Zeit davor = umgebung.GetAufenthalt().gesamt;
        const Zeit beginn = umgebung.Uhr();
        bool gehalten = false;
        QTimer::singleShot(0, [&] {
            while (!umgebung.GetAufenthalt().dauertAn && umgebung.Uhr() - beginn < 10s)
                std::this_thread::yield();
            gehalten = umgebung.GetAufenthalt().dauertAn;
        });
        while (!gehalten && umgebung.Uhr() - beginn < 10s)
            lasseLaufen();
        EXPECT_TRUE(gehalten);
        EXPECT_FALSE(umgebung.GetAufenthalt().dauertAn);
        EXPECT_GE(umgebung.GetAufenthalt().gesamt - davor, 500ms);
    }
}

} // namespace varnoth
