#include "ereignissuche.h"
#include "leistenspalten.h"
#include "wiedergabeproben.h"

#include <gtest/gtest.h>

#include <optional>

namespace varnoth {

using namespace pruefung;
using namespace std::chrono_literals;
using enum Messereignisart;

namespace {

/// Knows which of its packets hold events, as a record's index does.
struct Kennerquelle : PruefMessquelle {
    bool HatEreignisse(std::uint64_t nummer) const override { return !Paket(nummer).ereignisse.empty(); }
};

struct EreignissucheTest : testing::Test {
    /// Packets of a second with ten passes each, over so many seconds; the status is 4 from some seconds to
    /// others.
    void Fuelle(int sekunden, int anders = -1, int wieder = -1) {
        for (int s = 0; s < sekunden; ++s) {
            Messpaket paket;
            for (int i = 0; i < 10; ++i)
                paket.durchgaenge.push_back(
                    Durchgang(s * 1s + i * 100ms, anders >= 0 && s >= anders && s < wieder ? 4 : 1));
            quelle.Nimm(paket);
        }
    }
    std::optional<Sprungfund> Suche(Zeit von, bool vorwaerts, std::vector<Sprungart> arten = {}) {
        Ereignissuche suche(quelle, von, vorwaerts, std::move(arten));
        for (schritte = 1; suche.Weiter(4); ++schritte)
            EXPECT_FALSE(suche.Fund());
        return suche.Fund();
    }

