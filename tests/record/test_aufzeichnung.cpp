#include "aufzeichnung.h"

#include "csvform.h"
#include "pruefablage.h"
#include "schranke.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <thread>

namespace varnoth {
namespace {

using namespace std::chrono_literals;
using pruefung::PruefAblage;

Augenblick Jetzt() {
    return {.uhr = std::chrono::duration_cast<Zeit>(std::chrono::steady_clock::now().time_since_epoch()),
            .zeit = std::chrono::system_clock::now()};
}

/// A form that waits until it is let go on.
class Haltform : public Aufzeichnungsform {
public:
    explicit Haltform(pruefung::Schranke& schranke) : tor(schranke) {}
    std::string Beginne(const Messangaben& /*angaben*/, std::shared_ptr<const Abbild> /*k*/) override {
        return "B";
    }
    std::string Nimm(const Messpaket& paket, std::shared_ptr<const Abbild> /*k*/) override {
        tor.acquire();
        std::string bytes(paket.durchgaenge.size(), '.');
        for (const Messereignis& ereignis : paket.ereignisse)
            bytes += "<" + ereignis.text + ">";
        return bytes;
    }
    std::string Beende() override { return "E"; }

private:
    pruefung::Schranke& tor;
};

class AufzeichnungTest : public testing::Test {
protected:
    Aufzeichnungsauftrag Auftrag() {
        Aufzeichnungsauftrag auftrag{.wahl = {}, .ordner = "/o", .name = "n"};
        auftrag.formen.push_back({".a", [this] { return std::make_unique<Haltform>(tor); }});
        return auftrag;
    }
    /// Gives the thread time to come to where a condition holds.
    template<class Bedingung>
    static bool WarteAuf(Bedingung bedingung) {
        const auto ende = std::chrono::steady_clock::now() + 20s;
        while (!bedingung()) {
            if (std::chrono::steady_clock::now() > ende)
                return false;
            std::this_thread::sleep_for(1ms);
        }
        return true;
    }

    /// The passes that a file says were dropped, "<17>", added up.
    static std::uint64_t Verworfene(const std::string& inhalt) {
        std::uint64_t summe = 0;
        for (auto i = inhalt.find('<'); i != std::string::npos; i = inhalt.find('<', i + 1))
            summe += std::strtoull(&inhalt[i + 1], nullptr, 10); // other events have no text
        return summe;
    }

