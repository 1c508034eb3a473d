#include "menuebefehle.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace varnoth {

namespace {

struct PruefBefehlsziel : Befehlsziel {
    bool LiveDatenLaufen() const override { return live; }
    void StoppeLiveDaten() override {
        live = false;
        ablauf.push_back("stop");
        if (waehrendStop)
            waehrendStop();
    }
    void SetzeLiveDatenFort() override {
        live = true;
        ablauf.push_back("on");
    }
    void FuehreAus(Befehl befehl, int index) override {
        ablauf.push_back(std::to_string(static_cast<int>(befehl)) + "/" + std::to_string(index));
        if (waehrend)
            waehrend();
    }

    bool live = false;
    std::vector<std::string> ablauf;
    std::function<void()> waehrend;
    std::function<void()> waehrendStop;
};

using Ablauf = std::vector<std::string>;

} // namespace

class MenuebefehleTest : public testing::Test {
protected:
    Befehlsspeicher speicher;
    PruefBefehlsziel ziel;
};

TEST_F(MenuebefehleTest, Without_a_click_nothing_runs) {
    speicher.FuehreAus(ziel);
    EXPECT_TRUE(ziel.ablauf.empty());
}

TEST_F(MenuebefehleTest, A_click_only_stores_the_command) {
    speicher.Klick(Befehl::Info);
    EXPECT_TRUE(speicher.Wartet());
    EXPECT_TRUE(ziel.ablauf.empty());
}

TEST_F(MenuebefehleTest, The_index_of_the_clicked_item_goes_with_the_command) {
    speicher.Klick(Befehl::LichtleisteAnzeigen, 2);
    speicher.FuehreAus(ziel);
    EXPECT_EQ(ziel.ablauf, (Ablauf{"3/2"}));
    EXPECT_FALSE(speicher.Wartet());
}

TEST_F(MenuebefehleTest, Of_two_clicks_in_a_row_only_the_last_is_kept) {
    speicher.Klick(Befehl::FensterNebeneinander);
    speicher.Klick(Befehl::FensterUntereinander);
    speicher.FuehreAus(ziel);
    speicher.FuehreAus(ziel);
    EXPECT_EQ(ziel.ablauf, (Ablauf{"8/0"}));
}

TEST_F(MenuebefehleTest, A_command_that_runs_learns_of_a_click_since_it_began) {
    speicher.Klick(Befehl::FensterNebeneinander);
    speicher.Klick(Befehl::Info);
    bool vorher = true;
    bool danach = false;
    ziel.waehrend = [&] {
        vorher = speicher.KlickSeitBeginn();
        speicher.Klick(Befehl::Info);
        danach = speicher.KlickSeitBeginn();
    };
    speicher.FuehreAus(ziel);
    EXPECT_FALSE(vorher);
    EXPECT_TRUE(danach);
}

TEST_F(MenuebefehleTest, The_search_and_the_line_check_only_rest_live_data_and_a_new_port_stops_it) {
    for (const Befehl befehl : {Befehl::GeraetSuchen, Befehl::LeitungPruefen})
        EXPECT_TRUE(StopptLiveDaten(befehl) && SetztLiveDatenFort(befehl));
    EXPECT_TRUE(StopptLiveDaten(Befehl::AnschlussUebernehmen));
    EXPECT_FALSE(SetztLiveDatenFort(Befehl::AnschlussUebernehmen));
    EXPECT_FALSE(StopptLiveDaten(Befehl::Verbindung));
}

TEST_F(MenuebefehleTest, A_click_during_a_long_command_runs_right_after_it) {
    speicher.Klick(Befehl::VisualisierenStart);
    ziel.waehrend = [this] {
        ziel.waehrend = nullptr;
        speicher.Klick(Befehl::Info);
    };
    speicher.FuehreAus(ziel);
    speicher.FuehreAus(ziel);
    EXPECT_EQ(ziel.ablauf, (Ablauf{"1/0", "20/0"}));
}

TEST_F(MenuebefehleTest, A_click_while_live_data_stops_leaves_the_command_its_own_index) {
    ziel.live = true;
    ziel.waehrendStop = [this] { speicher.Klick(Befehl::LichtleisteAnzeigen, 1); };
    speicher.Klick(Befehl::ComPort, 4);
    speicher.FuehreAus(ziel);
    speicher.FuehreAus(ziel);
    EXPECT_EQ(ziel.ablauf, (Ablauf{"stop", "17/4", "3/1"}));
}

TEST_F(MenuebefehleTest, The_same_command_clicked_again_while_it_runs_runs_again) {
    speicher.Klick(Befehl::VisualisierenStart);
    ziel.waehrend = [this] {
        ziel.waehrend = nullptr;
        speicher.Klick(Befehl::VisualisierenStart);
    };
    speicher.FuehreAus(ziel);
    speicher.FuehreAus(ziel);
    EXPECT_EQ(ziel.ablauf, (Ablauf{"1/0", "1/0"}));
}

