#include "reduktion.h"

#include "pruefdurchgaenge.h"

#include <gtest/gtest.h>

#include <random>

namespace varnoth {

using namespace pruefung;
using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

/// Passes at random times with random values, packets of about a second.
void FuelleZufaellig(PruefMessquelle& quelle, unsigned saat, int sekunden) {
    std::mt19937 zufall(saat);
    const auto wuerfle = [&](int hoechstens) {
        return std::uniform_int_distribution<>(0, hoechstens)(zufall);
    };
    Zeit uhr{0};
    for (int i = 0; i < sekunden; ++i) {
        Messpaket paket;
        while (uhr < seconds(i + 1)) {
            Messdurchgang durchgang = DurchgangMit(uhr, static_cast<std::uint16_t>(wuerfle(500)));
            durchgang.geraetestatus = static_cast<std::uint16_t>(wuerfle(0xFFFF));
            for (Teilmessung& teil : durchgang.teile) {
                teil.gemessen = wuerfle(3) > 0;
                teil.status = static_cast<std::uint16_t>(wuerfle(0xFF));
                for (std::uint16_t& wert : teil.werte)
                    wert = static_cast<std::uint16_t>(wuerfle(512));
            }
            paket.durchgaenge.push_back(durchgang);
            uhr += Zeit(20'000 + wuerfle(90'000));
        }
        quelle.Nimm(std::move(paket));
    }
}

/// Column by column, pass by pass.
Messspalte Erwartet(const PruefMessquelle& quelle, Zeit von, Zeit vor) {
    Messspalte spalte;
    for (const Messpaket& paket : quelle.pakete)
        for (const Messdurchgang& durchgang : paket.durchgaenge)
            if (durchgang.uhr >= von && durchgang.uhr < vor)
                spalte.Nimm(durchgang);
    return spalte;
}

void Verfeinere(Spaltenspeicher& speicher, const Messquelle& quelle, int pakete = 16) {
    for (int i = 0; i < 10000 && !speicher.IstFertig(); ++i)
        speicher.Verfeinere(quelle, pakete);
}

bool Umfasst(const Wertspanne& aussen, const Wertspanne& innen) {
    return innen.IstLeer() || (aussen.kleinster <= innen.kleinster && aussen.groesster >= innen.groesster);
}

} // namespace

TEST(Reduktion, Narrow_columns_hold_exactly_what_the_passes_in_them_say) {
    for (unsigned saat = 1; saat <= 5; ++saat) {
        PruefMessquelle quelle;
        FuelleZufaellig(quelle, saat, 40);
        for (const Zeit breite : {Zeit(7'001), Zeit(50'000), Zeit(333'333), Zeit(900'000)}) {
            Spaltenspeicher speicher;
            speicher.Beginne(breite);
            const std::int64_t erste = seconds(5) / breite;
            speicher.Decke(quelle, erste, seconds(30) / breite);
            Verfeinere(speicher, quelle);
            ASSERT_TRUE(speicher.IstFertig());
            for (std::int64_t i = speicher.Erste(); i < speicher.Erste() + speicher.Anzahl(); ++i)
                ASSERT_EQ(speicher.Spalte(i), Erwartet(quelle, speicher.Beginn(i), speicher.Beginn(i + 1)))
                    << saat << ", " << breite.count() << ", " << i;
        }
    }
}

TEST(Reduktion, Wide_columns_lose_no_value_and_read_no_packet) {
    PruefMessquelle quelle;
    FuelleZufaellig(quelle, 7, 200);
    Spaltenspeicher speicher;
    speicher.Beginne(seconds(5));
    speicher.Decke(quelle, 0, 40);
    EXPECT_TRUE(speicher.IstFertig());
    EXPECT_EQ(quelle.gelesen, 0);
    for (std::int64_t i = 0; i < 40; ++i) {
        const Messspalte wahr = Erwartet(quelle, speicher.Beginn(i), speicher.Beginn(i + 1));
        for (std::size_t teil = 0; teil < 4; ++teil)
            for (std::size_t k = 0; k < AnzahlKurvenwerte; ++k) {
                EXPECT_TRUE(Umfasst(speicher.Spalte(i).teile[teil].aktuell[k], wahr.teile[teil].aktuell[k]));
                EXPECT_TRUE(Umfasst(speicher.Spalte(i).teile[teil].band[k], wahr.teile[teil].band[k]));
            }
        const Bitspanne status = speicher.Spalte(i).geraetestatus;
        EXPECT_EQ(status.einmal & wahr.geraetestatus.einmal, wahr.geraetestatus.einmal);
        EXPECT_EQ(status.immer & wahr.geraetestatus.immer, status.immer);
    }
}

