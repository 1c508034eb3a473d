#include "hauptmenue.h"

#include "aktionen.h"
#include "fenstertest.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace varnoth {

namespace {

constexpr std::int16_t TextInfo = 1720;
constexpr int OhneMenue = 999;

constexpr Befehlszeile OhneMenuezeile{.befehl = static_cast<Befehl>(OhneMenue),
                                      .aktion = "tlbPruefung",
                                      .live = Live::LaeuftWeiter,
                                      .auftritt = Auftritt::Zeigt,
                                      .tut = [](Befehlswirkung& z, int) { z.ZeigeInfo(); },
                                      .kuerzel = "Ctrl+P",
                                      .textId = TextInfo,
                                      .symbol = "bericht"};

} // namespace

/// A window with the action of every command but the one that is left out.
class HauptmenueTest : public testing::Test {
protected:
    void LegeAktionenAn(const QString& ausser = {}) {
        for (const Befehlszeile& zeile : Befehlstabelle())
            for (int platz = 0; platz < zeile.anzahl; ++platz)
                if (const QString name = QString::fromStdString(Aktionsname(zeile, platz)); name != ausser)
                    fenster.addAction(name)->setObjectName(name);
    }
    Hauptmenue::Klick Merke() {
        return [this](Befehl befehl, int index) { klicks.emplace_back(befehl, index); };
    }

    QMainWindow fenster;
    std::vector<std::pair<Befehl, int>> klicks;
};

TEST_F(HauptmenueTest, A_missing_action_is_noticed_at_the_start) {
    LegeAktionenAn("mnuInfo");
    EXPECT_THROW(Hauptmenue(fenster, Merke()), std::logic_error);
    fenster.addAction(QString())->setObjectName("mnuInfo");
    EXPECT_NO_THROW(Hauptmenue(fenster, Merke()));
}

TEST_F(HauptmenueTest, A_state_for_an_action_that_is_not_there_is_an_error) {
    EXPECT_THROW(WendeAn({{.name = QStringLiteral("mnuX")}}, fenster), std::logic_error);
}

TEST_F(HauptmenueTest, Each_of_several_actions_brings_its_own_index) {
    LegeAktionenAn();
    const Hauptmenue menue(fenster, Merke());
    Aktion(fenster, "mnuCom_3").trigger();
    Aktion(fenster, "mnuAnzeigeLichtleiste_0").trigger();
    EXPECT_EQ(klicks, (decltype(klicks){{Befehl::ComPort, 3}, {Befehl::LichtleisteAnzeigen, 0}}));
}

TEST_F(HauptmenueTest, A_command_that_no_menu_has_is_an_action_of_the_window_with_its_keys) {
    LegeAktionenAn();
    const Hauptmenue menue(fenster, Merke(), {&OhneMenuezeile, 1});
    QAction& aktion = Aktion(fenster, "tlbPruefung");
    EXPECT_TRUE(fenster.actions().contains(&aktion));
    EXPECT_EQ(aktion.shortcut(), QKeySequence("Ctrl+P"));
    EXPECT_EQ(aktion.text(), "Inf&o");
    aktion.trigger();
    EXPECT_EQ(klicks, (decltype(klicks){{OhneMenuezeile.befehl, 0}}));
}

} // namespace varnoth
