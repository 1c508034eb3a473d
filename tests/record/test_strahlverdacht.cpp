#include "strahlproben.h"
#include "strahlverdacht.h"
#include "strahlworte.h"
#include "texte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace varnoth {

using namespace strahlproben;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr int Strahlen = 200;
constexpr int EineMinute = 1200;

std::vector<Strahlwerte> Statistik(const Vorhang& vorhang, const std::set<int>& geblankte = {},
                                   int durchgaenge = EineMinute) {
    pruefung::PruefMessquelle quelle;
    Blanke(quelle.konfiguration, 0, geblankte);
    Fuelle(quelle, durchgaenge, Strahlen, vorhang);
    Strahlauswertung auswertung(0, quelle.Spanne());
    while (auswertung.Weiter(quelle, 10))
        ;
    return auswertung.Werte();
}

std::vector<Strahlverdacht> Verdaechte(const Vorhang& vorhang, const std::set<int>& geblankte = {},
                                       int durchgaenge = EineMinute) {
    return Strahlverdaechte(Statistik(vorhang, geblankte, durchgaenge));
}

/// A part of 40 beams that moves from one end of the curtain to the other and back, again and again.
bool Bahn(int durchgang, int strahl) {
    const int weg = durchgang % (2 * Strahlen);
    const int mitte = weg < Strahlen ? weg : 2 * Strahlen - weg;
    return std::abs(strahl - mitte) < 20;
}

/// Whether a throw of a die that is the same in every run shows one of so many sides.
bool Wurf(int durchgang, int strahl, unsigned seiten) {
    auto zahl = static_cast<unsigned>(durchgang) * 2654435761U ^ static_cast<unsigned>(strahl) * 40503U;
    zahl ^= zahl >> 13U;
    zahl *= 2246822519U;
    zahl ^= zahl >> 16U;
    return zahl % seiten == 0;
}

MATCHER_P3(Ist, art, von, bis, "") {
    return arg.art == art && arg.von == von && arg.bis == bis;
}

} // namespace

TEST(Strahlverdacht, Nothing_is_wrong_with_a_free_curtain) {
    EXPECT_THAT(Verdaechte([](int, int) { return false; }), IsEmpty());
}

TEST(Strahlverdacht, Nothing_is_wrong_with_a_curtain_that_is_interrupted_as_a_whole) {
    EXPECT_THAT(Verdaechte([](int, int) { return true; }), IsEmpty());
}

TEST(Strahlverdacht, A_web_that_moves_through_is_no_fault_of_any_beam) {
    EXPECT_THAT(Verdaechte(Bahn), IsEmpty());
}

TEST(Strahlverdacht, An_edge_that_wanders_makes_no_beam_suspicious) {
    const auto kante = [](int durchgang) {
        return 100 + static_cast<int>(std::lround(2 * std::sin(durchgang)));
    };
    EXPECT_THAT(Verdaechte([&](int durchgang, int strahl) { return strahl < kante(durchgang); }), IsEmpty());
    EXPECT_THAT(Verdaechte([&](int durchgang, int strahl) {
                    return strahl < kante(durchgang) - 60 && strahl > kante(durchgang) - 90;
                }),
                IsEmpty());
}

TEST(Strahlverdacht, A_web_whose_edge_trembles_at_the_curtains_end_makes_no_beam_suspicious) {
    EXPECT_THAT(Verdaechte([](int durchgang, int strahl) { return strahl < durchgang % 3; }), IsEmpty());
}

TEST(Strahlverdacht, Small_parts_that_fall_through_everywhere_make_no_beam_suspicious) {
    EXPECT_THAT(Verdaechte([](int durchgang, int strahl) { return Wurf(durchgang, strahl, 20); }), IsEmpty());
}

TEST(Strahlverdacht, A_part_that_stands_there_once_makes_no_beam_suspicious) {
    EXPECT_THAT(Verdaechte([](int durchgang, int strahl) {
                    return strahl == 90 && durchgang > 300 && durchgang < 700;
                }),
                IsEmpty());
}

TEST(Strahlverdacht, A_dirty_beam_is_found_in_a_free_curtain) {
    EXPECT_THAT(Verdaechte([](int, int strahl) { return strahl == 112; }),
                ElementsAre(Ist(Verdachtsart::NieFrei, 112, 112)));
}

TEST(Strahlverdacht, A_dirty_beam_is_found_behind_a_web_that_moves_through) {
    EXPECT_THAT(
        Verdaechte([](int durchgang, int strahl) { return strahl == 112 || Bahn(durchgang, strahl); }),
        ElementsAre(Ist(Verdachtsart::NieFrei, 112, 112)));
}

TEST(Strahlverdacht, A_misaligned_pair_is_one_suspicion) {
    EXPECT_THAT(Verdaechte([](int durchgang, int strahl) {
                    return strahl == 50 || strahl == 51 || Bahn(durchgang, strahl);
                }),
                ElementsAre(Ist(Verdachtsart::NieFrei, 50, 51)));
}

