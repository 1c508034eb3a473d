#include "hauptmenue.h"

#include "aktionen.h"
#include "fenstertest.h"
#include "lokalisiereform.h"
#include "texte.h"

#include <QAction>
#include <QMainWindow>
#include <QToolBar>
#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace varnoth {

namespace {

constexpr std::int16_t TextBeenden = 1020;

constexpr Befehlszeile Werkzeugzeile{.befehl = Befehl::Info,
                                     .aktion = "tlbInfo",
                                     .live = Live::LaeuftWeiter,
                                     .auftritt = Auftritt::Zeigt,
                                     .tut = [](Befehlswirkung& z, int) { z.ZeigeInfo(); },
                                     .textId = TextBeenden,
                                     .symbol = "varnoth"};

} // namespace

/// A window with the action of every command but the one that is left out.
class HauptmenueTest : public testing::Test {
protected:
    ~HauptmenueTest() override { SetzeSprachoffset(Deutsch); }

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

TEST_F(HauptmenueTest, Without_a_command_for_it_there_is_no_tool_bar) {
    LegeAktionenAn();
    const Hauptmenue menue(fenster, Merke());
    EXPECT_EQ(fenster.findChild<QToolBar*>(), nullptr);
}

TEST_F(HauptmenueTest, A_row_with_a_text_is_a_button_of_the_tool_bar) {
    LegeAktionenAn();
    const Hauptmenue menue(fenster, Merke(), {&Werkzeugzeile, 1});
    QAction& aktion = *fenster.findChild<QToolBar*>("tlbBefehle")->actions().at(0);
    EXPECT_EQ(aktion.objectName(), "tlbInfo");
    EXPECT_EQ(aktion.text(), "&Beenden");
    EXPECT_FALSE(aktion.icon().pixmap(16).isNull());
    aktion.trigger();
    EXPECT_EQ(klicks, (decltype(klicks){{Befehl::Info, 0}}));
    SetzeSprachoffset(Englisch);
    LokalisiereForm(fenster);
    EXPECT_EQ(aktion.text(), "&Exit");
}

} // namespace varnoth
