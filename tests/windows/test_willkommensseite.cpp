#include "willkommensseite.h"

#include "fenstertest.h"
#include "lokalisiereform.h"
#include "texte.h"

#include <QApplication>
#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QMdiArea>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include <array>

namespace varnoth {

class WillkommensseiteTest : public testing::Test {
protected:
    WillkommensseiteTest() {
        SetzeSprachoffset(Deutsch);
        bereich.resize(900, 700);
        bereich.show();
    }
    ~WillkommensseiteTest() override { SetzeSprachoffset(Deutsch); }

    QPushButton& Knopf(const char* name) {
        auto* const knopf = bereich.findChild<QPushButton*>(name);
        if (knopf == nullptr)
            throw std::out_of_range(name);
        return *knopf;
    }
    QLabel& Text(const char* name) { return *bereich.findChild<QLabel*>(name); }
    /// The explanation in the row of a button.
    QLabel& Daneben(QPushButton& knopf) {
        auto* const raster = bereich.findChild<QGridLayout*>();
        int zeile = 0, spalte = 0, hoehe = 0, breite = 0;
        raster->getItemPosition(raster->indexOf(&knopf), &zeile, &spalte, &hoehe, &breite);
        return *qobject_cast<QLabel*>(raster->itemAtPosition(zeile, spalte + 1)->widget());
    }

    QMdiArea bereich;
    std::vector<std::pair<Befehl, int>> klicks;
    Willkommensseite seite{bereich, [this](Befehl befehl, int index) { klicks.emplace_back(befehl, index); }};
};

TEST_F(WillkommensseiteTest, Each_button_stores_its_command) {
    seite.Zeige(true, {"/a.con", "/b.con"});
    for (const char* name :
         {"cmdWillkommenVerbinden", "cmdWillkommenSuchen", "cmdWillkommenOeffnen", "cmdWillkommenNeu",
          "cmdWillkommenSimuliert", "cmdWillkommenHilfe", "cmdWillkommenDatei_2"})
        Knopf(name).click();
    EXPECT_EQ(klicks, (decltype(klicks){{Befehl::VisualisierenStart, 0},
                                        {Befehl::Verbindung, 1},
                                        {Befehl::KonfigurationOeffnen, 0},
                                        {Befehl::NeueKonfiguration, 0},
                                        {Befehl::SimuliertesGeraet, 0},
                                        {Befehl::Hilfethemen, 0},
                                        {Befehl::LetzteDatei, 1}}));
}

TEST_F(WillkommensseiteTest, The_texts_are_in_the_chosen_language_and_switch) {
    seite.Zeige(true, {});
    EXPECT_EQ(Text("lblWillkommen").text(), "Was möchten Sie tun?");
    EXPECT_EQ(Knopf("cmdWillkommenVerbinden").text(), "Verbinden");
    SetzeSprachoffset(Englisch);
    LokalisiereForm(seite);
    EXPECT_EQ(Text("lblWillkommen").text(), "What would you like to do?");
    EXPECT_EQ(Knopf("cmdWillkommenVerbinden").text(), "Connect");
}

TEST_F(WillkommensseiteTest, Every_button_says_what_it_does_and_beside_it_stands_what_for) {
    const std::array<const char*, 3> worte[] = {
        {"cmdWillkommenVerbinden", "Connect", "Find the controller, read its configuration, show live data"},
        {"cmdWillkommenSuchen", "Find controller...",
         "Search the ports, choose port and line format, check the line"},
        {"cmdWillkommenOeffnen", "Open configuration...", "Load a saved configuration file"},
        {"cmdWillkommenNeu", "New configuration...", "Begin with beam counts, without a controller"},
        {"cmdWillkommenSimuliert", "Simulated controller", "Try the program on a built-in controller"},
        {"cmdWillkommenHilfe", "Help", "Every window, every setting, every message"},
    };
    SetzeSprachoffset(Englisch);
    seite.Zeige(true, {"/a.con"});
    for (const auto& [name, text, erklaerung] : worte) {
        EXPECT_EQ(Knopf(name).text(), text);
        EXPECT_EQ(Daneben(Knopf(name)).text(), erklaerung);
    }
    EXPECT_EQ(Text("lblWillkommenDateien").text(), "Recent files");
}

TEST_F(WillkommensseiteTest, It_shows_the_files_used_last_by_name_and_folder) {
    seite.Zeige(true, {"/Anlage 1/Prüf & <b>stand.con"});
    EXPECT_EQ(Knopf("cmdWillkommenDatei_1").text(), "Prüf && <b>stand.con");
    EXPECT_EQ(Text("lblWillkommenOrdner_1").text(), QDir::toNativeSeparators("/Anlage 1"));
    EXPECT_EQ(Text("lblWillkommenOrdner_1").textFormat(), Qt::PlainText);
    EXPECT_TRUE(Knopf("cmdWillkommenDatei_1").isVisible());
    EXPECT_FALSE(Knopf("cmdWillkommenDatei_2").isVisible());
    EXPECT_TRUE(Text("lblWillkommenDateien").isVisible());
}

TEST_F(WillkommensseiteTest, Long_names_and_folders_do_not_widen_it) {
    seite.Zeige(true, {"/" + std::string(300, 'o') + "/" + std::string(200, 'n') + ".con"});
    bereich.resize(433, 600);
    QCoreApplication::processEvents();
    EXPECT_EQ(seite.horizontalScrollBar()->maximum(), 0);
}

TEST_F(WillkommensseiteTest, Without_a_file_it_has_no_heading_for_files) {
    seite.Zeige(true, {"/a.con"});
    seite.Zeige(true, {});
    EXPECT_FALSE(Text("lblWillkommenDateien").isVisible());
    EXPECT_FALSE(Knopf("cmdWillkommenDatei_1").isVisible());
}

TEST_F(WillkommensseiteTest, Tab_leads_through_its_buttons_and_Enter_chooses) {
    seite.Zeige(true, {"/a.con"});
    bereich.activateWindow();
    ASSERT_TRUE(pruefung::WarteBis([this] { return bereich.isActiveWindow(); }));
    Knopf("cmdWillkommenVerbinden").setFocus();
    for (const char* name : {"cmdWillkommenSuchen", "cmdWillkommenOeffnen", "cmdWillkommenNeu",
                             "cmdWillkommenSimuliert", "cmdWillkommenHilfe", "cmdWillkommenDatei_1"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(klicks, (decltype(klicks){{Befehl::LetzteDatei, 0}}));
}

TEST_F(WillkommensseiteTest, It_covers_the_area_and_scrolls_in_a_low_one) {
    seite.Zeige(true, {"/a.con", "/b.con", "/c.con"});
    bereich.resize(900, 200);
    EXPECT_TRUE(pruefung::WarteBis([&] { return seite.verticalScrollBar()->maximum() > 0; }));
    EXPECT_EQ(seite.geometry(), bereich.viewport()->geometry());
}

} // namespace varnoth