TEST_F(MenuebefehleTest, After_single_values_with_live_data_running_live_data_starts_again) {
    ziel.live = true;
    speicher.Klick(Befehl::Einzelwerte);
    speicher.FuehreAus(ziel);
    speicher.FuehreAus(ziel);
    EXPECT_EQ(ziel.ablauf, (Ablauf{"stop", "5/0", "1/0"}));
}

TEST_F(MenuebefehleTest, After_the_controller_was_read_for_a_comparison_live_data_goes_on_where_it_was) {
    ziel.live = true;
    speicher.Klick(Befehl::GeraetVergleichen);
    speicher.FuehreAus(ziel);
    EXPECT_EQ(ziel.ablauf, (Ablauf{"stop", "111/0", "on"}));
    EXPECT_FALSE(speicher.Wartet());
}

TEST_F(MenuebefehleTest, Live_data_that_has_rested_goes_on_before_the_next_command_runs) {
    ziel.live = true;
    ziel.waehrend = [this] {
        ziel.waehrend = nullptr;
        speicher.Klick(Befehl::Info);
    };
    speicher.Klick(Befehl::GeraetVergleichen);
    speicher.FuehreAus(ziel);
    speicher.FuehreAus(ziel);
    EXPECT_EQ(ziel.ablauf, (Ablauf{"stop", "111/0", "on", "stop", "20/0"}));
}

TEST_F(MenuebefehleTest, Live_data_that_did_not_run_does_not_start_after_a_comparison) {
    speicher.Klick(Befehl::GeraetVergleichen);
    speicher.FuehreAus(ziel);
    EXPECT_EQ(ziel.ablauf, (Ablauf{"111/0"}));
}

TEST_F(MenuebefehleTest, After_a_reset_of_the_hardware_live_data_stays_stopped) {
    ziel.live = true;
    speicher.Klick(Befehl::ResetHardware);
    speicher.FuehreAus(ziel);
    EXPECT_EQ(ziel.ablauf, (Ablauf{"stop", "16/0"}));
    EXPECT_FALSE(speicher.Wartet());
}

TEST_F(MenuebefehleTest, Without_live_data_nothing_is_stopped_or_started_again) {
    speicher.Klick(Befehl::Einzelwerte);
    speicher.FuehreAus(ziel);
    EXPECT_EQ(ziel.ablauf, (Ablauf{"5/0"}));
    EXPECT_FALSE(speicher.Wartet());
}

TEST(Menuebefehle, Exactly_these_commands_stop_live_data) {
    for (int code = 1; code <= 23; ++code) {
        const bool laeuftWeiter = code <= 3 || (code >= 6 && code <= 8) || code == 14 || code == 15;
        EXPECT_EQ(StopptLiveDaten(static_cast<Befehl>(code)), !laeuftWeiter) << "code " << code;
    }
}

TEST(Menuebefehle, Exactly_three_commands_start_live_data_again) {
    for (int code = 1; code <= 23; ++code)
        EXPECT_EQ(StartetLiveDatenWieder(static_cast<Befehl>(code)), code == 5 || code == 10 || code == 11)
            << "code " << code;
}

TEST(Menuebefehle, A_report_and_a_reading_aside_only_pause_live_data) {
    for (const Befehl befehl : {Befehl::Bericht, Befehl::Strahlbericht, Befehl::GeraetVergleichen}) {
        EXPECT_TRUE(StopptLiveDaten(befehl));
        EXPECT_TRUE(SetztLiveDatenFort(befehl));
        EXPECT_FALSE(StartetLiveDatenWieder(befehl)) << "reading anew would lose what is being edited";
    }
}

TEST(Menuebefehle, A_suggested_blanking_goes_along_with_live_data_as_the_editor_does) {
    EXPECT_TRUE(StopptLiveDaten(Befehl::BlankingVorschlagen));
    EXPECT_TRUE(StartetLiveDatenWieder(Befehl::BlankingVorschlagen));
    EXPECT_TRUE(ZeigtFenster(Befehl::BlankingVorschlagen));
    EXPECT_FALSE(StopptLiveDaten(Befehl::Strahlverlauf));
}

TEST(Menuebefehle, Exactly_these_commands_do_without_a_window) {
    for (int code = 1; code <= 23; ++code) {
        const bool ohneFenster =
            code == 2 || code == 3 || (code >= 6 && code <= 8) || code == 14 || code == 17 || code >= 22;
        EXPECT_EQ(ZeigtFenster(static_cast<Befehl>(code)), !ohneFenster) << "code " << code;
    }
}

} // namespace varnoth
