#include "frmSicherungen.h"

#include "fenstertest.h"
#include "pruefsicherungen.h"
#include "pruefumgebung.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "sicherungsliste.h"
#include "standardkonfiguration.h"
#include "texte.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

using namespace std::chrono;

Sicherung Eine(const std::string& pfad, const std::string& nummer, int stunde) {
    return {pfad,
            {.zeit = sys_days{2026y / 11 / 22} + hours(stunde),
             .anlass = Sicherungsanlass::VorDemSchreiben,
             .seriennummer = nummer,
             .strahlen = "32, 0, 0, 0",
             .programm = "1.0.0"}};
}

} // namespace

TEST(Sicherungsliste, Backups_are_grouped_by_controller_and_keep_their_order) {
    const auto gruppen = NachGeraet({Eine("a", "2", 5), Eine("b", "1", 4), Eine("c", "2", 3)});
    ASSERT_EQ(gruppen.size(), 2U);
    EXPECT_EQ(gruppen[0].seriennummer, "2");
    ASSERT_EQ(gruppen[0].sicherungen.size(), 2U);
    EXPECT_EQ(gruppen[0].sicherungen[1].pfad, "c");
    EXPECT_EQ(gruppen[1].seriennummer, "1");
}

TEST(Sicherungsliste, A_group_bears_its_serial_number_or_says_that_there_is_none) {
    EXPECT_EQ(Gruppenname("4711"), "Gerät 4711");
    EXPECT_EQ(Gruppenname(""), "ohne Seriennummer");
}

TEST(Sicherungsliste, Every_occasion_has_its_words) {
    EXPECT_EQ(Anlasstext(Sicherungsanlass::VorDemSchreiben), "vor dem Schreiben");
    EXPECT_EQ(Anlasstext(Sicherungsanlass::VorDemVerbinden), "vor dem Verbinden");
    EXPECT_EQ(Anlasstext(Sicherungsanlass::VorNeuer), "vor einer neuen Konfiguration");
    EXPECT_EQ(Anlasstext(Sicherungsanlass::VorDemOeffnen), "vor dem Öffnen");
    EXPECT_EQ(Anlasstext(std::nullopt), "unbekannt");
}

TEST(Sicherungsliste, Differences_are_counted_and_what_cannot_be_read_is_not_called_equal) {
    modDaten::LadeStandardkonfiguration();
    EXPECT_TRUE(modDaten::SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 32, 0));
    const Abbild jetzt = modDaten::DasAbbild();
    Abbild andere = jetzt;
    EXPECT_TRUE(andere.SetzeRegister(Spezifisch, spezifisch::Reichweite, 5, 0));
    EXPECT_TRUE(andere.SetzeRegister(Spezifisch, spezifisch::Lochgroesse, 9, 0));
    EXPECT_EQ(Unterschiedstext(jetzt, jetzt), "gleich");
    EXPECT_EQ(Unterschiedstext(andere, jetzt), "2 Einstellungen");
    EXPECT_EQ(Unterschiedstext(std::nullopt, jetzt), "nicht lesbar");
}

TEST(Sicherungsliste, None_one_and_many_have_words_of_their_own) {
    EXPECT_EQ(Sicherungszahl(0), "Es gibt noch keine Sicherung.");
    EXPECT_EQ(Sicherungszahl(1), "1 Sicherung");
    EXPECT_EQ(Sicherungszahl(2), "2 Sicherungen");
}

class frmSicherungenTest : public testing::Test {
protected:
    frmSicherungenTest() {
        modDaten::LadeStandardkonfiguration();
        EXPECT_TRUE(modDaten::SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 32, 0));
        for (const auto& sicherung :
             {Eine("b", "<b>4711</b>", 5), Eine("a", "<b>4711</b>", 4), Eine("c", "", 3)})
            sicherungen.gelegte.emplace_back(sicherung, modDaten::DasAbbild());
        EXPECT_TRUE(sicherungen.gelegte[1].second.SetzeRegister(Spezifisch, spezifisch::Reichweite, 5, 0));
    }

    Sicherungsbefehle Befehle() {
        return {.oeffne = [this](const Sicherung& s) { getan += "open " + s.pfad; },
                .speichere = [this](const Sicherung& s) { getan += "save " + s.pfad; },
                .vergleiche = [this](const Sicherung& s) { getan += "compare " + s.pfad; }};
    }
    static QTreeWidget& Liste(frmSicherungen& fenster) {
        return *fenster.findChild<QTreeWidget*>("lstSicherungen");
    }
    static QPushButton& Knopf(frmSicherungen& fenster, const char* name) {
        return *fenster.findChild<QPushButton*>(name);
    }
    static void Waehle(frmSicherungen& fenster, int gruppe, int platz) {
        Liste(fenster).setCurrentItem(Liste(fenster).topLevelItem(gruppe)->child(platz));
    }
    static std::string Anzahl(frmSicherungen& fenster) {
        return fenster.findChild<QLabel*>("lblAnzahl")->text().toStdString();
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefSicherungen sicherungen;
    std::string getan;
};

TEST_F(frmSicherungenTest, Backups_stand_below_their_controller_with_occasion_and_differences) {
    frmSicherungen fenster(sicherungen, Befehle());
    ASSERT_EQ(Liste(fenster).topLevelItemCount(), 2);
    const QTreeWidgetItem& gruppe = *Liste(fenster).topLevelItem(0);
    EXPECT_EQ(gruppe.text(0), "Gerät <b>4711</b>");
    EXPECT_FALSE(gruppe.toolTip(0).contains("<b>"));
    ASSERT_EQ(gruppe.childCount(), 2);
    EXPECT_EQ(gruppe.child(0)->text(1), "vor dem Schreiben");
    EXPECT_EQ(gruppe.child(0)->text(2), "gleich");
    EXPECT_EQ(gruppe.child(1)->text(2), "1 Einstellung");
    EXPECT_EQ(gruppe.child(1)->text(3), "32, 0, 0, 0");
    EXPECT_EQ(Liste(fenster).topLevelItem(1)->text(0), "ohne Seriennummer");
    EXPECT_EQ(Anzahl(fenster), "3 Sicherungen");
}

