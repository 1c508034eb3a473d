#include "ereignispumpe.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <gtest/gtest.h>

#include <string>

namespace varnoth {

using namespace std::chrono_literals;

class EreignispumpeTest : public testing::Test {
protected:
    /// Work that leaves its mark.
    std::function<void()> Arbeit(char marke) {
        return [this, marke] { getan += marke; };
    }
    static void Spaeter(std::function<void()> was) {
        QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(was), Qt::QueuedConnection);
    }

    Ereignispumpe pumpe;
    std::string getan;
};

TEST_F(EreignispumpeTest, Work_put_off_waits_while_only_what_cannot_wait_runs) {
    pumpe.SchiebeAuf(Arbeit('a'));
    Spaeter(Arbeit('e'));
    pumpe.LaufeOhneAufgeschobenes();
    pumpe.LaufeOhneAufgeschobenes();
    EXPECT_EQ(getan, "e");
}

TEST_F(EreignispumpeTest, Work_put_off_is_done_once_and_in_order_when_there_is_time) {
    pumpe.SchiebeAuf(Arbeit('a'));
    pumpe.SchiebeAuf(Arbeit('b'));
    pumpe.LaufeOhneAufgeschobenes();
    pumpe.LaufeMitAllem();
    pumpe.LaufeMitAllem();
    EXPECT_EQ(getan, "ab");
}

TEST_F(EreignispumpeTest, A_wait_does_the_work_too_and_ends_with_it) {
    for (const bool dazwischen : {false, true}) {
        getan.clear();
        pumpe.SchiebeAuf(Arbeit('a'));
        if (dazwischen)
            pumpe.LaufeOhneAufgeschobenes();
        QElapsedTimer dauer;
        dauer.start();
        for (int i = 0; getan.empty() && i < 100; ++i)
            pumpe.WarteAufEreignis(10s);
        EXPECT_EQ(getan, "a");
        EXPECT_LT(dauer.elapsed(), 5000);
    }
}

TEST_F(EreignispumpeTest, Any_other_event_loop_does_it_also_one_inside_the_held_events) {
    pumpe.SchiebeAuf(Arbeit('a'));
    QCoreApplication::processEvents();
    EXPECT_EQ(getan, "a");
    Spaeter([this] {
        QEventLoop schleife;
        Spaeter([this] { pumpe.SchiebeAuf(Arbeit('b')); });
        QTimer blick;
        QObject::connect(&blick, &QTimer::timeout, &schleife, [&] {
            if (getan == "ab")
                schleife.quit();
        });
        blick.start(1);
        QTimer::singleShot(10000, &schleife, &QEventLoop::quit);
        schleife.exec();
        EXPECT_EQ(getan, "ab");
    });
    pumpe.LaufeOhneAufgeschobenes();
    EXPECT_EQ(getan, "ab");
}

TEST_F(EreignispumpeTest, Work_that_held_events_put_off_waits_too) {
    Spaeter([this] {
        EXPECT_TRUE(pumpe.HaeltZurueck());
        pumpe.SchiebeAuf(Arbeit('a'));
    });
    pumpe.LaufeOhneAufgeschobenes();
    EXPECT_FALSE(pumpe.HaeltZurueck());
    EXPECT_EQ(getan, "");
    QCoreApplication::processEvents();
    EXPECT_EQ(getan, "a");
}

TEST_F(EreignispumpeTest, What_the_work_posts_is_served_with_it) {
    pumpe.SchiebeAuf([this] { Spaeter(Arbeit('x')); });
    pumpe.LaufeMitAllem();
    EXPECT_EQ(getan, "x");
}

} // namespace varnoth
