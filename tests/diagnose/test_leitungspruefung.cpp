#include "leitungspruefung.h"

#include "identleitung.h"
#include "texte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace varnoth {

using namespace pruefung;

namespace {

struct Beobachter : Pruefzeiger {
    void Zeige(const Pruefbefund& bisher) override { gesehen.push_back(bisher.gesendet); }
    bool Abgebrochen() override { return abbruch && abbruch(); }

    std::vector<int> gesehen;
    std::function<bool()> abbruch;
};

std::vector<Stueck> Still() {
    return {};
}

} // namespace

/// A line whose far end a test scripts.
class Leitungspruefung : public testing::Test {
protected:
    Pruefbefund Pruefe(int anzahl = 4) { return PruefeLeitung({.anzahl = anzahl}, beobachter); }
    /// What ends how often when the far end answers like this.
    std::array<int, Pruefenden> Enden(std::function<std::vector<Stueck>()> antwort, int anzahl = 4) {
        port.antworte = [antwort = std::move(antwort)](const std::string&) { return antwort(); };
        return Pruefe(anzahl).anzahl;
    }
    /// The same when a first request was answered.
    Pruefende EndeNachGuter(const std::string& bytes) {
        int anfragen = 0;
        const auto enden =
            Enden([&] { return ++anfragen == 1 ? Nach(1, Identantwort()) : Nach(1, bytes); }, 2);
        for (std::size_t i = 1; i < enden.size(); ++i)
            if (enden[i] == 1)
                return static_cast<Pruefende>(i);
        return Pruefende::Beantwortet;
    }

    PruefUmgebung umgebung;
    PruefPort port{umgebung};
    Beobachter beobachter;
};

TEST_F(Leitungspruefung, Asks_two_hundred_times_and_sends_nothing_else) {
    port.antworte = [](const std::string&) { return Nach(1, Identantwort()); };
    const Pruefbefund befund = PruefeLeitung({}, beobachter);
    EXPECT_EQ(befund.gesendet, 200);
    EXPECT_EQ(befund.Anzahl(Pruefende::Beantwortet), 200);
    EXPECT_EQ(port.gesendet.size(), 200U);
    EXPECT_THAT(port.gesendet, testing::Each(Identanfrage));
    EXPECT_FALSE(port.offen);
}

TEST_F(Leitungspruefung, Names_device_and_format_and_tells_every_step) {
    modSchnittstelle::SetzeComSettings("9600,e,8,1");
    const Pruefbefund befund = Pruefe(3);
    EXPECT_EQ(befund.geraet, "/dev/pruefung");
    EXPECT_EQ(befund.format, "9600,e,8,1");
    EXPECT_EQ(beobachter.gesehen, (std::vector{1, 2, 3}));
}