TEST(Strahlverdacht, Two_dirty_beams_with_two_between_them_are_both_found) {
    EXPECT_THAT(Verdaechte([](int, int strahl) { return strahl == 50 || strahl == 53; }),
                ElementsAre(Ist(Verdachtsart::NieFrei, 50, 50), Ist(Verdachtsart::NieFrei, 53, 53)));
}

TEST(Strahlverdacht, A_dirty_beam_at_the_curtains_end_is_found) {
    EXPECT_THAT(Verdaechte([](int, int strahl) { return strahl == 0 || strahl == Strahlen - 1; }),
                ElementsAre(Ist(Verdachtsart::NieFrei, 0, 0),
                            Ist(Verdachtsart::NieFrei, Strahlen - 1, Strahlen - 1)));
}

TEST(Strahlverdacht, A_flickering_beam_is_found) {
    EXPECT_THAT(Verdaechte([](int durchgang, int strahl) {
                    return (strahl == 77 && Wurf(durchgang, strahl, 25)) || Bahn(durchgang, strahl);
                }),
                ElementsAre(Ist(Verdachtsart::Flackert, 77, 77)));
}

TEST(Strahlverdacht, A_beam_that_flickers_among_interrupted_ones_is_found_too) {
    EXPECT_THAT(Verdaechte([](int durchgang, int strahl) {
                    return strahl < 150 && (strahl != 77 || !Wurf(durchgang, strahl, 25));
                }),
                ElementsAre(Ist(Verdachtsart::Flackert, 77, 77)));
}

TEST(Strahlverdacht, A_beam_that_sees_light_behind_a_web_is_found) {
    EXPECT_THAT(Verdaechte([](int durchgang, int strahl) { return strahl != 60 && Bahn(durchgang, strahl); },
                           {}, 3 * EineMinute),
                ElementsAre(Ist(Verdachtsart::NieUnterbrochen, 60, 60)));
}

TEST(Strahlverdacht, A_beam_that_is_interrupted_alone_for_long_times_is_found) {
    EXPECT_THAT(Verdaechte([](int durchgang, int strahl) { return strahl == 30 && durchgang % 300 < 100; }),
                ElementsAre(Ist(Verdachtsart::OftAllein, 30, 30)));
}

TEST(Strahlverdacht, Of_a_blanked_region_nothing_is_said_whatever_its_beams_do) {
    const std::set<int> geblankte{40, 41, 42, 43, 44};
    EXPECT_THAT(Verdaechte([](int durchgang,
                              int strahl) { return strahl == 41 || (strahl == 43 && durchgang % 2 == 0); },
                           geblankte),
                IsEmpty());
}

TEST(Strahlverdacht, A_dirty_beam_beside_a_blanked_region_is_found) {
    EXPECT_THAT(
        Verdaechte([](int, int strahl) { return strahl >= 40 && strahl <= 45; }, {40, 41, 42, 43, 44}),
        ElementsAre(Ist(Verdachtsart::NieFrei, 45, 45)));
}

TEST(Strahlverdacht, A_few_seconds_are_not_enough_for_a_suspicion) {
    const auto werte = Statistik([](int, int strahl) { return strahl == 112; }, {}, 180);
    EXPECT_THAT(Strahlverdaechte(werte), IsEmpty());
}

TEST(Strahlverdacht, Is_told_as_a_question_with_its_reason_in_both_languages) {
    const auto verdacht = Verdaechte([](int, int strahl) { return strahl == 112; });
    ASSERT_EQ(verdacht.size(), 1U);
    EXPECT_EQ(Verdachtsfrage(verdacht[0]), "Strahl 113: verschmutzt oder verstellt?");
    EXPECT_EQ(Verdachtsgrund(verdacht[0]),
              "Unterbrochen in 100 % der Zeit, in der die Strahlen daneben frei waren (1 min 00 s).");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Verdachtsfrage(verdacht[0]), "beam 113: dirty or misaligned?");
    EXPECT_EQ(Verdachtsgrund(verdacht[0]),
              "Interrupted for 100 % of the time in which the beams beside were free (1 min 00 s).");
}

TEST(Strahlverdacht, A_flickering_beam_is_told_with_its_changes_and_several_beams_as_such) {
    Strahlverdacht verdacht{.art = Verdachtsart::Flackert, .von = 3, .bis = 4};
    verdacht.werte.alleinWechsel = 87;
    verdacht.werte.gemessen = 252s;
    EXPECT_EQ(Verdachtsfrage(verdacht), "Strahlen 4–5: flackert. Verschmutzt oder wackelt?");
    EXPECT_THAT(Verdachtsgrund(verdacht), HasSubstr("87 Wechsel"));
    EXPECT_THAT(Verdachtsgrund(verdacht), HasSubstr("4 min 12 s"));
}

} // namespace varnoth
