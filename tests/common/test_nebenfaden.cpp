#include "nebenfaden.h"

#include "schranke.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>

namespace varnoth {

using namespace std::chrono_literals;

TEST(Nebenfaden, Its_end_is_waited_for_no_longer_than_allowed) {
    pruefung::Schranke tor(0);
    Nebenfaden faden([&] { tor.acquire(); });
    EXPECT_FALSE(faden.WarteAufEnde(1ms));
    tor.release();
    EXPECT_TRUE(faden.WarteAufEnde(20s));
    EXPECT_TRUE(faden.WarteAufEnde(0ms));
}

TEST(Nebenfaden, Its_destruction_waits_for_the_work) {
    std::atomic<bool> getan = false;
    {
        const Nebenfaden faden([&] {
            std::this_thread::sleep_for(20ms);
            getan = true;
        });
    }
    EXPECT_TRUE(getan);
}

TEST(Nebenfaden, Once_left_behind_it_holds_up_nobody_and_still_does_its_work) {
    struct Gemeinsames {
        pruefung::Schranke tor{0};
        pruefung::Schranke getan{0};
    };
    const auto gemeinsames = std::make_shared<Gemeinsames>();
    {
        Nebenfaden faden([gemeinsames] {
            gemeinsames->tor.acquire();
            gemeinsames->getan.release();
        });
        faden.LasseZurueck();
    }
    gemeinsames->tor.release();
    EXPECT_TRUE(gemeinsames->getan.try_acquire_for(20s));
}

} // namespace varnoth