TEST_F(Leitungspruefung, Failures_are_told_apart_by_their_kind) {
    using Enden6 = std::array<int, Pruefenden>;
    EXPECT_EQ(Enden([] { return Nach(1, Identantwort()); }), (Enden6{4, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Enden(Still), (Enden6{0, 4, 0, 0, 0, 0}));
    std::string falsch = Identantwort();
    falsch.back() = static_cast<char>(falsch.back() ^ 1);
    EXPECT_EQ(Enden([&] { return Nach(1, falsch); }), (Enden6{0, 0, 4, 0, 0, 0}));
    EXPECT_EQ(Enden([] { return Nach(1, Identantwort().substr(0, 10)); }), (Enden6{0, 0, 0, 4, 0, 0}));
    EXPECT_EQ(Enden([] { return Nach(1, "\x81\x92\xA3"); }), (Enden6{0, 0, 0, 0, 4, 0}));
    EXPECT_EQ(Enden([] { return Nach(1, Identanfrage); }), (Enden6{0, 0, 0, 0, 0, 4}));
}

TEST_F(Leitungspruefung, A_reply_behind_an_echo_counts_as_an_echo) {
    EXPECT_EQ(Enden([] { return Nach(1, Identanfrage + Identantwort()); })[5], 4);
}

TEST_F(Leitungspruefung, What_fails_is_judged_by_a_reply_that_was_in_order) {
    std::string kopflos = Identantwort();
    kopflos[0] = kopflos[1] = '?';
    EXPECT_EQ(EndeNachGuter(kopflos), Pruefende::FalscheSumme);
    EXPECT_EQ(EndeNachGuter(kopflos.substr(0, 12)), Pruefende::Halb);
    EXPECT_EQ(EndeNachGuter(std::string(kopflos.size(), '#')), Pruefende::Fremdes);
    EXPECT_EQ(EndeNachGuter("###"), Pruefende::Fremdes);
}

TEST_F(Leitungspruefung, Round_trips_are_those_of_the_answered_ones_in_order) {
    int anfragen = 0;
    port.antworte = [&](const std::string&) {
        return ++anfragen == 3 ? Still() : Nach(40 - 10 * anfragen, Identantwort());
    };
    const Pruefbefund befund = Pruefe(3);
    ASSERT_EQ(befund.umlaufzeiten.size(), 2U);
    EXPECT_EQ(befund.umlaufzeiten[0], std::chrono::milliseconds(20));
    EXPECT_EQ(befund.umlaufzeiten[1], std::chrono::milliseconds(30));
    EXPECT_EQ(befund.antwortlaenge, Identantwort().size());
}

TEST_F(Leitungspruefung, Shares_of_the_round_trips_are_read_from_their_order) {
    Pruefbefund befund;
    EXPECT_FALSE(Umlaufzeit(befund, 50).has_value());
    for (int i = 1; i <= 200; ++i)
        befund.umlaufzeiten.emplace_back(i);
    EXPECT_EQ(Umlaufzeit(befund, 0), Zeit{1});
    EXPECT_EQ(Umlaufzeit(befund, 50), Zeit{100});
    EXPECT_EQ(Umlaufzeit(befund, 95), Zeit{190});
    EXPECT_EQ(Umlaufzeit(befund, 100), Zeit{200});
}

TEST_F(Leitungspruefung, A_reply_that_comes_within_a_second_is_late_and_not_the_next_requests) {
    int anfragen = 0;
    port.antworte = [&](const std::string&) {
        return ++anfragen % 2 == 1 ? Nach(800, Identantwort()) : Nach(5, Identantwort());
    };
    const Pruefbefund befund = Pruefe(20);
    EXPECT_EQ(befund.spaete, 10);
    EXPECT_EQ(befund.Anzahl(Pruefende::Nichts), 10);
    EXPECT_EQ(befund.ungefragte, 0);
    EXPECT_EQ(befund.umlaufzeiten, std::vector<Zeit>(10, std::chrono::milliseconds(5)));
}

TEST_F(Leitungspruefung, A_silent_line_is_not_listened_to_for_a_second_each_time) {
    EXPECT_EQ(Enden(Still, 100)[1], 100);
    EXPECT_GT(umgebung.uhr, std::chrono::milliseconds(100 * 230 + 3 * 770));
    EXPECT_LT(umgebung.uhr, std::chrono::milliseconds(100 * 240 + 4 * 770));
}

TEST_F(Leitungspruefung, A_line_that_says_something_is_not_listened_to_any_longer) {
    EXPECT_EQ(Enden([] { return Nach(1, "\x81\x92\xA3"); }, 20)[4], 20);
    EXPECT_LT(umgebung.uhr, std::chrono::milliseconds(20 * 240 + 770));
}

TEST_F(Leitungspruefung, The_port_is_closed_once_the_line_is_quiet) {
    port.antworte = [](const std::string&) {
        return std::vector<Stueck>{{std::chrono::milliseconds(1), Identantwort()},
                                   {std::chrono::milliseconds(3), "x"}};
    };
    Pruefe(1);
    EXPECT_GT(port.geschlossenUm - port.sendezeiten.back(), std::chrono::milliseconds(3));
    EXPECT_EQ(port.eingang, "");
}

TEST_F(Leitungspruefung, Bytes_that_come_unasked_are_counted) {
    beobachter.abbruch = [&] {
        port.eingang = "xyz";
        return false;
    };
    const Pruefbefund befund = Pruefe(3);
    EXPECT_EQ(befund.spaete, 0);
    EXPECT_EQ(befund.ungefragte, 3);
}

TEST_F(Leitungspruefung, Bytes_beside_a_reply_are_counted) {
    port.antworte = [](const std::string&) { return Nach(1, "x" + Identantwort()); };
    const Pruefbefund befund = Pruefe(2);
    EXPECT_EQ(befund.Anzahl(Pruefende::Beantwortet), 2);
    EXPECT_EQ(befund.beigaben, 2);
}

TEST_F(Leitungspruefung, Another_masters_requests_and_unasked_data_blocks_are_told_apart) {
    const std::string lesen = MitPruefsumme(Bytes({5, 3, 0, 1, 0, 2}));
    const std::string schreiben = MitPruefsumme(Bytes({5, 0x10, 0, 1, 0, 1, 2, 7, 7}));
    const std::string block = MitPruefsumme(Bytes({1, 3, 4, 0, 1, 0, 2}));
    for (const std::string& anfrage : {lesen, schreiben}) {
        port.antworte = [&](const std::string&) { return Nach(1, Identantwort() + anfrage + block); };
        const Pruefbefund befund = Pruefe(2);
        EXPECT_EQ(befund.fremdeAnfragen, 2);
        EXPECT_EQ(befund.datenbloecke, 0);
    }
    port.antworte = [&](const std::string&) { return Nach(1, block + Identantwort()); };
    const Pruefbefund befund = Pruefe(2);
    EXPECT_EQ(befund.fremdeAnfragen, 0);
    EXPECT_EQ(befund.datenbloecke, 2);
}

TEST_F(Leitungspruefung, Broken_bytes_count_where_the_format_has_a_parity) {
    port.antworte = [](const std::string&) { return Nach(1, "??\x11?"); };
    EXPECT_EQ(Pruefe(2).gebrochene, 0);
    modSchnittstelle::SetzeComSettings("38400,e,8,1");
    EXPECT_EQ(Pruefe(2).gebrochene, 2);
}

TEST_F(Leitungspruefung, Can_be_stopped_at_any_time_and_counts_what_has_ended_by_then) {
    port.antworte = [](const std::string&) { return Nach(1, Identantwort()); };
    beobachter.abbruch = [&] { return beobachter.gesehen.size() == 5; };
    const Pruefbefund befund = Pruefe(200);
    EXPECT_TRUE(befund.abgebrochen);
    EXPECT_EQ(befund.gesendet, 5);
    EXPECT_EQ(befund.Anzahl(Pruefende::Beantwortet), 5);
    EXPECT_FALSE(port.offen);
}

TEST_F(Leitungspruefung, An_exchange_that_is_stopped_is_not_counted_as_failed) {
    beobachter.abbruch = [&] { return port.gesendet.size() == 2; };
    const Pruefbefund befund = Pruefe(200);
    EXPECT_TRUE(befund.abgebrochen);
    EXPECT_EQ(befund.gesendet, 1);
}

TEST_F(Leitungspruefung, Ends_when_the_line_disappears) {
    umgebung.Plane(std::chrono::milliseconds(2100), [this] { port.offen = false; });
    const Pruefbefund befund = Pruefe(200);
    EXPECT_TRUE(befund.portVerloren);
    EXPECT_EQ(befund.gesendet, 2);
}

TEST_F(Leitungspruefung, A_port_that_cannot_be_opened_is_told_with_its_cause) {
    SetzeSprachoffset(Englisch);
    port.oeffnenGelingt = false;
    port.befund = {.hindernis = Hindernis::Belegt, .prozesse = {"varnoth (77)"}};
    const Pruefbefund befund = Pruefe();
    EXPECT_EQ(befund.portfehler, "/dev/pruefung is in use by: varnoth (77). Please end that program.");
    EXPECT_TRUE(port.gesendet.empty());
    port.befund = {};
    EXPECT_EQ(Pruefe().portfehler, "no such port");
    SetzeSprachoffset(Deutsch);
}

TEST_F(Leitungspruefung, A_round_trip_during_which_the_window_held_the_program_up_is_not_known) {
    int anfragen = 0;
    port.antworte = [&](const std::string&) {
        if (++anfragen == 2)
            umgebung.Plane(umgebung.uhr + std::chrono::milliseconds(1),
                           [this] { umgebung.HalteAuf(std::chrono::seconds(5)); });
        return Nach(20, Identantwort());
    };
    const Pruefbefund befund = Pruefe(3);
    EXPECT_EQ(befund.Anzahl(Pruefende::Beantwortet), 3);
    EXPECT_EQ(befund.spaete, 0);
    EXPECT_EQ(befund.umlaufzeiten, std::vector<Zeit>(2, std::chrono::milliseconds(20)));
}

} // namespace varnoth
