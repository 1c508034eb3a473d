#include "ereignisableitung.h"

#include "statusbits.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;

class EreignisableitungTest : public testing::Test {
protected:
    /// A pass with two parts, at a time in milliseconds.
    void Durchgang(int ms, bool aktiv = false, std::uint16_t merkmale = 1) {
        Messdurchgang durchgang{
            .zeit = Systemzeit(1h) + std::chrono::milliseconds(ms),
            .uhr = std::chrono::milliseconds(ms),
            .anzahlTeile = 2,
            .geraetestatus = static_cast<std::uint16_t>(geraet | (aktiv ? geraetestatus::PnpAktiv : 0))};
        for (std::size_t teil = 0; teil < 2; ++teil) {
            durchgang.teile[teil].vorhanden = teil == 0 || zweiterDa;
            durchgang.teile[teil].status =
                static_cast<std::uint16_t>(merkmale | (durchgang.teile[teil].vorhanden ? 0x80 : 0));
        }
        ableitung.Nimm(durchgang);
    }

    void Geschieht(int ms, Messereignisart art, const std::string& text = {}) {
        ableitung.Nimm({.art = art,
                        .laufzeit = std::chrono::milliseconds(ms),
                        .zeit = Systemzeit(1h) + std::chrono::milliseconds(ms),
                        .text = text});
    }

    std::vector<Ereignis> Alle(Ereignisart art) const {
        std::vector<Ereignis> alle;
        for (std::uint64_t nummer = speicher.Erstes(); nummer < speicher.Ende(); ++nummer)
            if (speicher.Hole(nummer).art == art)
                alle.push_back(speicher.Hole(nummer));
        return alle;
    }

    Ereignisspeicher speicher;
    Ereignisableitung ableitung{speicher};
    std::uint16_t geraet = 0;
    bool zweiterDa = true;
};

TEST_F(EreignisableitungTest, The_first_pass_and_passes_alike_are_no_event) {
    Durchgang(0, true);
    Durchgang(60, true);
    EXPECT_EQ(speicher.Ende(), 0U);
}

TEST_F(EreignisableitungTest, The_output_switched_once_is_an_event_with_the_time_of_the_pass) {
    Durchgang(0);
    Durchgang(60, true);
    ASSERT_EQ(speicher.Ende(), 1U);
    EXPECT_EQ(speicher.Hole(0), (Ereignis{.art = Ereignisart::AusgangGeschaltet,
                                          .zeit = Systemzeit(1h) + 60ms,
                                          .laufzeit = 60ms,
                                          .offen = true,
                                          .neu = 1}));
}

TEST_F(EreignisableitungTest, The_output_switched_again_and_again_is_one_event_with_count_and_duration) {
    for (int i = 0; i < 100; ++i)
        Durchgang(i * 100, i % 2 != 0);
    ASSERT_EQ(Alle(Ereignisart::AusgangGeschaltet).size(), 1U);
    EXPECT_EQ(speicher.Hole(0).anzahl, 99U);
    EXPECT_EQ(speicher.Hole(0).laufzeit, 100ms);
    EXPECT_EQ(speicher.Hole(0).dauer, 9800ms);
    EXPECT_EQ(speicher.Hole(0).neu, 1);
}

