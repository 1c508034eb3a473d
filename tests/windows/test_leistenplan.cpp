#include "leistenplan.h"

#include "pruefumgebung.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varnoth {

using testing::ElementsAre;

namespace {

std::vector<std::string> Namen(std::span<const Befehlszeile> befehle) {
    std::vector<std::string> namen;
    for (const Befehlszeile* zeile : Leistenfolge(befehle))
        namen.emplace_back(zeile->aktion);
    return namen;
}

Befehlszeile Zeile(const char* name, std::int16_t textId, Leistengruppe gruppe) {
    return {.befehl = Befehl::Keiner,
            .aktion = name,
            .live = Live::LaeuftWeiter,
            .auftritt = Auftritt::Still,
            .tut = nullptr,
            .textId = textId,
            .gruppe = gruppe};
}

} // namespace

TEST(Leistenplan, Groups_stand_in_their_order_and_commands_of_a_group_as_in_the_table) {
    const Befehlszeile befehle[] = {
        Zeile("report", 1, Leistengruppe::Pruefen), Zeile("start", 1, Leistengruppe::Verbindung),
        Zeile("reset", 0, Leistengruppe::Verbindung), Zeile("compare", 1, Leistengruppe::Pruefen),
        Zeile("stop", 1, Leistengruppe::Verbindung)};
    EXPECT_THAT(Namen(befehle), ElementsAre("start", "stop", "report", "compare"));
}

TEST(Leistenplan, These_commands_of_the_menus_stand_in_the_bar) {
    EXPECT_THAT(Namen(Befehlstabelle()),
                testing::IsSupersetOf({"mnuMessdatenVisualisierenStart", "mnuMessdatenVisualisierenStop",
                                       "mnuNeu", "mnuOeffnen", "mnuSpeichernUnter", "mnuAnzeigeKonfiguration",
                                       "mnuHilfethemen"}));
}

TEST(Leistenplan, A_tip_says_what_it_does_and_its_keys) {
    EXPECT_EQ(Leistentipp("Load a file", "Ctrl+O"), "Load a file (Ctrl+O)");
    EXPECT_EQ(Leistentipp("Load a file", ""), "Load a file");
}

TEST(Leistenplan, A_tip_made_from_a_menu_text_has_no_dots_and_marks_no_letter) {
    EXPECT_EQ(Leistentipp("&Report...", ""), "Report");
}

TEST(Leistenplan, The_keys_pass_over_what_cannot_be_chosen_and_go_round) {
    const std::vector<bool> waehlbar{false, true, false, true};
    EXPECT_EQ(NaechsterKnopf(waehlbar, -1, 1), 1U);
    EXPECT_EQ(NaechsterKnopf(waehlbar, 1, 1), 3U);
    EXPECT_EQ(NaechsterKnopf(waehlbar, 3, 1), 1U);
    EXPECT_EQ(NaechsterKnopf(waehlbar, 1, -1), 3U);
    EXPECT_EQ(NaechsterKnopf(waehlbar, 4, -1), 3U);
    EXPECT_EQ(NaechsterKnopf({true, true, false}, 3, -1), 1U);
}

TEST(Leistenplan, Where_nothing_can_be_chosen_the_keys_lead_nowhere) {
    EXPECT_EQ(NaechsterKnopf({false, false}, -1, 1), std::nullopt);
    EXPECT_EQ(NaechsterKnopf({}, -1, 1), std::nullopt);
}

TEST(Leistenplan, Without_settings_the_bar_is_at_the_top) {
    pruefung::PruefEinstellungen einstellungen;
    EXPECT_EQ(LiesLeistenplatz(einstellungen), (Leistenplatz{true, Fensterseite::Oben}));
}

TEST(Leistenplan, A_word_that_is_no_side_counts_as_the_top) {
    pruefung::PruefEinstellungen einstellungen;
    einstellungen.SchreibText("Werkzeugleiste", "Seite", "Mitte");
    EXPECT_EQ(LiesLeistenplatz(einstellungen).seite, Fensterseite::Oben);
}

TEST(Leistenplan, Every_place_is_read_as_it_was_stored) {
    for (const bool sichtbar : {true, false})
        for (const Fensterseite seite :
             {Fensterseite::Oben, Fensterseite::Unten, Fensterseite::Links, Fensterseite::Rechts}) {
            pruefung::PruefEinstellungen einstellungen;
            SchreibLeistenplatz(einstellungen, {sichtbar, seite});
            EXPECT_EQ(LiesLeistenplatz(einstellungen), (Leistenplatz{sichtbar, seite}));
        }
}

TEST(Leistenplan, An_unchanged_place_writes_nothing) {
    pruefung::PruefEinstellungen einstellungen;
    SchreibLeistenplatz(einstellungen, {});
    EXPECT_EQ(einstellungen.geschrieben, 0);
    SchreibLeistenplatz(einstellungen, {false, Fensterseite::Oben});
    SchreibLeistenplatz(einstellungen, {false, Fensterseite::Oben});
    EXPECT_EQ(einstellungen.geschrieben, 1);
}

} // namespace varnoth