TEST_F(frmSicherungenTest, Without_a_selection_nothing_can_be_done) {
    frmSicherungen fenster(sicherungen, Befehle());
    for (const char* name : {"cmdVergleichen", "cmdOeffnen", "cmdSpeichern", "cmdLoeschen"})
        EXPECT_FALSE(Knopf(fenster, name).isEnabled()) << name;
}

TEST_F(frmSicherungenTest, Each_command_gets_the_backup_that_is_selected) {
    frmSicherungen fenster(sicherungen, Befehle());
    Waehle(fenster, 0, 1);
    for (const char* name : {"cmdVergleichen", "cmdOeffnen", "cmdSpeichern"})
        Knopf(fenster, name).click();
    EXPECT_EQ(getan, "compare aopen asave a");
}

TEST_F(frmSicherungenTest, Where_nothing_compares_there_is_no_such_button) {
    Sicherungsbefehle befehle = Befehle();
    befehle.vergleiche = nullptr;
    frmSicherungen fenster(sicherungen, befehle);
    EXPECT_TRUE(Knopf(fenster, "cmdVergleichen").isHidden());
}

TEST_F(frmSicherungenTest, A_backup_that_cannot_be_read_can_only_be_deleted) {
    sicherungen.unlesbar = true;
    frmSicherungen fenster(sicherungen, Befehle());
    Waehle(fenster, 0, 0);
    EXPECT_FALSE(Knopf(fenster, "cmdOeffnen").isEnabled());
    EXPECT_FALSE(Knopf(fenster, "cmdSpeichern").isEnabled());
    EXPECT_TRUE(Knopf(fenster, "cmdLoeschen").isEnabled());
    EXPECT_EQ(Liste(fenster).topLevelItem(0)->child(0)->text(2), "nicht lesbar");
}

TEST_F(frmSicherungenTest, Deleting_asks_first_and_Enter_keeps_the_backup) {
    frmSicherungen fenster(sicherungen, Befehle());
    Waehle(fenster, 0, 0);
    umgebung.antworten = {Antwort::Abbrechen};
    Knopf(fenster, "cmdLoeschen").click();
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_TRUE(umgebung.meldungen[0].abbrechenVorgegeben);
    EXPECT_EQ(sicherungen.gelegte.size(), 3U);
    Knopf(fenster, "cmdLoeschen").click();
    ASSERT_EQ(sicherungen.gelegte.size(), 2U);
    EXPECT_EQ(sicherungen.gelegte[0].first.pfad, "a");
    EXPECT_EQ(Anzahl(fenster), "2 Sicherungen");
    Waehle(fenster, 0, 0);
    Knopf(fenster, "cmdLoeschen").click();
    EXPECT_EQ(Anzahl(fenster), "1 Sicherung");
}

TEST_F(frmSicherungenTest, Rows_have_room_for_the_dots_of_capital_letters_and_need_no_scrolling_sideways) {
    frmSicherungen fenster(sicherungen, Befehle());
    fenster.resize(680, 300);
    fenster.show();
    EXPECT_TRUE(pruefung::WarteBis([&] { return Liste(fenster).viewport()->width() > 600; }));
    const QTreeWidgetItem* const zeile = Liste(fenster).topLevelItem(0)->child(0);
    EXPECT_GE(Liste(fenster).visualItemRect(zeile).height(), fenster.fontMetrics().height() + 4);
    EXPECT_FALSE(Liste(fenster).horizontalScrollBar()->isVisible());
}

TEST_F(frmSicherungenTest, A_backup_that_cannot_be_deleted_is_said) {
    frmSicherungen fenster(sicherungen, Befehle());
    Waehle(fenster, 0, 0);
    sicherungen.fehler = "not allowed";
    Knopf(fenster, "cmdLoeschen").click();
    ASSERT_EQ(umgebung.meldungen.size(), 2U);
    EXPECT_EQ(umgebung.meldungen[1].text, "Die Sicherung ließ sich nicht löschen:\nnot allowed\nb");
}

TEST_F(frmSicherungenTest, That_there_is_no_backup_is_said) {
    sicherungen.gelegte.clear();
    frmSicherungen fenster(sicherungen, Befehle());
    EXPECT_EQ(Anzahl(fenster), "Es gibt noch keine Sicherung.");
}

TEST_F(frmSicherungenTest, Renewed_it_shows_what_has_come_keeps_the_selection_and_follows_the_language) {
    frmSicherungen fenster(sicherungen, Befehle());
    Waehle(fenster, 0, 1);
    sicherungen.gelegte.emplace(sicherungen.gelegte.begin(), Eine("d", "9", 9), modDaten::DasAbbild());
    SetzeSprachoffset(Englisch);
    fenster.Erneuere();
    EXPECT_EQ(Anzahl(fenster), "4 backups");
    EXPECT_EQ(fenster.windowTitle(), "Backups");
    ASSERT_EQ(Liste(fenster).selectedItems().size(), 1);
    EXPECT_EQ(Liste(fenster).selectedItems()[0]->toolTip(0), "a");
}

} // namespace varnoth
