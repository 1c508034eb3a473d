#include "verlaufsschreiber.h"

#include "pruefdurchgaenge.h"
#include "texte.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;
using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

void Beginne(PruefMessquelle& quelle) {
    quelle.angaben = {.beginn =
                          std::chrono::sys_days(std::chrono::year(2026) / 11 / 22) + std::chrono::hours(13),
                      .zoneMinuten = -90};
}

std::string Geschrieben(const PruefMessquelle& quelle, const Verlaufswahl& wahl, Zeitspanne spanne,
                        const Strahlabstaende& abstaende = {}) {
    Verlaufsschreiber schreiber(wahl, abstaende, spanne);
    while (!schreiber.IstFertig())
        schreiber.Weiter(quelle, 2);
    return schreiber.Text();
}

Verlaufswahl NurTu() {
    Verlaufswahl wahl;
    wahl.Setze({0, 0}, true);
    return wahl;
}

} // namespace

TEST(Verlaufsschreiber, Writes_german_tables_as_german_spreadsheets_read_them) {
    PruefMessquelle quelle;
    Beginne(quelle);
    quelle.Nimm(PaketMit(milliseconds(1250), 1, seconds(1), 15));
    EXPECT_EQ(Geschrieben(quelle, NurTu(), {seconds(0), seconds(9)}),
              "\xEF\xBB\xBF"
              "Zeit;Sekunden;K1 TU;K1 TU Min;K1 TU Max;K1 Status;Schaltausgang\r\n"
              "2026-11-22T11:30:01.250-01:30;1,250;15;2;120;128;0\r\n");
}

TEST(Verlaufsschreiber, Writes_english_tables_with_comma_and_point) {
    SetzeSprachoffset(Englisch);
    PruefMessquelle quelle;
    Beginne(quelle);
    quelle.Nimm(PaketMit(milliseconds(1250), 1, seconds(1), 15));
    EXPECT_EQ(Geschrieben(quelle, NurTu(), {seconds(1), seconds(9)}),
              "Time,Seconds,C1 TU,C1 TU Min,C1 TU Max,C1 Status,Switching output\r\n"
              "2026-11-22T11:30:01.250-01:30,0.250,15,2,120,128,0\r\n");
}

TEST(Verlaufsschreiber, Writes_only_what_is_in_view_and_reads_no_more_at_a_time_than_allowed) {
    PruefMessquelle quelle;
    FuelleSekunden(quelle, 20);
    Verlaufsschreiber schreiber(NurTu(), {}, {seconds(5), milliseconds(7450)});
    schreiber.Weiter(quelle, 1);
    EXPECT_EQ(quelle.gelesen, 1);
    EXPECT_EQ(schreiber.Zeilen(), 10U);
    EXPECT_GT(schreiber.Prozent(quelle), 30);
    while (!schreiber.IstFertig())
        schreiber.Weiter(quelle, 1);
    EXPECT_EQ(schreiber.Zeilen(), 25U);
    EXPECT_FALSE(schreiber.IstGekuerzt());
    EXPECT_EQ(quelle.gelesen, 3);
    EXPECT_EQ(schreiber.Prozent(quelle), 100);
}

TEST(Verlaufsschreiber, A_part_that_was_not_measured_has_empty_cells_and_so_has_no_beam_in_millimetres) {
    PruefMessquelle quelle;
    Beginne(quelle);
    Messpaket paket = PaketMit(seconds(1), 2, seconds(1), 0);
    paket.durchgaenge[1].teile[0] = {};
    quelle.Nimm(std::move(paket));
    Verlaufswahl wahl = NurTu();
    wahl.millimeter = true;
    const std::string text = Geschrieben(quelle, wahl, {seconds(1), seconds(9)}, {5, 0, 0, 0});
    EXPECT_NE(text.find(";K1 TU mm;K1 TU mm Min;"), std::string::npos) << text;
    EXPECT_NE(text.find(";0,000;;5;595;128;0\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find(";1,000;;;;;0\r\n"), std::string::npos) << text;
}

TEST(Verlaufsschreiber, Of_an_empty_source_only_the_heading_is_written) {
    const PruefMessquelle quelle;
    EXPECT_EQ(Geschrieben(quelle, NurTu(), {seconds(0), seconds(9)}).find("\r\n") + 2,
              Geschrieben(quelle, NurTu(), {seconds(0), seconds(9)}).size());
}

} // namespace varnoth
