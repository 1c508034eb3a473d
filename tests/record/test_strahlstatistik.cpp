#include "messfolge.h"
#include "strahlbits.h"
#include "strahlproben.h"
#include "strahlstatistik.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace varnoth {

using namespace strahlproben;
using namespace std::chrono_literals;
using testing::Each;

namespace {

std::vector<Strahlwerte> Gezaehlt(const pruefung::PruefMessquelle& quelle, Zeitspanne zeitraum,
                                  int jeSchritt = 1000, int teil = 0) {
    Strahlauswertung auswertung(teil, zeitraum);
    while (auswertung.Weiter(quelle, jeSchritt))
        ;
    return auswertung.Werte();
}

class StrahlstatistikTest : public testing::Test {
protected:
    pruefung::PruefMessquelle quelle;
};

} // namespace

TEST_F(StrahlstatistikTest, Tells_share_changes_longest_interruption_and_last_change) {
    // Interrupted from pass 20 to 39 and from 60 to 69.
    Fuelle(quelle, 101, 8, [](int durchgang, int strahl) {
        return strahl == 3 && ((durchgang >= 20 && durchgang < 40) || (durchgang >= 60 && durchgang < 70));
    });
    const Strahlwerte strahl = Gezaehlt(quelle, quelle.Spanne())[3];
    EXPECT_EQ(strahl.gemessen, 100 * Takt);
    EXPECT_EQ(strahl.unterbrochen, 30 * Takt);
    EXPECT_DOUBLE_EQ(strahl.Anteil(), 0.3);
    EXPECT_EQ(strahl.wechsel, 4U);
    EXPECT_EQ(strahl.laengste, 20 * Takt);
    EXPECT_EQ(strahl.letzterWechsel, 70 * Takt);
}

TEST_F(StrahlstatistikTest, Counts_what_counting_beam_by_beam_finds) {
    std::mt19937 zufall(5);
    std::vector<std::vector<bool>> bild(600, std::vector<bool>(40));
    for (std::size_t i = 1; i < bild.size(); ++i)
        for (std::size_t s = 0; s < 40; ++s)
            bild[i][s] = zufall() % 20 == 0 ? !bild[i - 1][s] : bild[i - 1][s];
    const auto bei = [&](int durchgang, int strahl) {
        return bild[static_cast<std::size_t>(durchgang)][static_cast<std::size_t>(strahl)];
    };
    Fuelle(quelle, 600, 40, bei);
    const auto werte = Gezaehlt(quelle, {100 * Takt, 500 * Takt});
    for (int strahl = 0; strahl < 40; ++strahl) {
        Zeit unterbrochen{};
        Zeit laengste{};
        Zeit diese{};
        unsigned wechsel = 0;
        for (int i = 100; i < 500; ++i) {
            diese = bei(i, strahl) ? diese + Takt : Zeit{};
            unterbrochen += bei(i, strahl) ? Takt : Zeit{};
            laengste = std::max(laengste, diese);
            wechsel += bei(i, strahl) != bei(i + 1, strahl) ? 1 : 0;
        }
        const Strahlwerte& gezaehlt = werte[static_cast<std::size_t>(strahl)];
        EXPECT_EQ(gezaehlt.unterbrochen, unterbrochen) << strahl;
        EXPECT_EQ(gezaehlt.laengste, laengste) << strahl;
        EXPECT_EQ(gezaehlt.wechsel, wechsel) << strahl;
    }
}

TEST_F(StrahlstatistikTest, Packet_by_packet_comes_to_the_same_as_all_at_once) {
    Fuelle(quelle, 600, 40, [](int durchgang, int strahl) { return (durchgang / (strahl + 1)) % 2 == 0; });
    EXPECT_EQ(Gezaehlt(quelle, quelle.Spanne(), 1), Gezaehlt(quelle, quelle.Spanne()));
}

TEST_F(StrahlstatistikTest, Goes_on_where_the_source_has_grown_and_counts_nothing_twice) {
    const Vorhang vorhang = [](int durchgang, int strahl) { return durchgang / 7 % 2 == strahl % 2; };
    pruefung::PruefMessquelle ganze;
    Fuelle(ganze, 100, 8, vorhang);
    Strahlauswertung auswertung(0, {Zeit{}, Zeit::max()});
    for (std::size_t i = 0; i < 100; ++i) { // the newest packet grows pass by pass
        const auto& paket = ganze.pakete[i / 20];
        if (i % 20 == 0)
            quelle.pakete.push_back({.spanne = {paket.durchgaenge[0].uhr, paket.durchgaenge[0].uhr}});
        quelle.pakete.back().durchgaenge.push_back(paket.durchgaenge[i % 20]);
        quelle.pakete.back().spanne.bis = paket.durchgaenge[i % 20].uhr;
        EXPECT_FALSE(auswertung.Weiter(quelle, 10));
    }
    EXPECT_EQ(auswertung.Werte(), Gezaehlt(ganze, ganze.Spanne()));
}

