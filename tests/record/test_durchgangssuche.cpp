#include "durchgangssuche.h"

#include "pruefdurchgaenge.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;
using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

Zeit UhrVon(const std::optional<Messdurchgang>& durchgang) {
    return durchgang ? durchgang->uhr : Zeit(-1);
}

} // namespace

TEST(Durchgangssuche, The_nearest_pass_is_found_on_both_sides_of_a_packets_edge) {
    PruefMessquelle quelle;
    FuelleSekunden(quelle, 3);
    EXPECT_EQ(UhrVon(DurchgangUm(quelle, milliseconds(940))), milliseconds(900));
    EXPECT_EQ(UhrVon(DurchgangUm(quelle, milliseconds(960))), milliseconds(1000));
    EXPECT_EQ(UhrVon(DurchgangUm(quelle, milliseconds(1200))), milliseconds(1200));
    EXPECT_EQ(UhrVon(DurchgangUm(quelle, milliseconds(1250))), milliseconds(1200));
}

TEST(Durchgangssuche, Times_outside_have_the_first_and_the_last_pass) {
    PruefMessquelle quelle;
    FuelleSekunden(quelle, 3);
    EXPECT_EQ(UhrVon(DurchgangUm(quelle, seconds(-5))), seconds(0));
    EXPECT_EQ(UhrVon(DurchgangUm(quelle, seconds(50))), milliseconds(2900));
}

TEST(Durchgangssuche, The_passes_before_and_after_never_are_the_one_at_the_time) {
    PruefMessquelle quelle;
    FuelleSekunden(quelle, 3);
    EXPECT_EQ(UhrVon(DurchgangVor(quelle, seconds(1))), milliseconds(900));
    EXPECT_EQ(UhrVon(DurchgangNach(quelle, milliseconds(900))), seconds(1));
    EXPECT_FALSE(DurchgangVor(quelle, seconds(0)));
    EXPECT_FALSE(DurchgangNach(quelle, milliseconds(2900)));
}

TEST(Durchgangssuche, Packets_that_are_damaged_or_hold_no_pass_are_passed_over) {
    PruefMessquelle quelle;
    FuelleSekunden(quelle, 2);
    quelle.Nimm({.spanne = {seconds(2), seconds(3)}, .durchgaenge = {}, .ereignisse = {}});
    quelle.Nimm(PaketMit(seconds(4), 2, seconds(1)));
    quelle.beschaedigte = {1};
    EXPECT_EQ(UhrVon(DurchgangNach(quelle, milliseconds(900))), seconds(4));
    EXPECT_EQ(UhrVon(DurchgangVor(quelle, seconds(4))), milliseconds(900));
}

TEST(Durchgangssuche, An_empty_source_has_none) {
    const PruefMessquelle quelle;
    EXPECT_FALSE(DurchgangUm(quelle, seconds(1)));
    EXPECT_FALSE(DurchgangVor(quelle, seconds(1)));
    EXPECT_FALSE(DurchgangNach(quelle, seconds(1)));
}

TEST(Durchgangssuche, The_time_of_day_counts_from_the_beginning) {
    const Systemzeit beginn(std::chrono::hours(1000));
    EXPECT_EQ(Uhrzeit({.beginn = beginn}, seconds(5)), beginn + seconds(5));
}

} // namespace varnoth