    std::shared_ptr<PruefAblage> ablage = std::make_shared<PruefAblage>();
    pruefung::Schranke tor{0};
    /// Moved on by hand.
    std::atomic<int> minuten = 0;
    const Augenblick start = Jetzt();
    const Aufzeichnung::Uhr stehendeUhr = [this] {
        const std::chrono::minutes vergangen(minuten);
        return Augenblick{.uhr = start.uhr + vergangen, .zeit = start.zeit + vergangen};
    };
};

TEST_F(AufzeichnungTest, A_pass_is_written_within_the_second_without_another_call) {
    tor.release(1000);
    Aufzeichnung aufzeichnung(ablage, Auftrag(), Jetzt);
    ASSERT_EQ(aufzeichnung.Beginne(nullptr), 0);
    const auto anfang = std::chrono::steady_clock::now();
    aufzeichnung.Nimm(Messdurchgang{});
    ASSERT_TRUE(WarteAuf([&] { return ablage->Inhalt("/o/n.a") == "B."; }));
    EXPECT_LT(std::chrono::steady_clock::now() - anfang, 1s);
}

TEST_F(AufzeichnungTest, The_end_writes_what_is_waiting) {
    tor.release(1000);
    Aufzeichnung aufzeichnung(ablage, Auftrag(), Jetzt);
    aufzeichnung.Beginne(nullptr);
    for (int i = 0; i < 5; ++i)
        aufzeichnung.Nimm(Messdurchgang{});
    aufzeichnung.Beende();
    EXPECT_EQ(ablage->Inhalt("/o/n.a"), "B.....E");
    EXPECT_EQ(aufzeichnung.Stand().durchgaenge, 5U);
}

TEST_F(AufzeichnungTest, Its_destruction_ends_it_too) {
    tor.release(1000);
    {
        Aufzeichnung aufzeichnung(ablage, Auftrag(), Jetzt);
        aufzeichnung.Beginne(nullptr);
        aufzeichnung.Nimm(Messdurchgang{});
    }
    EXPECT_EQ(ablage->Inhalt("/o/n.a"), "B.E");
}

TEST_F(AufzeichnungTest, A_disk_that_does_not_come_back_holds_up_nobody_and_what_finds_no_room_is_counted) {
    Aufzeichnung aufzeichnung(ablage, Auftrag(), Jetzt);
    aufzeichnung.Beginne(nullptr);
    aufzeichnung.Nimm(Messdurchgang{});
    ASSERT_TRUE(WarteAuf([&] { // the thread stands before the gate with that pass
        aufzeichnung.Nimm(Messereignis{});
        return ablage->Inhalt("/o/n.a") == "B";
    }));
    for (std::size_t i = 0; i < 3 * Aufzeichnung::MeisteWartende; ++i)
        aufzeichnung.Nimm(Messdurchgang{});
    tor.release(1000);
    aufzeichnung.Beende();
    const auto stand = aufzeichnung.Stand();
    EXPECT_EQ(stand.durchgaenge + stand.verworfen, 3 * Aufzeichnung::MeisteWartende + 1);
    EXPECT_GE(stand.verworfen, Aufzeichnung::MeisteWartende);
    EXPECT_EQ(Verworfene(ablage->Inhalt("/o/n.a")), stand.verworfen) << "in one place or two";
}

TEST_F(AufzeichnungTest, A_disk_that_never_answers_holds_up_the_end_no_longer_than_allowed) {
    tor.release(1000);
    Aufzeichnung aufzeichnung(ablage, Auftrag(), Jetzt);
    ASSERT_EQ(aufzeichnung.Beginne(nullptr), 0);
    ablage->Halte();
    aufzeichnung.Nimm(Messdurchgang{});
    aufzeichnung.Nimm(Messdurchgang{});
    ASSERT_TRUE(WarteAuf([&] { return ablage->HaeltJemanden(); }));
    for (int i = 0; i < 3; ++i)
        aufzeichnung.Nimm(Messdurchgang{});
    EXPECT_FALSE(aufzeichnung.Beende(50ms));
    EXPECT_EQ(aufzeichnung.Stand().verworfen, 5U) << "those in the thread's hands and those that wait";
    EXPECT_EQ(aufzeichnung.Stand().fehler, ETIMEDOUT);
    ablage->LasseLos();
    EXPECT_TRUE(WarteAuf([&] { return ablage->AllesGeschlossen(); }));
    EXPECT_EQ(ablage->Inhalt("/o/n.a"), "B.....E") << "what comes late is whole";
    EXPECT_EQ(aufzeichnung.Stand().verworfen, 5U) << "and changes nothing of what was told";
}

TEST_F(AufzeichnungTest, A_disk_that_takes_its_time_at_the_end_can_be_asked_again) {
    tor.release(1000);
    Aufzeichnung aufzeichnung(ablage, Auftrag(), Jetzt);
    ASSERT_EQ(aufzeichnung.Beginne(nullptr), 0);
    ablage->Halte();
    aufzeichnung.Nimm(Messdurchgang{});
    ASSERT_TRUE(WarteAuf([&] { return ablage->HaeltJemanden(); }));
    EXPECT_FALSE(aufzeichnung.LassEnden(1ms));
    EXPECT_FALSE(aufzeichnung.LassEnden(1ms));
    ablage->LasseLos();
    EXPECT_TRUE(aufzeichnung.LassEnden(Aufzeichnung::Beliebig));
    EXPECT_EQ(ablage->Inhalt("/o/n.a"), "B.E");
    EXPECT_EQ(aufzeichnung.Stand().verworfen, 0U);
    EXPECT_TRUE(aufzeichnung.Beende(0ms)) << "nothing runs";
}

TEST_F(AufzeichnungTest, A_recording_that_was_left_behind_can_be_destroyed_before_its_disk_answers) {
    tor.release(1000);
    auto aufzeichnung = std::make_unique<Aufzeichnung>(ablage, Auftrag(), Jetzt);
    ASSERT_EQ(aufzeichnung->Beginne(nullptr), 0);
    ablage->Halte();
    aufzeichnung->Nimm(Messdurchgang{});
    ASSERT_TRUE(WarteAuf([&] { return ablage->HaeltJemanden(); }));
    EXPECT_FALSE(aufzeichnung->Beende(1ms));
    aufzeichnung.reset();
    ablage->LasseLos();
    EXPECT_TRUE(WarteAuf([&] { return ablage->AllesGeschlossen(); }));
}

TEST_F(AufzeichnungTest, An_error_at_the_beginning_is_given_back) {
    ablage->Versage(EACCES);
    Aufzeichnung aufzeichnung(ablage, Auftrag(), Jetzt);
    EXPECT_EQ(aufzeichnung.Beginne(nullptr), EACCES);
    EXPECT_EQ(aufzeichnung.Stand().fehler, EACCES);
    EXPECT_TRUE(aufzeichnung.Beende(0ms)) << "nothing runs";
}

TEST_F(AufzeichnungTest, A_disk_that_does_not_answer_at_the_beginning_holds_up_nobody) {
    tor.release(1000);
    ablage->Halte();
    Aufzeichnung aufzeichnung(ablage, Auftrag(), stehendeUhr);
    EXPECT_EQ(aufzeichnung.Beginne(nullptr, 1ms), std::nullopt);
    EXPECT_EQ(aufzeichnung.Stand().dateien, 0);
    EXPECT_FALSE(aufzeichnung.Stand().wartet) << "not for long";
    aufzeichnung.Nimm(Messdurchgang{});
    minuten = 1;
    EXPECT_TRUE(aufzeichnung.Stand().wartet);
    aufzeichnung.Nimm(Messdurchgang{});
    ablage->LasseLos();
    ASSERT_TRUE(WarteAuf([&] { return ablage->Inhalt("/o/n.a") == "B.."; }));
    ASSERT_TRUE(WarteAuf([&] { return aufzeichnung.Stand().durchgaenge == 2; }));
    EXPECT_FALSE(aufzeichnung.Stand().wartet);
    EXPECT_EQ(aufzeichnung.Stand().dateien, 1);
}

TEST_F(AufzeichnungTest, An_error_that_comes_late_is_told_and_nothing_runs) {
    ablage->Halte();
    Aufzeichnung aufzeichnung(ablage, Auftrag(), Jetzt);
    EXPECT_EQ(aufzeichnung.Beginne(nullptr, 1ms), std::nullopt);
    ablage->Versage(EROFS);
    ablage->LasseLos();
    ASSERT_TRUE(WarteAuf([&] { return aufzeichnung.Stand().fehler == EROFS; }));
    EXPECT_EQ(aufzeichnung.Stand().dateien, 0);
    EXPECT_TRUE(aufzeichnung.Beende());
}

TEST_F(AufzeichnungTest, One_that_has_never_begun_can_be_left_behind) {
    tor.release(1000);
    ablage->Halte();
    auto aufzeichnung = std::make_unique<Aufzeichnung>(ablage, Auftrag(), Jetzt);
    EXPECT_EQ(aufzeichnung->Beginne(nullptr, 1ms), std::nullopt);
    aufzeichnung->Nimm(Messdurchgang{});
    EXPECT_FALSE(aufzeichnung->Beende(1ms));
    EXPECT_EQ(aufzeichnung->Stand().verworfen, 1U);
    EXPECT_FALSE(aufzeichnung->Stand().wartet);
    aufzeichnung.reset();
    ablage->LasseLos();
    EXPECT_TRUE(WarteAuf([&] { return ablage->Inhalt("/o/n.a") == "B.E"; })) << "what comes late is whole";
}

TEST_F(AufzeichnungTest, A_disk_that_falls_silent_while_it_runs_is_told) {
    tor.release(1000);
    Aufzeichnung aufzeichnung(ablage, Auftrag(), stehendeUhr);
    ASSERT_EQ(aufzeichnung.Beginne(nullptr), 0);
    ablage->Halte();
    aufzeichnung.Nimm(Messdurchgang{});
    ASSERT_TRUE(WarteAuf([&] { return ablage->HaeltJemanden(); }));
    EXPECT_FALSE(aufzeichnung.Stand().wartet) << "not for long";
    minuten = 1;
    EXPECT_TRUE(aufzeichnung.Stand().wartet);
    ablage->LasseLos();
    EXPECT_TRUE(WarteAuf([&] { return !aufzeichnung.Stand().wartet; }));
}

} // namespace
} // namespace varnoth
