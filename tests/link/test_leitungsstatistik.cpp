#include "leitungsstatistik.h"

#include "minutenzaehler.h"
#include "pruefgeraet.h"
#include "transaktionen.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;
using pruefung::Stueck;

namespace {

unsigned long Anzahl(Austauschende ende) {
    return modLeitungsstatistik::GetStand().anzahl.at(static_cast<std::size_t>(ende));
}

} // namespace

TEST(Minutenzaehler, Counts_what_has_happened_in_the_sixty_seconds_up_to_now) {
    Minutenzaehler zaehler;
    zaehler.Zaehle(10s);
    zaehler.Zaehle(10s + 900ms);
    zaehler.Zaehle(40s);
    EXPECT_EQ(zaehler.Anzahl(40s), 3);
    EXPECT_EQ(zaehler.Anzahl(69s + 900ms), 3);
    EXPECT_EQ(zaehler.Anzahl(70s), 1);
    EXPECT_EQ(zaehler.Anzahl(100s), 0);
}

TEST(Minutenzaehler, The_same_second_of_the_next_minute_begins_anew) {
    Minutenzaehler zaehler;
    zaehler.Zaehle(10s);
    zaehler.Zaehle(70s);
    EXPECT_EQ(zaehler.Anzahl(70s), 1);
}

TEST(Minutenzaehler, Counts_nothing_before_anything_has_happened) {
    EXPECT_EQ(Minutenzaehler().Anzahl(0s), 0);
}

/// An open port with a controller that has said who it is.
class Leitungsstatistik : public testing::Test {
protected:
    Leitungsstatistik() {
        modSchnittstelle::OpenCommPort();
        modModbus::RTUModeH11IndentifikationsAnforderung();
    }

    static bool Lies() {
        Werte werte(1);
        return modModbus::RTUModeH03LeseAnforderung(0, 1, werte) == True;
    }
    /// What comes back for every request from now on.
    void Erwidere(std::function<std::string(const std::string&)> antwort) {
        port.antworte = [antwort = std::move(antwort)](const std::string& anforderung) {
            return std::vector<Stueck>{{1ms, antwort(anforderung)}};
        };
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefPort port{umgebung};
    pruefung::PruefGeraet geraet{port};
    const modLeitungsstatistik::Stand& stand = modLeitungsstatistik::GetStand();
};

TEST_F(Leitungsstatistik, An_exchange_that_succeeds_is_counted_with_the_time_of_its_reply) {
    umgebung.uhr = 5s;
    EXPECT_TRUE(Lies());
    EXPECT_EQ(Anzahl(Austauschende::Gelungen), 2U);
    EXPECT_EQ(stand.letztesEnde, Austauschende::Gelungen);
    EXPECT_GE(stand.letzteAntwort, 5s);
    EXPECT_EQ(stand.wartetSeit, std::nullopt);
    EXPECT_EQ(modLeitungsstatistik::FehlschlaegeDerLetztenMinute(), 0);
}

TEST_F(Leitungsstatistik, A_request_without_any_reply_ends_in_silence) {
    geraet.schweige = [](const std::string&) { return true; };
    EXPECT_FALSE(Lies());
    EXPECT_EQ(stand.letztesEnde, Austauschende::Stille);
    EXPECT_EQ(Anzahl(Austauschende::Stille), 1U);
    EXPECT_EQ(modLeitungsstatistik::FehlschlaegeDerLetztenMinute(), 1);
}

TEST_F(Leitungsstatistik, Bytes_that_are_no_reply_are_not_understood) {
    Erwidere([](const std::string&) { return "\x83\xF1\x07"; });
    EXPECT_FALSE(Lies());
    EXPECT_EQ(stand.letztesEnde, Austauschende::Unverstanden);
}

TEST_F(Leitungsstatistik, A_request_that_comes_back_is_an_echo) {
    Erwidere([](const std::string& anforderung) { return anforderung; });
    EXPECT_FALSE(Lies());
    EXPECT_EQ(stand.letztesEnde, Austauschende::Echo);
}

TEST_F(Leitungsstatistik, An_exchange_at_a_closed_port_is_counted_as_that) {
    modSchnittstelle::CloseCommPort();
    EXPECT_FALSE(Lies());
    EXPECT_EQ(stand.letztesEnde, Austauschende::KeinPort);
}

TEST_F(Leitungsstatistik, The_wait_begins_with_the_first_request_that_had_no_reply) {
    geraet.schweige = [](const std::string&) { return true; };
    umgebung.uhr = 100s;
    Lies();
    Lies();
    EXPECT_EQ(stand.wartetSeit, 100s);
    geraet.schweige = nullptr;
    Lies();
    EXPECT_EQ(stand.wartetSeit, std::nullopt);
}

TEST_F(Leitungsstatistik, An_exchange_is_under_way_until_it_has_ended) {
    bool dabei = false;
    geraet.schweige = [&](const std::string&) {
        dabei = stand.unterwegs;
        return false;
    };
    EXPECT_FALSE(stand.unterwegs);
    Lies();
    EXPECT_TRUE(dabei);
    EXPECT_FALSE(stand.unterwegs);
}

TEST_F(Leitungsstatistik, Opening_the_port_begins_a_new_row_of_exchanges) {
    geraet.schweige = [](const std::string&) { return true; };
    Lies();
    modSchnittstelle::OpenCommPort();
    EXPECT_EQ(stand.wartetSeit, std::nullopt);
    EXPECT_EQ(stand.letztesEnde, std::nullopt);
    EXPECT_EQ(Anzahl(Austauschende::Stille), 1U);
}

TEST_F(Leitungsstatistik, Nobody_waits_for_a_reply_while_the_window_holds_the_program_up) {
    EXPECT_EQ(modLeitungsstatistik::WartetSeit(), std::nullopt);
    geraet.schweige = [](const std::string&) { return true; };
    umgebung.HalteAuf(7s);
    umgebung.uhr = 100s;
    Lies();
    EXPECT_EQ(modLeitungsstatistik::WartetSeit(), 100s);
    umgebung.HalteAuf(5s);
    EXPECT_EQ(modLeitungsstatistik::WartetSeit(), 105s);
}

} // namespace varnoth
