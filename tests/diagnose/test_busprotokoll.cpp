#include "busprotokoll.h"

#include "busprobe.h"
#include "busworte.h"
#include "pruefgeraet.h"
#include "servicetext.h"
#include "transaktionen.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

namespace varnoth {

using namespace busprobe;
using namespace std::chrono_literals;

class BusprotokollTest : public testing::Test {
protected:
    BusprotokollTest() { protokoll.Beginne(); }

    Busaustausch Neuester() const { return protokoll.Hole(protokoll.Letzter()); }

    pruefung::PruefUmgebung umgebung;
    Busprotokoll protokoll;
};

TEST_F(BusprotokollTest, Is_empty_at_first) {
    EXPECT_EQ(protokoll.Anzahl(), 0U);
    EXPECT_FALSE(protokoll.Hat(1));
    EXPECT_THROW(static_cast<void>(protokoll.Hole(1)), std::out_of_range);
}

TEST_F(BusprotokollTest, Keeps_an_exchange_as_it_was) {
    Probe probe = Gelesen(0x2000 + 12, {512});
    probe.gesendet = 5s;
    protokoll.Hoere(probe);
    const Busaustausch austausch = Neuester();
    EXPECT_EQ(austausch.nummer, 1U);
    EXPECT_EQ(austausch.art, Austauschart::Auftrag);
    EXPECT_EQ(austausch.ergebnis, Austauschergebnis::Beantwortet);
    EXPECT_EQ(austausch.anforderung, probe.anforderung);
    EXPECT_EQ(austausch.empfangen, probe.empfangen);
    EXPECT_EQ(austausch.kamAn, probe.empfangen.size());
    EXPECT_EQ(austausch.gesendet, 5s);
    EXPECT_EQ(austausch.umlauf, 12340us);
}

TEST_F(BusprotokollTest, Hears_what_goes_over_the_line_while_it_listens_and_nothing_else) {
    pruefung::PruefPort port(umgebung);
    const pruefung::PruefGeraet geraet(port);
    modSchnittstelle::OpenCommPort();
    modModbus::RTUModeH11IndentifikationsAnforderung();
    EXPECT_TRUE(protokoll.Laeuft());
    EXPECT_EQ(protokoll.Anzahl(), 1U);
    protokoll.Beende();
    modModbus::RTUModeH11IndentifikationsAnforderung();
    EXPECT_FALSE(protokoll.Laeuft());
    EXPECT_EQ(protokoll.Anzahl(), 1U) << "what was heard stays";
    protokoll.Beginne();
    modModbus::RTUModeH11IndentifikationsAnforderung();
    EXPECT_EQ(protokoll.Anzahl(), 2U);
    EXPECT_EQ(protokoll.Letzter(), 2U);
}

TEST_F(BusprotokollTest, A_log_that_is_gone_hears_nothing) {
    pruefung::PruefPort port(umgebung);
    const pruefung::PruefGeraet geraet(port);
    modSchnittstelle::OpenCommPort();
    {
        Busprotokoll kurzes;
        kurzes.Beginne();
    }
    EXPECT_EQ(modModbus::RTUModeH11IndentifikationsAnforderung(), True);
}

TEST_F(BusprotokollTest, Knows_the_newest_hundred_thousand) {
    for (int i = 0; i < 100'003; ++i)
        protokoll.Hoere(Gelesen(i % 200, {i % 65536}));
    EXPECT_EQ(protokoll.Anzahl(), 100'000U);
    EXPECT_EQ(protokoll.Erster(), 4U);
    EXPECT_EQ(protokoll.Letzter(), 100'003U);
    EXPECT_FALSE(protokoll.Hat(3));
    EXPECT_EQ(protokoll.Hole(4).anforderung, Gelesen(3, {3}).anforderung);
    EXPECT_EQ(protokoll.Hole(4).empfangen, Gelesen(3, {3}).empfangen);
    EXPECT_EQ(Neuester().empfangen, Gelesen(0, {100'002 % 65536}).empfangen);
}

TEST_F(BusprotokollTest, A_hundred_thousand_of_the_longest_exchanges_of_a_pass_fit) {
    const Probe strahlen = Gelesen(0x2000 + 353, Werte(32, 0xFFFF));
    for (std::size_t i = 0; i < Busprotokoll::Hoechstzahl; ++i)
        protokoll.Hoere(strahlen);
    EXPECT_EQ(protokoll.Anzahl(), Busprotokoll::Hoechstzahl);
}

TEST_F(BusprotokollTest, Needs_at_most_24_MB) {
    static_assert(Busprotokoll::Speicherbedarf() <= 24'000'000);
    EXPECT_GE(Busprotokoll::Speicherbedarf(), Busprotokoll::Bytevorrat + Busprotokoll::Hoechstzahl * 32);
}

TEST_F(BusprotokollTest, Of_endless_noise_the_beginning_is_kept_and_its_length) {
    protokoll.Hoere(Ungefragtes(std::string(5000, 'x')));
    EXPECT_EQ(Neuester().empfangen, std::string(Busprotokoll::HoechstensBytes, 'x'));
    EXPECT_EQ(Neuester().kamAn, 5000U);
}

TEST_F(BusprotokollTest, Exchanges_of_any_length_are_kept_whole_until_their_room_is_needed) {
    std::mt19937 zufall(7); // the same every time
    std::uniform_int_distribution<std::size_t> laenge(0, Busprotokoll::HoechstensBytes);
    std::vector<std::string> alle{""};
    for (int i = 0; i < 90'000; ++i) {
        alle.emplace_back(laenge(zufall), static_cast<char>('a' + i % 26));
        protokoll.Hoere(Ungefragtes(alle.back()));
    }
    EXPECT_GT(protokoll.Anzahl(), Busprotokoll::Bytevorrat / Busprotokoll::HoechstensBytes);
    EXPECT_LT(protokoll.Anzahl(), 90'000U) << "less than wanted, for they are too long";
    for (std::uint64_t nummer = protokoll.Erster(); nummer <= protokoll.Letzter(); ++nummer)
        ASSERT_EQ(protokoll.Hole(nummer).empfangen, alle[nummer]) << nummer;
}

TEST_F(BusprotokollTest, After_clearing_it_is_empty_and_numbers_go_on) {
    protokoll.Hoere(Gelesen(0, {1}));
    protokoll.Leere();
    EXPECT_EQ(protokoll.Anzahl(), 0U);
    EXPECT_FALSE(protokoll.Hat(1));
    protokoll.Hoere(Gelesen(0, {2}));
    EXPECT_EQ(Neuester().nummer, 2U);
}

TEST_F(BusprotokollTest, The_part_is_the_one_that_was_selected_last) {
    protokoll.Hoere(Gelesen(0x2000 + 12, {1}));
    EXPECT_EQ(Neuester().optikteil, -1) << "nobody knows what was selected before";
    protokoll.Hoere(Geschrieben(212, {2}));
    protokoll.Hoere(Gelesen(0x2000 + 12, {1}));
    EXPECT_EQ(Neuester().optikteil, 2);
    protokoll.Hoere(Geschrieben(193, {1}));
    protokoll.Hoere(Geschrieben(189, {1}));
    EXPECT_EQ(Neuester().optikteil, 2);
}

TEST_F(BusprotokollTest, After_a_selection_that_failed_or_a_restart_the_part_is_not_known) {
    protokoll.Hoere(Geschrieben(212, {2}));
    Probe gescheitert = Geschrieben(212, {1});
    gescheitert.ergebnis = Austauschergebnis::Zeitueberschreitung;
    protokoll.Hoere(gescheitert);
    protokoll.Hoere(Gelesen(0x2000 + 12, {1}));
    EXPECT_EQ(Neuester().optikteil, -1);
    protokoll.Hoere(Geschrieben(212, {2}));
    protokoll.Hoere(Geschrieben(189, {3}));
    protokoll.Hoere(Gelesen(0x2000 + 12, {1}));
    EXPECT_EQ(Neuester().optikteil, -1);
    protokoll.Hoere(Geschrieben(212, {2}));
    protokoll.Beende();
    protokoll.Beginne();
    protokoll.Hoere(Gelesen(0x2000 + 12, {1}));
    EXPECT_EQ(Neuester().optikteil, -1) << "nobody listened meanwhile";
}

TEST_F(BusprotokollTest, Times_of_day_run_on_with_the_monotonic_clock) {
    const std::chrono::system_clock::time_point mittags =
        std::chrono::sys_days(std::chrono::days(20000)) + 12h;
    protokoll.Beende();
    protokoll.Beginne(mittags);
    const Zeit beginn = umgebung.uhr;
    EXPECT_EQ(protokoll.Uhrzeit(beginn), mittags);
    EXPECT_EQ(protokoll.Uhrzeit(beginn + 1500ms), mittags + 1500ms);
    protokoll.Hoere(Gelesen(0, {1}));
    umgebung.uhr += 10min;
    protokoll.Beende();
    protokoll.Beginne(mittags - 1h); // the computer's clock was set back
    EXPECT_EQ(protokoll.Uhrzeit(beginn + 10min), mittags + 10min)
        << "what is kept keeps its times and their order";
    protokoll.Leere(mittags - 1h);
    EXPECT_EQ(protokoll.Uhrzeit(umgebung.uhr), mittags - 1h) << "an empty log begins anew";
}

TEST_F(BusprotokollTest, A_round_trip_is_never_negative) {
    Probe probe = Gelesen(0, {1});
    probe.umlauf = Zeit(-5);
    protokoll.Hoere(probe);
    EXPECT_EQ(Neuester().umlauf, Zeit(0));
}

TEST_F(BusprotokollTest, The_round_trip_of_an_exchange_that_the_window_held_up_is_not_known) {
    pruefung::PruefPort port(umgebung);
    const pruefung::PruefGeraet geraet(port);
    modSchnittstelle::OpenCommPort();
    port.antworte = [this, antworte = port.antworte](const std::string& anforderung) {
        umgebung.Plane(umgebung.uhr, [this] { umgebung.HalteAuf(5s); });
        auto stuecke = antworte(anforderung);
        for (auto& stueck : stuecke)
            stueck.nach += 20ms;
        return stuecke;
    };
    EXPECT_EQ(modModbus::RTUModeH11IndentifikationsAnforderung(), True);
    EXPECT_EQ(Neuester().ergebnis, Austauschergebnis::Beantwortet);
    EXPECT_EQ(Umlauftext(Neuester()), "");
}

TEST_F(BusprotokollTest, The_service_password_is_not_even_in_its_memory) {
    modService::SetzeServiceText("Varnoth-Service1");
    protokoll.Hoere(Geschrieben(178, {0x5661, 0x726E, 0x6F74, 0x682D, 0x5365, 0x7276, 0x6963, 0x6531}));
    const Busaustausch austausch = Neuester();
    EXPECT_EQ(austausch.anforderung.size(), 25U);
    EXPECT_EQ(austausch.anforderung.substr(7), std::string(18, '\0')) << "the checksum goes with it";
    EXPECT_EQ(austausch.zeigbar, (Passwortschutz::Zeigbares{7, 8}));
    EXPECT_EQ(austausch.empfangen, Geschrieben(178, Werte(8)).empfangen);
}

} // namespace varnoth
