#include "hauptmenue.h"

#include "aktionen.h"
#include "fenstertest.h"
#include "texte.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
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
            for (int platz = 0; StehtImMenue(zeile) && platz < zeile.anzahl; ++platz)
                if (const QString name = QString::fromStdString(Aktionsname(zeile, platz)); name != ausser)
                    fenster.addAction(name)->setObjectName(name);
    }
    /// The two menu items without a command whose subject is the report.
    void LegeDruckpunkteAn() {
        QMenu* const datei = fenster.menuBar()->addMenu(QString());
        for (const char* name : {"mnuDruckereinrichtung", "mnuKonfigurationDrucken"})
            datei->addAction(QString())->setObjectName(QString::fromLatin1(name));
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

TEST_F(HauptmenueTest, Every_picture_of_the_table_is_there_and_its_menu_item_has_it) {
    LegeAktionenAn();
    const Hauptmenue menue(fenster, Merke());
    int bilder = 0;
    for (const Befehlszeile& zeile : Befehlstabelle())
        if (*zeile.symbol != 0) {
            const QAction& aktion = Aktion(fenster, QString::fromStdString(Aktionsname(zeile, 0)));
            EXPECT_FALSE(aktion.icon().pixmap(16).isNull()) << zeile.symbol;
            ++bilder;
        }
    EXPECT_GT(bilder, 15);
}

TEST_F(HauptmenueTest, A_menu_item_without_a_command_tells_where_its_subject_is_found_by_now) {
    LegeAktionenAn();
    LegeDruckpunkteAn();
    QAction* const farben = fenster.menuBar()->addMenu(QString())->addAction(QString());
    farben->setObjectName("mnuOptionFarben");
    Hauptmenue menue(fenster, Merke());
    menue.ZeigeFundorte();
    EXPECT_EQ(farben->toolTip(), "Farben wählt die Werkzeugleiste: „Darstellung“.");
    SetzeSprachoffset(Englisch);
    menue.ZeigeFundorte();
    EXPECT_EQ(farben->toolTip(), "Colours are chosen in the tool bar: “Appearance”.");
    for (const char* const name : {"mnuDruckereinrichtung", "mnuKonfigurationDrucken"})
        EXPECT_EQ(Aktion(fenster, name).toolTip(), "The report prints the configuration: tool bar, “Report”.")
            << name;
}

TEST_F(HauptmenueTest, A_tip_is_shown_in_the_menu_of_its_item_alone) {
    LegeAktionenAn();
    LegeDruckpunkteAn();
    QMenu& option = *fenster.menuBar()->addMenu(QString());
    QMenu& anderes = *fenster.menuBar()->addMenu(QString());
    option.addAction(QString())->setObjectName("mnuOptionFarben");
    Hauptmenue menue(fenster, Merke());
    menue.ZeigeFundorte();
    EXPECT_TRUE(option.toolTipsVisible());
    EXPECT_FALSE(anderes.toolTipsVisible());
}

TEST_F(HauptmenueTest, What_does_not_exist_yet_is_not_spoken_of) {
    LegeAktionenAn();
    QAction* const farben = fenster.menuBar()->addMenu(QString())->addAction(QString());
    farben->setObjectName("mnuOptionFarben");
    Hauptmenue menue(fenster, Merke(), Befehlstabelle().first(2));
    menue.ZeigeFundorte();
    EXPECT_TRUE(farben->toolTip().isEmpty());
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