TEST_F(EreignisableitungTest, A_burst_ends_after_ten_seconds_of_rest_and_the_next_change_is_another) {
    Durchgang(0);
    Durchgang(1000, true);
    Durchgang(11'000, false);
    Durchgang(21'001, false);
    EXPECT_FALSE(speicher.Hole(0).offen);
    EXPECT_EQ(speicher.Hole(0).anzahl, 2U);
    Durchgang(21'002, true);
    ASSERT_EQ(speicher.Ende(), 2U);
    EXPECT_EQ(speicher.Hole(1).anzahl, 1U);
}

TEST_F(EreignisableitungTest, A_burst_without_end_gives_an_event_a_minute) {
    for (int sekunde = 0; sekunde <= 600; ++sekunde)
        Durchgang(sekunde * 1000, sekunde % 2 != 0);
    const auto alle = Alle(Ereignisart::AusgangGeschaltet);
    ASSERT_EQ(alle.size(), 10U);
    for (const Ereignis& einer : alle)
        EXPECT_EQ(einer.anzahl, 60U);
}

TEST_F(EreignisableitungTest, A_burst_is_over_when_time_goes_by_without_a_pass) {
    Durchgang(0);
    Durchgang(1000, true);
    ableitung.Verstreiche(11'000ms);
    EXPECT_TRUE(speicher.Hole(0).offen);
    ableitung.Verstreiche(11'001ms);
    EXPECT_FALSE(speicher.Hole(0).offen);
}

TEST_F(EreignisableitungTest, A_part_that_goes_and_comes_is_told_with_the_time_it_was_away) {
    Durchgang(0);
    zweiterDa = false;
    Durchgang(1000);
    Durchgang(20'000);
    zweiterDa = true;
    Durchgang(31'000);
    const auto alle = Alle(Ereignisart::TeilGewechselt);
    ASSERT_EQ(alle.size(), 2U);
    EXPECT_EQ(alle[0].teil, 1);
    EXPECT_EQ(alle[0].neu, 0);
    EXPECT_EQ(alle[0].dauer, 0s);
    EXPECT_EQ(alle[1].neu, 1);
    EXPECT_EQ(alle[1].dauer, 30s);
    EXPECT_EQ(Alle(Ereignisart::TeilStatus).size(), 0U);
}

TEST_F(EreignisableitungTest, Status_bits_are_told_for_each_part_and_for_the_controller) {
    Durchgang(0, false, 1);
    Durchgang(60, false, 2);
    geraet = 1U << 12U;
    Durchgang(120, false, 2);
    const auto teile = Alle(Ereignisart::TeilStatus);
    ASSERT_EQ(teile.size(), 2U);
    EXPECT_EQ(teile[0].alt, 1);
    EXPECT_EQ(teile[0].neu, 2);
    EXPECT_EQ(teile[1].teil, 1);
    const auto geraete = Alle(Ereignisart::GeraeteStatus);
    ASSERT_EQ(geraete.size(), 1U);
    EXPECT_EQ(geraete[0].neu, 1 << 12);
    EXPECT_EQ(Alle(Ereignisart::AusgangGeschaltet).size(), 0U);
}

TEST_F(EreignisableitungTest, A_loss_is_told_and_on_return_how_long_it_took) {
    Durchgang(0);
    Geschieht(1000, Messereignisart::Verloren);
    Geschieht(4500, Messereignisart::Zurueck);
    ASSERT_EQ(speicher.Ende(), 2U);
    EXPECT_EQ(speicher.Hole(0).art, Ereignisart::Verloren);
    EXPECT_EQ(speicher.Hole(1).art, Ereignisart::Zurueck);
    EXPECT_EQ(speicher.Hole(1).dauer, 3500ms);
    EXPECT_EQ(speicher.Hole(1).zeit, Systemzeit(1h) + 4500ms);
}

TEST_F(EreignisableitungTest, A_loss_that_was_ended_by_hand_does_not_last_until_a_later_return) {
    Geschieht(1000, Messereignisart::Verloren);
    Geschieht(2000, Messereignisart::LiveBeendet);
    Geschieht(9000, Messereignisart::Zurueck);
    EXPECT_EQ(Alle(Ereignisart::Zurueck).at(0).dauer, 0s);
}

TEST_F(EreignisableitungTest, A_note_in_between_does_not_shorten_a_loss) {
    Geschieht(1000, Messereignisart::Verloren);
    Geschieht(2000, Messereignisart::Notiz, "Bahn gewechselt");
    Geschieht(4000, Messereignisart::Zurueck);
    EXPECT_EQ(Alle(Ereignisart::Notiz).at(0).text, "Bahn gewechselt");
    EXPECT_EQ(Alle(Ereignisart::Zurueck).at(0).dauer, 3s);
}

TEST_F(EreignisableitungTest, What_has_changed_while_the_controller_was_away_is_told_when_it_is_back) {
    Durchgang(0);
    Geschieht(1000, Messereignisart::Verloren);
    Geschieht(2000, Messereignisart::Zurueck);
    Durchgang(2100, true);
    EXPECT_EQ(Alle(Ereignisart::AusgangGeschaltet).size(), 1U);
}

TEST_F(EreignisableitungTest, What_was_before_live_data_began_anew_counts_no_more) {
    Durchgang(0);
    Durchgang(60, true);
    Geschieht(1000, Messereignisart::LiveBeendet);
    EXPECT_FALSE(speicher.Hole(0).offen);
    Geschieht(2000, Messereignisart::LiveBegonnen);
    Durchgang(2100, false);
    EXPECT_EQ(Alle(Ereignisart::AusgangGeschaltet).size(), 1U);
}

TEST_F(EreignisableitungTest, Passes_that_could_not_be_kept_are_told_by_their_number) {
    Geschieht(1000, Messereignisart::Verworfen, "42");
    EXPECT_EQ(Alle(Ereignisart::Verworfen).at(0).anzahl, 42U);
}

TEST_F(EreignisableitungTest, Passes_and_events_of_a_packet_are_taken_in_the_order_of_their_times) {
    Messpaket paket;
    paket.ereignisse = {{.art = Messereignisart::Notiz, .laufzeit = 50ms},
                        {.art = Messereignisart::Notiz, .laufzeit = 150ms}};
    for (const int ms : {0, 100, 200})
        paket.durchgaenge.push_back(
            {.uhr = std::chrono::milliseconds(ms),
             .geraetestatus = static_cast<std::uint16_t>(ms == 100 ? geraetestatus::PnpAktiv : 0)});
    ableitung.Nimm(paket);
    ASSERT_EQ(speicher.Ende(), 3U);
    EXPECT_EQ(speicher.Hole(0).laufzeit, 50ms);
    EXPECT_EQ(speicher.Hole(1).art, Ereignisart::AusgangGeschaltet);
    EXPECT_EQ(speicher.Hole(1).anzahl, 2U);
    EXPECT_EQ(speicher.Hole(2).laufzeit, 150ms);
}

} // namespace varnoth