TEST(Reduktion, A_spike_of_one_pass_in_eight_hours_is_in_the_column_of_its_time) {
    PruefMessquelle quelle;
    for (int i = 0; i < 8 * 3600; ++i)
        quelle.Nimm(PaketMit(seconds(i), 1, seconds(1), i == 12345 ? 99 : 20));
    Spaltenspeicher speicher;
    speicher.Beginne(seconds(8 * 3600 / 800));
    speicher.Decke(quelle, 0, 800);
    EXPECT_EQ(speicher.Spalte(speicher.NummerUm(seconds(12345))).teile[0].aktuell[0], (Wertspanne{20, 99}));
    EXPECT_EQ(speicher.Spalte(speicher.NummerUm(seconds(12345)) + 2).teile[0].aktuell[0],
              (Wertspanne{20, 20}));
}

TEST(Reduktion, What_is_not_read_yet_has_what_the_overview_knows) {
    PruefMessquelle quelle;
    FuelleSekunden(quelle, 100);
    Spaltenspeicher speicher;
    speicher.Beginne(milliseconds(100));
    EXPECT_TRUE(speicher.Decke(quelle, 0, 1000));
    EXPECT_FALSE(speicher.IstFertig());
    EXPECT_EQ(speicher.Spalte(500).teile[0].aktuell[0], (Wertspanne{20, 20}));
    EXPECT_TRUE(speicher.Verfeinere(quelle, 8));
    EXPECT_EQ(quelle.gelesen, 8);
    EXPECT_FALSE(speicher.IstFertig());
}

TEST(Reduktion, What_slides_out_goes_and_only_what_is_new_is_read) {
    PruefMessquelle quelle;
    FuelleSekunden(quelle, 30);
    Spaltenspeicher speicher;
    speicher.Beginne(milliseconds(100));
    speicher.Decke(quelle, 0, 200);
    Verfeinere(speicher, quelle);
    const int gelesen = quelle.gelesen;
    EXPECT_TRUE(speicher.Decke(quelle, 20, 200));
    Verfeinere(speicher, quelle);
    EXPECT_EQ(speicher.Erste(), 20);
    EXPECT_EQ(speicher.Anzahl(), 200);
    EXPECT_LE(quelle.gelesen - gelesen, 4);
    EXPECT_FALSE(speicher.Decke(quelle, 20, 200));
}

TEST(Reduktion, The_column_with_which_the_source_ended_fills_up) {
    PruefMessquelle quelle;
    quelle.Nimm(PaketMit(seconds(0), 3, milliseconds(100), 20));
    Spaltenspeicher speicher;
    speicher.Beginne(milliseconds(500));
    speicher.Decke(quelle, 0, 10);
    Verfeinere(speicher, quelle);
    quelle.Nimm(PaketMit(milliseconds(300), 5, milliseconds(100), 33));
    EXPECT_TRUE(speicher.Decke(quelle, 0, 10));
    Verfeinere(speicher, quelle);
    EXPECT_EQ(speicher.Spalte(0).teile[0].aktuell[0], (Wertspanne{20, 33}));
    EXPECT_EQ(speicher.Spalte(1).teile[0].aktuell[0], (Wertspanne{33, 33}));
}