    Kennerquelle quelle;
    int schritte = 0;
};

} // namespace

TEST_F(EreignissucheTest, Finds_the_next_change_of_state_and_the_one_before) {
    Fuelle(20, 7, 12);
    const auto naechster = Suche(0s, true);
    ASSERT_TRUE(naechster);
    EXPECT_EQ(naechster->laufzeit, 7s);
    EXPECT_EQ(naechster->art, Sprungart::Zustand);
    EXPECT_EQ(naechster->teil, 0);
    EXPECT_EQ(Suche(7s, true)->laufzeit, 12s) << "the place itself does not count";
    EXPECT_EQ(Suche(19s, false)->laufzeit, 12s);
    EXPECT_EQ(Suche(12s, false)->laufzeit, 7s);
    EXPECT_FALSE(Suche(12s, true));
    EXPECT_FALSE(Suche(7s, false));
}

TEST_F(EreignissucheTest, Reads_only_where_something_has_changed) {
    Fuelle(3000, 2000, 2001);
    quelle.gelesen = 0;
    EXPECT_EQ(Suche(0s, true)->laufzeit, 2000s);
    EXPECT_LE(quelle.gelesen, 20);
    quelle.gelesen = 0;
    EXPECT_EQ(Suche(2999s, false)->laufzeit, 2001s);
    EXPECT_LE(quelle.gelesen, 20);
}

TEST_F(EreignissucheTest, Finds_each_kind_and_only_the_kinds_asked_for) {
    quelle.Nimm(Paket(0s, 9s,
                      {Durchgang(0s), Durchgang(1s, 4), Durchgang(2s, 4, true), Durchgang(9s, 4, true)},
                      {Ereignis(Notiz, 3s, "Bahn"), Ereignis(Verloren, 4s), Ereignis(Verworfen, 5s, "3"),
                       Ereignis(Zurueck, 6s)}));
    const std::pair<Sprungart, Zeit> proben[] = {{Sprungart::Zustand, 1s},
                                                 {Sprungart::Ausgang, 2s},
                                                 {Sprungart::Notiz, 3s},
                                                 {Sprungart::Verbindung, 4s}};
    for (const auto& [art, wann] : proben)
        EXPECT_EQ(Suche(0s, true, {art}).value_or(Sprungfund{}).laufzeit, wann);
    EXPECT_FALSE(Suche(0s, true, {Sprungart::Teil}));
    EXPECT_TRUE(Suche(0s, true, {Sprungart::Ausgang})->ein);
    EXPECT_EQ(Suche(0s, true, {Sprungart::Notiz})->text, "Bahn");
    EXPECT_FALSE(Suche(0s, true, {Sprungart::Verbindung})->ein);
    EXPECT_EQ(Suche(4s, true)->laufzeit, 6s) << "what was dropped is no event";
    EXPECT_EQ(Suche(4s, true)->ereignis, Zurueck);
}

TEST_F(EreignissucheTest, Finds_a_part_that_goes_and_comes_even_where_it_was_not_measured) {
    for (int s = 0; s < 30; ++s) {
        Messdurchgang durchgang = Durchgang(s * 1s);
        durchgang.teile[0].gemessen = false;
        if (s >= 10 && s < 20)
            durchgang.teile[0] = {};
        quelle.Nimm(Paket(s * 1s, s * 1s, {durchgang}));
    }
    const auto fort = Suche(0s, true, {Sprungart::Teil});
    ASSERT_TRUE(fort);
    EXPECT_EQ(fort->laufzeit, 10s);
    EXPECT_FALSE(fort->ein);
    const auto da = Suche(10s, true, {Sprungart::Teil});
    ASSERT_TRUE(da);
    EXPECT_EQ(da->laufzeit, 20s);
    EXPECT_TRUE(da->ein);
}

TEST_F(EreignissucheTest, A_note_between_passes_that_are_all_alike_is_found) {
    Fuelle(5);
    quelle.pakete[3].ereignisse.push_back(Ereignis(Notiz, 3'500ms, "hier"));
    EXPECT_EQ(Suche(0s, true)->laufzeit, 3'500ms);
    EXPECT_EQ(Suche(5s, false)->laufzeit, 3'500ms);
}

TEST_F(EreignissucheTest, A_change_across_a_gap_is_found_behind_it) {
    quelle.Nimm(Paket(0s, 1s, {Durchgang(0s, 1)}, {Ereignis(Verloren, 1s)}));
    quelle.Nimm(Paket(50s, 50s, {Durchgang(50s, 4)}));
    EXPECT_EQ(Suche(1s, true, {Sprungart::Zustand})->laufzeit, 50s);
}

TEST_F(EreignissucheTest, A_damaged_packet_is_passed_over) {
    Fuelle(20, 7, 12);
    quelle.beschaedigte = {7};
    quelle.uebersicht = Uebersicht();
    for (std::uint64_t nummer = 0; nummer < quelle.Ende(); ++nummer)
        if (quelle.beschaedigte.contains(nummer))
            quelle.uebersicht.NimmLuecke();
        else
            quelle.uebersicht.Nimm(quelle.Paket(nummer));
    EXPECT_EQ(Suche(0s, true)->laufzeit, 8s) << "the first pass that can be read and differs";
}

TEST_F(EreignissucheTest, A_step_reads_no_more_than_it_may) {
    for (int s = 0; s < 200; ++s)
        quelle.Nimm(Paket(s * 1s, s * 1s, {Durchgang(s * 1s, s % 2 == 0 ? 1 : 4)}));
    Ereignissuche suche(quelle, 0s, true, {Sprungart::Notiz});
    quelle.gelesen = 0;
    EXPECT_TRUE(suche.Weiter(4));
    EXPECT_LE(quelle.gelesen, 4 * 10);
}

TEST_F(EreignissucheTest, An_empty_source_has_none) {
    EXPECT_FALSE(Suche(0s, true));
    EXPECT_FALSE(Suche(0s, false));
}

TEST(LeistenspaltenTest, Gaps_and_changes_stand_in_the_columns_of_their_time) {
    PruefMessquelle quelle;
    quelle.Nimm(Paket(0s, 20s, {Durchgang(0s), Durchgang(20s)}, {}));
    quelle.Nimm(Paket(20s, 22s, {Durchgang(20'500ms, 4)}, {Ereignis(LiveBeendet, 22s)}));
    quelle.Nimm(Paket(90s, 100s, {Durchgang(90s, 4), Durchgang(92s, 4), Durchgang(94s, 4)}));
    const auto spalten = Leistenspalten(quelle.DieUebersicht(), {0s, 100s}, 101);
    ASSERT_EQ(spalten.size(), 101U);
    EXPECT_TRUE(spalten[20].wechsel);
    EXPECT_FALSE(spalten[40].wechsel);
    for (const std::size_t spalte : {22U, 50U, 89U})
        EXPECT_TRUE(spalten[spalte].luecke) << spalte;
    EXPECT_FALSE(spalten[93].luecke);
}

TEST(LeistenspaltenTest, Columns_and_times_go_both_ways) {
    const Zeitspanne spanne{10s, 20s};
    EXPECT_EQ(ZeitDerSpalte(spanne, 101, 0), 10s);
    EXPECT_EQ(ZeitDerSpalte(spanne, 101, 100), 20s);
    EXPECT_EQ(ZeitDerSpalte(spanne, 101, 999), 20s);
    EXPECT_EQ(ZeitDerSpalte(spanne, 101, -5), 10s);
    EXPECT_EQ(SpalteDerZeit(spanne, 101, 15s), 50);
    EXPECT_EQ(SpalteDerZeit(spanne, 101, 0s), 0);
    EXPECT_EQ(SpalteDerZeit(spanne, 101, 99s), 100);
    EXPECT_EQ(SpalteDerZeit({5s, 5s}, 101, 5s), 0);
    EXPECT_TRUE(Leistenspalten(Uebersicht(), spanne, 0).empty());
}

} // namespace varnoth
