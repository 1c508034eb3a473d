#include "verlaufswahl.h"

#include "pruefdurchgaenge.h"
#include "registeradressen.h"
#include "statusbits.h"
#include "texte.h"
#include "verlaufsworte.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;
using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

const Messangaben Angaben{.beginn = std::chrono::sys_days(std::chrono::year(2026) / 11 / 22),
                          .zoneMinuten = 60};

} // namespace

TEST(Verlaufswahl, Begins_with_lowest_highest_and_number_of_a_part) {
    const Verlaufswahl wahl = AnfangswahlFuer(1);
    EXPECT_EQ(wahl.Reihen(), (std::vector<Messreihe>{{1, 0}, {1, 1}, {1, 2}}));
    EXPECT_TRUE(wahl.HatTeil(1));
    EXPECT_FALSE(wahl.HatTeil(0));
}

TEST(Verlaufswahl, The_first_part_is_the_first_that_the_newest_pass_found) {
    PruefMessquelle quelle;
    EXPECT_EQ(ErsterTeil(quelle), 0);
    Messpaket paket = PaketMit(seconds(0), 2, seconds(1));
    for (Messdurchgang& durchgang : paket.durchgaenge)
        std::swap(durchgang.teile[0], durchgang.teile[2]);
    quelle.Nimm(std::move(paket));
    EXPECT_EQ(ErsterTeil(quelle), 2);
}

TEST(Verlaufswahl, The_spacing_comes_from_the_configuration_of_the_source) {
    PruefMessquelle quelle;
    EXPECT_EQ(StrahlabstaendeVon(quelle), Strahlabstaende{});
    ASSERT_TRUE(quelle.konfiguration.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten,
                                                   spezifisch::Aufloesung, 5, 1));
    quelle.Nimm(PaketMit(seconds(0), 1, seconds(1)));
    EXPECT_EQ(StrahlabstaendeVon(quelle), (Strahlabstaende{0, 5, 0, 0}));
}

TEST(Verlaufswahl, Millimetres_are_those_of_the_beam_or_of_so_many_beams) {
    Verlaufswahl wahl{.millimeter = true};
    const Strahlabstaende abstaende{5, 0, 0, 0};
    EXPECT_EQ(Achsenwert(wahl, abstaende, {0, 0}, 15), 70);
    EXPECT_EQ(Achsenwert(wahl, abstaende, {0, 2}, 9), 45);
    EXPECT_EQ(Achsenwert(wahl, abstaende, {0, 0}, 0), 0);
    EXPECT_EQ(Achsenwert(wahl, abstaende, {1, 0}, 15), std::nullopt);
    EXPECT_EQ(Werttext(wahl, abstaende, {0, 0}, 15), "70 mm");
    EXPECT_EQ(Werttext(wahl, abstaende, {0, 0}, 0), "–");
    wahl.millimeter = false;
    EXPECT_EQ(Achsenwert(wahl, abstaende, {0, 0}, 15), 15);
    EXPECT_EQ(Werttext(wahl, abstaende, {0, 0}, 0), "0");
}

TEST(Verlaufsworte, The_cursor_tells_time_values_and_switching_output) {
    Verlaufswahl wahl = AnfangswahlFuer(0);
    wahl.Setze({3, 5}, true);
    Messdurchgang durchgang = DurchgangMit(milliseconds(3'723'456), 15);
    durchgang.geraetestatus = geraetestatus::PnpAktiv;
    EXPECT_EQ(Zeigerworte(Angaben, durchgang, wahl, {}),
              "22.11.2026 02:02:03,456 · K1 TU 15, HU 25, ZU 11 · K4 nicht gemessen · PNP-Ausgang aktiv");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Zeigerworte(Angaben, durchgang, AnfangswahlFuer(0), {}),
              "2026-11-22 02:02:03.456 · C1 TU 15, HU 25, ZU 11 · PNP output active");
}

TEST(Verlaufsworte, Two_marks_tell_what_lies_between_them) {
    const Verlaufswahl wahl = AnfangswahlFuer(0);
    const Messdurchgang a = DurchgangMit(seconds(1), 15);
    const Messdurchgang b = DurchgangMit(milliseconds(3500), 12);
    EXPECT_EQ(Markenworte(Angaben, &a, nullptr, wahl, {}), "A um 01:00:01,000");
    EXPECT_EQ(Markenworte(Angaben, &a, &b, wahl, {}),
              "A um 01:00:01,000 · B um 01:00:03,500 · Abstand 2,500 s · K1 TU -3, HU -3, ZU 0");
    EXPECT_EQ(Markenworte(Angaben, nullptr, nullptr, wahl, {}), "");
}

} // namespace varnoth
