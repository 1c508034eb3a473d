#include "befehlstabelle.h"

#include "menuezustand.h"
#include "texte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <set>
#include <string>
#include <utility>

namespace varnoth {

namespace {

/// Writes down what it is asked to do.
struct PruefWirkung : Befehlswirkung {
    void Verbinde() override { getan = "connect"; }
    void StoppeLiveDaten() override { getan = "stop"; }
    void ZeigeAnsicht(int teil) override { getan = "view " + std::to_string(teil); }
    void Beende() override { getan = "exit"; }
    void BearbeiteEinzelwerte() override { getan = "single values"; }
    void StelleNebeneinander() override { getan = "side by side"; }
    void StelleUeberlappend() override { getan = "cascade"; }
    void StelleUntereinander() override { getan = "stacked"; }
    void ErneuereFirmware() override { getan = "firmware"; }
    void InitialisiereHardware() override { getan = "initialise"; }
    void BearbeiteKonfiguration() override { getan = "editor"; }
    void OeffneKonfiguration() override { getan = "open"; }
    void SpeichereKonfiguration() override { getan = "save"; }
    void WechsleUebertragenerWert() override { getan = "transmitted value"; }
    void MacheNeueKonfiguration() override { getan = "new"; }
    void SetzeHardwareZurueck() override { getan = "reset"; }
    void WaehleComPort(int nummer) override { getan = "port " + std::to_string(nummer); }
    void ZeigeSimulation() override { getan = "calculator"; }
    void ZeigeHilfethemen() override { getan = "help"; }
    void ZeigeInfo() override { getan = "about"; }
    void StarteAutosend() override { getan = "autosend"; }
    void SchalteSprache(std::int16_t offset) override { getan = "language " + std::to_string(offset); }

    void OeffneLetzteDatei(int platz) override { getan = "last file " + std::to_string(platz); }
    void VerbindeSimuliert() override { getan = "simulated"; }
    void OeffneUebergebeneDateien() override { getan = "handed over"; }
    void ZeigeSicherungen() override { getan = "backups"; }
    void OeffneSicherung() override { getan = "open backup"; }
    void ZeigeBericht() override { getan = "report"; }
    void ZeigeVergleich() override { getan = "comparison"; }
    void LiesGeraetZumVergleich() override { getan = "read to compare"; }
    void ZeigeVerbindung(bool suche) override { getan = suche ? "search page" : "connection window"; }
    void UebernimmAnschluss() override { getan = "take the port"; }
    void SucheGeraet() override { getan = "search"; }
    void PruefeLeitung() override { getan = "line check"; }
    void BieteDarstellung() override { getan = "appearance"; }
    void ZeigeBusprotokoll() override { getan = "bus log"; }
    void ZeigeStrahlverlauf() override { getan = "beam history"; }
    void BearbeiteBlankingvorschlag() override { getan = "suggested blanking"; }
    void ZeigeStrahlbericht() override { getan = "report with beams"; }
    void OeffneAufzeichnung() override { getan = "replay"; }
    void OeffneUebergebeneAufzeichnung() override { getan = "replay handed over"; }
    void VerlasseWiedergabe() override { getan = "leave replay"; }
    void SchalteAufzeichnung() override { getan = "recording"; }
    void ZeigeAufzeichnungen() override { getan = "recordings"; }
    void ZeigeEreignisse() override { getan = "events"; }
    void ZeigeVerlauf() override { getan = "trend"; }