TEST_F(StrahlstatistikTest, Time_without_measurements_counts_nowhere_and_no_change_is_seen_across_it) {
    Fuelle(quelle, 21, 8, [](int, int) { return true; });
    quelle.pakete.back().ereignisse.push_back(
        {.art = Messereignisart::Verloren, .laufzeit = 20 * Takt + 10ms});
    Fuelle(
        quelle, 21, 8, [](int, int) { return false; }, 0, 3s);
    const auto werte = Gezaehlt(quelle, quelle.Spanne());
    EXPECT_EQ(werte[0].gemessen, 40 * Takt + 10ms);
    EXPECT_EQ(werte[0].unterbrochen, 20 * Takt + 10ms);
    EXPECT_EQ(werte[0].laengste, 20 * Takt + 10ms);
    EXPECT_EQ(werte[0].wechsel, 0U);
}

TEST_F(StrahlstatistikTest, A_pass_after_which_nothing_comes_holds_for_a_while_only) {
    Fuelle(quelle, 1, 8, [](int, int) { return true; });
    Fuelle(
        quelle, 1, 8, [](int, int) { return true; }, 0, 60s);
    EXPECT_EQ(Gezaehlt(quelle, quelle.Spanne())[0].gemessen, MessungGiltHoechstens);
}

TEST_F(StrahlstatistikTest, A_damaged_packet_is_time_without_measurements) {
    Fuelle(quelle, 61, 8, [](int, int) { return true; });
    quelle.beschaedigte = {1};
    EXPECT_EQ(Gezaehlt(quelle, quelle.Spanne())[0].gemessen, 2s);
}

TEST_F(StrahlstatistikTest, Blanked_time_is_neither_free_nor_interrupted) {
    Blanke(quelle.konfiguration, 0, {2});
    Fuelle(quelle, 101, 8, [](int durchgang, int) { return durchgang % 2 == 0; });
    const Strahlwerte strahl = Gezaehlt(quelle, quelle.Spanne())[2];
    EXPECT_EQ(strahl.gemessen, Zeit{});
    EXPECT_EQ(strahl.geblankt, 100 * Takt);
    EXPECT_EQ(strahl.wechsel, 0U);
    EXPECT_EQ(strahl.Anteil(), 0);
}

TEST_F(StrahlstatistikTest, Only_the_chosen_time_and_part_count) {
    Fuelle(
        quelle, 200, 8, [](int durchgang, int) { return durchgang < 100; }, 2);
    const auto werte = Gezaehlt(quelle, {40 * Takt, 60 * Takt}, 1000, 2);
    EXPECT_EQ(werte[0].gemessen, 20 * Takt);
    EXPECT_TRUE(werte[0].WarImmerUnterbrochen());
    EXPECT_TRUE(Gezaehlt(quelle, quelle.Spanne(), 1000, 1).empty());
}

TEST_F(StrahlstatistikTest, Says_how_far_it_is) {
    Fuelle(quelle, 400, 8, [](int, int) { return false; });
    Strahlauswertung auswertung(0, quelle.Spanne());
    EXPECT_EQ(auswertung.Fortschritt(quelle), 0);
    ASSERT_TRUE(auswertung.Weiter(quelle, 10));
    EXPECT_NEAR(auswertung.Fortschritt(quelle), 0.5, 0.05);
    EXPECT_LE(quelle.gelesen, 10);
    ASSERT_FALSE(auswertung.Weiter(quelle, 1000));
    EXPECT_EQ(auswertung.Fortschritt(quelle), 1);
}

TEST_F(StrahlstatistikTest, What_has_gone_from_memory_is_passed_over) {
    Fuelle(quelle, 200, 8, [](int, int) { return true; });
    Strahlauswertung auswertung(0, {Zeit{}, Zeit::max()});
    ASSERT_TRUE(auswertung.Weiter(quelle, 1));
    for (int i = 0; i < 5; ++i)
        quelle.Vergiss();
    EXPECT_FALSE(auswertung.Weiter(quelle, 1000));
    EXPECT_GT(auswertung.Werte()[0].gemessen, 5s);
}

TEST_F(StrahlstatistikTest, Proposes_to_blank_what_was_interrupted_all_the_time_and_what_is_blanked_already) {
    Blanke(quelle.konfiguration, 0, {2});
    Fuelle(quelle, 200, 20, [](int durchgang, int strahl) {
        return strahl == 5 || strahl == 17 || (strahl == 9 && durchgang != 100);
    });
    const auto werte = Gezaehlt(quelle, quelle.Spanne());
    const Werte muster = ZuBlankendes(werte);
    ASSERT_EQ(muster.size(), 32U);
    for (int strahl = 0; strahl < 512; ++strahl)
        EXPECT_EQ(StrahlBit(muster, strahl), strahl == 2 || strahl == 5 || strahl == 17) << strahl;
    EXPECT_EQ(AnzahlImmerUnterbrochene(werte), 2);
}

TEST_F(StrahlstatistikTest, Without_measurements_nothing_is_proposed) {
    EXPECT_THAT(ZuBlankendes({}), Each(0));
    EXPECT_THAT(ZuBlankendes(std::vector<Strahlwerte>(8)), Each(0));
}

TEST(Strahlauswertung, Of_an_empty_source_there_is_nothing_to_count) {
    const pruefung::PruefMessquelle leere;
    EXPECT_FALSE(Strahlauswertung(0, {Zeit{}, Zeit::max()}).Weiter(leere, 1));
}

} // namespace varnoth