TEST(Reduktion, Of_a_part_that_a_pass_did_not_measure_nothing_is_known) {
    Messdurchgang durchgang = DurchgangMit(seconds(1), 20);
    durchgang.teile[1].status = 5;
    Messspalte spalte;
    spalte.Nimm(durchgang);
    EXPECT_TRUE(spalte.teile[0].gemessen);
    EXPECT_FALSE(spalte.teile[1].gemessen);
    EXPECT_EQ(spalte.teile[1], Teilspalte{});
    EXPECT_EQ(spalte.teile[0].band[0], (Wertspanne{2, 120}));
}

TEST(Reduktion, Between_passes_a_value_holds_and_a_long_silence_is_a_gap) {
    PruefMessquelle quelle;
    quelle.Nimm(PaketMit(seconds(0), 3, seconds(1)));
    quelle.Nimm(PaketMit(seconds(10), 2, seconds(1)));
    Spaltenspeicher speicher;
    speicher.Beginne(milliseconds(500));
    speicher.Decke(quelle, -4, 40);
    Verfeinere(speicher, quelle);
    const auto sinn = speicher.Deute(seconds(11));
    using enum Spaltensinn;
    const auto an = [&](double sekunde) { return sinn.at(static_cast<std::size_t>(sekunde * 2) + 4); };
    EXPECT_EQ(sinn.front(), Leer);
    EXPECT_EQ(an(0), Gemessen);
    EXPECT_EQ(an(0.5), Gehalten);
    EXPECT_EQ(an(1), Gemessen);
    EXPECT_EQ(an(2.5), Luecke);
    EXPECT_EQ(an(9.5), Luecke);
    EXPECT_EQ(an(10), Gemessen);
    EXPECT_EQ(an(10.5), Gehalten);
    EXPECT_EQ(an(11.5), Leer);
}

TEST(Reduktion, A_lost_connection_is_a_gap_however_short) {
    PruefMessquelle quelle;
    Messpaket paket = PaketMit(seconds(0), 3, seconds(1));
    paket.ereignisse = {{.art = Messereignisart::Verloren, .laufzeit = milliseconds(1200)},
                        {.art = Messereignisart::Zurueck, .laufzeit = milliseconds(1700)}};
    quelle.Nimm(std::move(paket));
    Spaltenspeicher speicher;
    speicher.Beginne(milliseconds(100));
    speicher.Decke(quelle, 0, 30);
    Verfeinere(speicher, quelle);
    const auto sinn = speicher.Deute(seconds(2));
    EXPECT_EQ(sinn.at(5), Spaltensinn::Gehalten);
    EXPECT_EQ(sinn.at(15), Spaltensinn::Luecke);
    EXPECT_TRUE(speicher.Spalte(12).luecke);
    EXPECT_FALSE(speicher.Spalte(13).luecke);
}

TEST(Reduktion, Silence_up_to_now_is_a_gap_and_so_is_a_picture_without_any_pass) {
    PruefMessquelle quelle;
    quelle.Nimm(PaketMit(seconds(0), 2, seconds(1)));
    quelle.Nimm(PaketMit(seconds(100), 2, seconds(1)));
    Spaltenspeicher speicher;
    speicher.Beginne(seconds(1));
    speicher.Decke(quelle, 50, 10);
    Verfeinere(speicher, quelle);
    EXPECT_EQ(speicher.Deute(seconds(101)).at(5), Spaltensinn::Luecke);
    speicher.Decke(quelle, 98, 20);
    Verfeinere(speicher, quelle);
    EXPECT_EQ(speicher.Deute(seconds(110)).at(9), Spaltensinn::Luecke);
    EXPECT_EQ(speicher.Deute(seconds(110)).at(15), Spaltensinn::Leer);
}

TEST(Reduktion, What_the_source_forgets_is_no_longer_shown) {
    PruefMessquelle quelle;
    FuelleSekunden(quelle, 10);
    Spaltenspeicher speicher;
    speicher.Beginne(milliseconds(500));
    speicher.Decke(quelle, 0, 20);
    Verfeinere(speicher, quelle);
    quelle.Vergiss();
    EXPECT_TRUE(speicher.Decke(quelle, 0, 20));
    EXPECT_EQ(speicher.Spalte(0), Messspalte{});
    EXPECT_TRUE(speicher.Spalte(3).durchgang);
}

} // namespace varnoth
