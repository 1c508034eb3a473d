#include "strahltabelle.h"
#include "strahlworte.h"
#include "texte.h"
#include "zeitworte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace varnoth {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

Messangaben Angaben() {
    // 2026-11-22 23:59:58 in UTC, an hour ahead of it
    return {.beginn = std::chrono::sys_days{std::chrono::year(2026) / 11 / 22} + 23h + 59min + 58s,
            .zoneMinuten = 60};
}

} // namespace

TEST(Strahlworte, Durations_are_told_in_what_suits_them) {
    EXPECT_EQ(Dauerworte(412'400us), "412 ms");
    EXPECT_EQ(Dauerworte(12'340ms), "12,3 s");
    EXPECT_EQ(Dauerworte(59'960ms), "1 min 00 s");
    EXPECT_EQ(Dauerworte(252s), "4 min 12 s");
    EXPECT_EQ(Dauerworte(2h), "2 h 00 min");
    EXPECT_EQ(Dauerworte(3h + 5min + 59s), "3 h 05 min");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Dauerworte(12'340ms), "12.3 s");
}

TEST(Strahlworte, A_share_is_called_all_or_nothing_only_when_it_is) {
    EXPECT_EQ(Anteilworte(0), "0 %");
    EXPECT_EQ(Anteilworte(0.00001), "0,1 %");
    EXPECT_EQ(Anteilworte(0.1234), "12,3 %");
    EXPECT_EQ(Anteilworte(0.99999), "99,9 %");
    EXPECT_EQ(Anteilworte(1), "100 %");
}

TEST(Strahlworte, Times_are_those_of_the_place_where_the_source_was_made) {
    EXPECT_EQ(Zeitworte(Angaben(), 2'005ms), "23.11.2026 01:00:00,005");
    EXPECT_EQ(Uhrzeitworte(Angaben(), 0s), "00:59:58,000");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Zeitworte(Angaben(), 2'005ms), "2026-11-23 01:00:00.005");
}

TEST(Strahlworte, Each_kind_of_cell_has_words_of_its_own) {
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        std::set<std::string> worte;
        for (int art = 0; art <= static_cast<int>(Zellenart::Unterbrochen); ++art)
            worte.insert(Zellenworte(static_cast<Zellenart>(art)));
        EXPECT_EQ(worte.size(), 7U);
    }
    SetzeSprachoffset(Deutsch);
    EXPECT_EQ(Zellenworte(Zellenart::Frei), "frei");
    EXPECT_EQ(Zellenworte(Zellenart::Geblankt), "geblankt");
    EXPECT_EQ(Zellenworte(Zellenart::Unterbrochen), "unterbrochen");
    EXPECT_EQ(Zellenworte(Zellenart::Luecke), "keine Live-Daten");
}

TEST(Strahlworte, Columns_tell_of_a_beam_what_there_is_and_nothing_else) {
    using enum Strahlspaltenart;
    Strahlwerte werte{
        .gemessen = 100s, .unterbrochen = 25s, .wechsel = 7, .laengste = 12s, .letzterWechsel = 2s};
    const std::vector<Strahlverdacht> verdaechte{{.art = Verdachtsart::NieFrei, .von = 4, .bis = 6}};
    const auto worte = [&](Strahlspaltenart spalte, int strahl = 5) {
        return Spaltenworte(spalte, werte, strahl, 10, Angaben(), verdaechte);
    };
    EXPECT_EQ(worte(Nummer), "6");
    EXPECT_EQ(worte(Platz), "50 mm");
    EXPECT_EQ(worte(Anteil), "25,0 %");
    EXPECT_EQ(worte(Wechsel), "7");
    EXPECT_EQ(worte(Laengste), "12,0 s");
    EXPECT_EQ(worte(LetzterWechsel), "23.11.2026 01:00:00,000");
    EXPECT_EQ(worte(Verdacht), "Strahlen 5–7: verschmutzt oder verstellt?");
    EXPECT_EQ(worte(Verdacht, 7), "");
    werte = {.geblankt = 5s};
    EXPECT_EQ(worte(Anteil), "geblankt");
    for (const Strahlspaltenart spalte : {Wechsel, Laengste, LetzterWechsel})
        EXPECT_EQ(worte(spalte), "");
    EXPECT_EQ(Spaltenworte(Platz, werte, 5, 0, Angaben(), {}), "");
}

TEST(Strahltabelle, Has_a_line_a_beam_as_spreadsheets_of_the_language_read_it) {
    std::vector<Strahlwerte> strahlen(2);
    strahlen[0] = {.gemessen = 80s, .unterbrochen = 10s, .wechsel = 2, .laengste = 10s, .letzterWechsel = 2s};
    const Strahlbezug bezug{.abstandMm = 10, .angaben = Angaben()};
    EXPECT_EQ(
        Strahltabelle(strahlen, {}, bezug),
        "\xEF\xBB\xBF\"Strahl\";\"Position mm\";\"Unterbrochen %\";\"Wechsel\";\"Längste Unterbrechung s\";"
        "\"Letzter Wechsel\";\"Verdacht\"\r\n"
        "1;0;12,500;2;10,000;\"23.11.2026 01:00:00,000\";\r\n2;10;;;;;\r\n");
    SetzeSprachoffset(Englisch);
    EXPECT_THAT(Strahltabelle(strahlen, {}, bezug),
                HasSubstr("\r\n1,0,12.500,2,10.000,\"2026-11-23 01:00:00.000\",\r\n"));
    const std::vector<Strahlverdacht> verdaechte{{.art = Verdachtsart::NieFrei, .von = 1, .bis = 1}};
    EXPECT_THAT(Strahltabelle(strahlen, verdaechte, bezug),
                HasSubstr("\r\n2,10,,,,,\"beam 2: dirty or misaligned?\""));
}

} // namespace varnoth