    std::string getan;
};

std::string GetanVon(int code, int index = 2) {
    PruefWirkung wirkung;
    ZeileZu(static_cast<Befehl>(code))->tut(wirkung, index);
    return wirkung.getan;
}

std::set<std::string> AlleAktionen() {
    std::set<std::string> namen;
    for (const Befehlszeile& zeile : Befehlstabelle())
        for (int platz = 0; platz < zeile.anzahl; ++platz)
            namen.insert(Aktionsname(zeile, platz));
    return namen;
}

} // namespace

TEST(Befehlstabelle, Every_command_has_one_row) {
    std::multiset<Befehl> befehle;
    for (const Befehlszeile& zeile : Befehlstabelle())
        befehle.insert(zeile.befehl);
    for (int code = 1; code <= 23; ++code)
        EXPECT_EQ(befehle.count(static_cast<Befehl>(code)), 1U) << "code " << code;
    EXPECT_EQ(ZeileZu(Befehl::Keiner), nullptr);
}

TEST(Befehlstabelle, Every_command_does_its_own_work) {
    const char* const arbeiten[] = {"connect",       "stop",
                                    "view 2",        "exit",
                                    "single values", "side by side",
                                    "cascade",       "stacked",
                                    "firmware",      "initialise",
                                    "editor",        "open",
                                    "save",          "transmitted value",
                                    "new",           "reset",
                                    "port 2",        "calculator",
                                    "help",          "about",
                                    "autosend",      "language 0",
                                    "language 10000"};
    int code = 0;
    for (const char* const arbeit : arbeiten)
        EXPECT_EQ(GetanVon(++code), arbeit) << "code " << code;
    EXPECT_EQ(GetanVon(101), "last file 2");
    EXPECT_EQ(GetanVon(102), "simulated");
    EXPECT_EQ(GetanVon(103), "handed over");
    EXPECT_EQ(GetanVon(120), "backups");
    EXPECT_EQ(GetanVon(121), "open backup");
    EXPECT_EQ(GetanVon(110), "comparison");
    EXPECT_EQ(GetanVon(111), "read to compare");
    EXPECT_EQ(GetanVon(112), "report");
    EXPECT_EQ(GetanVon(130), "appearance");
    EXPECT_EQ(GetanVon(150, 0), "connection window");
    EXPECT_EQ(GetanVon(150, 1), "search page");
    EXPECT_EQ(GetanVon(151), "take the port");
    EXPECT_EQ(GetanVon(152), "search");
    EXPECT_EQ(GetanVon(153), "line check");
    EXPECT_EQ(GetanVon(140), "bus log");
    EXPECT_EQ(GetanVon(180), "beam history");
    EXPECT_EQ(GetanVon(181), "suggested blanking");
    EXPECT_EQ(GetanVon(182), "report with beams");
    EXPECT_EQ(GetanVon(160), "recording");
    EXPECT_EQ(GetanVon(161), "recordings");
    EXPECT_EQ(GetanVon(190), "replay");
    EXPECT_EQ(GetanVon(191), "leave replay");
    EXPECT_EQ(GetanVon(192), "replay handed over");
    EXPECT_EQ(GetanVon(200), "events");
    EXPECT_EQ(GetanVon(170), "trend");
}

TEST(Befehlstabelle, These_commands_have_keys_of_their_own) {
    const std::pair<Befehl, const char*> tasten[] = {
        {Befehl::NeueKonfiguration, "Ctrl+N"},
        {Befehl::KonfigurationOeffnen, "Ctrl+O"},
        {Befehl::KonfigurationSpeichernUnter, "Ctrl+S"},
        {Befehl::Beenden, "Ctrl+Q"},
        {Befehl::VisualisierenStart, "F5"},
        {Befehl::VisualisierenStop, "Shift+F5"},
        {Befehl::KonfigurationAnzeigen, "Ctrl+K"},
        {Befehl::ResetHardware, ""},
        {Befehl::Sicherungen, "Ctrl+B"},
        {Befehl::Vergleich, "Ctrl+D"},
        {Befehl::Verbindung, "Ctrl+Shift+K"},
        {Befehl::Busprotokoll, "Ctrl+L"},
        {Befehl::Strahlverlauf, "Ctrl+H"},
        {Befehl::Aufzeichnung, "Ctrl+R"},
        {Befehl::Aufzeichnungen, "Ctrl+Shift+R"},
        {Befehl::Wiedergabe, "Ctrl+Shift+O"},
        {Befehl::Ereignisse, "Ctrl+E"},
        {Befehl::Bericht, "Ctrl+P"},
        {Befehl::Verlauf, "Ctrl+T"},
    };
    for (const auto& [befehl, taste] : tasten)
        EXPECT_EQ(Kuerzel(*ZeileZu(befehl), 0), taste);
    for (int teil = 0; teil < 4; ++teil)
        EXPECT_EQ(Kuerzel(*ZeileZu(Befehl::LichtleisteAnzeigen), teil), "Ctrl+" + std::to_string(teil + 1));
}

TEST(Befehlstabelle, Buttons_and_their_tips_say_what_they_do) {
    const std::pair<Befehl, std::array<const char*, 2>> worte[] = {
        {Befehl::VisualisierenStart,
         {"Connect", "Find the controller, read its configuration, show live data"}},
        {Befehl::VisualisierenStop, {"Stop", "Stop live data"}},
        {Befehl::Verbindung, {"Port", "Choose the port, find the controller, check the line"}},
        {Befehl::NeueKonfiguration, {"New", "New configuration without a controller"}},
        {Befehl::KonfigurationOeffnen, {"Open", "Load a configuration from a file"}},
        {Befehl::KonfigurationSpeichernUnter, {"Save", "Save the configuration to a file"}},
        {Befehl::KonfigurationAnzeigen, {"Configuration", "View and change the configuration"}},
        {Befehl::Hilfethemen, {"Help", "Every window, every setting, every message"}},
        {Befehl::Vergleich,
         {"Compare", "Two configurations side by side: edited, read, file, controller, factory default"}},
        {Befehl::Sicherungen,
         {"Backups", "What the program has backed up before writing and before changes were replaced"}},
        {Befehl::Bericht,
         {"Report", "The configuration as a document: view, print, save as PDF, HTML or text"}},
        {Befehl::Darstellung, {"Appearance", "Colours of the program and of the beams"}},
        {Befehl::Busprotokoll, {"Bus log", "Shows every exchange with the controller as it happens"}},
        {Befehl::Strahlverlauf,
         {"Beam history", "Shows which beams were interrupted when, and which are suspicious"}},
        {Befehl::Wiedergabe, {"Replay", "Open a record and play it"}},
        {Befehl::Aufzeichnung, {"Record", "Record measured data until clicked again"}},
        {Befehl::Aufzeichnungen, {"Recordings...", "Set what is recorded, how and where"}},
        {Befehl::Ereignisse,
         {"Events",
          "Shows what has happened: connection, optical parts, switching output, messages, commands"}},
        {Befehl::Verlauf, {"Trend", "Measured values over time"}},
    };
    SetzeSprachoffset(Englisch);
    for (const auto& [befehl, beide] : worte) {
        EXPECT_EQ(LadeText(ZeileZu(befehl)->textId), beide[0]);
        EXPECT_EQ(LadeText(ZeileZu(befehl)->tippId), beide[1]);
    }
    EXPECT_EQ(std::ranges::count_if(Befehlstabelle(), [](const auto& zeile) { return zeile.textId != 0; }),
              std::ssize(worte));
}

TEST(Befehlstabelle, No_action_belongs_to_two_commands) {
    std::size_t aktionen = 0;
    for (const Befehlszeile& zeile : Befehlstabelle())
        aktionen += static_cast<std::size_t>(zeile.anzahl);
    EXPECT_EQ(AlleAktionen().size(), aktionen);
}

TEST(Befehlstabelle, Views_and_ports_have_an_action_each_other_commands_one_or_none) {
    for (const Befehlszeile& zeile : Befehlstabelle()) {
        const bool mehrere = zeile.befehl == Befehl::LichtleisteAnzeigen || zeile.befehl == Befehl::ComPort;
        const bool keine = *zeile.aktion == 0;
        EXPECT_EQ(zeile.anzahl, mehrere ? 4 : keine ? 0 : 1) << static_cast<int>(zeile.befehl);
    }
}

TEST(Befehlstabelle, A_command_whose_action_bears_no_index_has_none) {
    EXPECT_TRUE(std::ranges::all_of(Befehlstabelle(), [](const Befehlszeile& zeile) {
        return zeile.anzahl > 1 || zeile.ersterIndex == 0;
    }));
}

TEST(Befehlstabelle, An_action_of_several_bears_its_index) {
    EXPECT_EQ(Aktionsname(*ZeileZu(Befehl::ComPort), 0), "mnuCom_1");
    EXPECT_EQ(Aktionsname(*ZeileZu(Befehl::LichtleisteAnzeigen), 3), "mnuAnzeigeLichtleiste_3");
    EXPECT_EQ(Aktionsname(*ZeileZu(Befehl::Info), 0), "mnuInfo");
}

TEST(Befehlstabelle, Every_state_belongs_to_an_action_of_a_command) {
    const auto aktionen = AlleAktionen();
    for (const auto& zustand : Menuezustand({}))
        EXPECT_THAT(aktionen, testing::Contains(zustand.name.toStdString()));
}

} // namespace varnoth
