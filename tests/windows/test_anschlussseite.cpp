#include "verbindungsfenstertest.h"

#include <QRadioButton>
#include <QTest>

namespace varnoth {

using pruefung::EinAdapter;

namespace {

constexpr const char* ById = "/dev/serial/by-id/usb-FTDI_FT232R_USB_UART_A50285BI-if00-port0";

} // namespace

class AnschlussseiteTest : public pruefung::VerbindungsfensterTest {
protected:
    /// Whether the list has so many ports within a second.
    bool WarteAufPorts(int anzahl) {
        return pruefung::WarteBis(
            [this, anzahl] {
                umgebung.ErledigeAufgeschobenes();
                return Liste("lstPorts").topLevelItemCount() == anzahl;
            },
            1000);
    }
};

TEST_F(AnschlussseiteTest, Without_a_port_it_says_what_to_do) {
    EXPECT_TRUE(Teil<QLabel>("lblKeinPort").isVisible());
    EXPECT_EQ(Text("lblKeinPort").rfind("Kein serieller Port gefunden.", 0), 0U);
    EXPECT_FALSE(Knopf("cmdGeben").isEnabled());
}

TEST_F(AnschlussseiteTest, Each_port_is_a_row_with_what_it_is_its_state_and_its_numbers) {
    leitung.ports = {EinAdapter()};
    leitung.stand.wahl.Geraet(2) = ById;
    EXPECT_EQ(Zelle("lstPorts", 0, 0), "/dev/ttyUSB0");
    EXPECT_EQ(Zelle("lstPorts", 0, 1), "FT232R USB UART, Seriennummer A50285BI");
    EXPECT_EQ(Zelle("lstPorts", 0, 2), "frei");
    EXPECT_EQ(Zelle("lstPorts", 0, 3), "COM2");
    EXPECT_FALSE(Teil<QLabel>("lblKeinPort").isVisible());
}

TEST_F(AnschlussseiteTest, A_port_that_comes_or_goes_is_seen_within_a_second_without_a_hand) {
    Fenster();
    leitung.ports = {EinAdapter()};
    EXPECT_TRUE(WarteAufPorts(1));
    leitung.ports.clear();
    EXPECT_TRUE(WarteAufPorts(0));
    EXPECT_TRUE(Teil<QLabel>("lblKeinPort").isVisible());
}

TEST_F(AnschlussseiteTest, Nobody_looks_while_the_window_is_closed) {
    leitung.ports = {EinAdapter()};
    EXPECT_TRUE(Fenster().findChild<QTimer*>()->isActive());
    Fenster().close();
    EXPECT_FALSE(Fenster().findChild<QTimer*>()->isActive());
    leitung.ports.clear();
    Fenster().ZeigeVor();
    EXPECT_EQ(Liste("lstPorts").topLevelItemCount(), 0);
}

TEST_F(AnschlussseiteTest, The_chosen_row_tells_what_helps_and_stays_chosen_when_the_list_is_renewed) {
    leitung.ports = {EinAdapter(),
                     {.geraet = "/dev/ttyUSB1",
                      .befund = {.hindernis = Hindernis::KeinRecht,
                                 .eigentuemer = "root",
                                 .gruppe = "dialout",
                                 .nutzer = "eva"}}};
    Liste("lstPorts").setCurrentItem(Liste("lstPorts").topLevelItem(1));
    EXPECT_NE(Text("lblAbhilfe").find("sudo usermod -aG dialout eva"), std::string::npos);
    leitung.ports.insert(leitung.ports.begin(), {.geraet = "/dev/ttyS4"});
    Fenster().Erneuere();
    EXPECT_EQ(Liste("lstPorts").currentItem()->text(0), "/dev/ttyUSB1");
    EXPECT_NE(Text("lblAbhilfe").find("dialout"), std::string::npos);
    Liste("lstPorts").setCurrentItem(Liste("lstPorts").topLevelItem(0));
    EXPECT_FALSE(Teil<QLabel>("lblAbhilfe").isVisible());
}

TEST_F(AnschlussseiteTest, The_chosen_port_is_given_to_the_number_in_use_by_the_name_that_stays) {
    leitung.ports = {EinAdapter()};
    Teil<QRadioButton>("optCom_3").click();
    Liste("lstPorts").setCurrentItem(Liste("lstPorts").topLevelItem(0));
    EXPECT_EQ(Knopf("cmdGeben").text(), "Gewähltes Gerät an COM3 &geben");
    Knopf("cmdGeben").click();
    EXPECT_EQ(Teil<QComboBox>("cboGeraet_3").currentText(), ById);
    EXPECT_EQ(leitung.uebernommen, 0) << "nothing is in force before it is applied";
    Knopf("cmdUebernehmen").click();
    EXPECT_EQ(leitung.stand.wahl.Geraet(3), ById);
    EXPECT_EQ(leitung.stand.wahl.nummer, 3);
    EXPECT_EQ(leitung.stand.wahl.Geraet(1), "/dev/ttyS0");
    EXPECT_EQ(leitung.verbunden, 0);
}

TEST_F(AnschlussseiteTest, Enter_on_a_row_gives_its_port) {
    leitung.ports = {EinAdapter()};
    Liste("lstPorts").setCurrentItem(Liste("lstPorts").topLevelItem(0));
    emit Liste("lstPorts").itemActivated(Liste("lstPorts").topLevelItem(0), 0);
    EXPECT_EQ(Teil<QComboBox>("cboGeraet_1").currentText(), ById);
}

TEST_F(AnschlussseiteTest, Each_number_offers_every_name_of_every_port) {
    leitung.ports = {EinAdapter(), {.geraet = "/dev/ttyS4"}};
    for (const char* name : {"cboGeraet_1", "cboGeraet_4"}) {
        const QComboBox& box = Teil<QComboBox>(name);
        ASSERT_EQ(box.count(), 3);
        EXPECT_EQ(box.itemText(0), ById);
        EXPECT_EQ(box.itemText(2), "/dev/ttyS4");
    }
    EXPECT_EQ(Teil<QComboBox>("cboGeraet_1").currentText(), "/dev/ttyS0");
}

TEST_F(AnschlussseiteTest, A_typed_device_is_taken_with_its_blanks_cut_and_its_state_is_told) {
    Tippe("cboGeraet_2", "  /home/eva/line ");
    EXPECT_EQ(leitung.gefragte, "/dev/ttyS3") << "the last of the four is asked for last";
    EXPECT_EQ(Text("lblGeraet_2"), "nicht da");
    Knopf("cmdUebernehmen").click();
    EXPECT_EQ(leitung.stand.wahl.Geraet(2), "/home/eva/line");
}

TEST_F(AnschlussseiteTest, What_is_typed_survives_a_list_that_is_renewed) {
    Tippe("cboGeraet_2", "/home/eva/li");
    Teil<QComboBox>("cboGeraet_2").lineEdit()->setCursorPosition(3);
    leitung.ports = {EinAdapter()};
    leitung.stand.wahl.Geraet(1) = "/dev/other";
    Fenster().Erneuere();
    EXPECT_EQ(Teil<QComboBox>("cboGeraet_2").currentText(), "/home/eva/li");
    EXPECT_EQ(Teil<QComboBox>("cboGeraet_1").currentText(), "/dev/other");
}

TEST_F(AnschlussseiteTest, A_port_that_comes_leaves_the_cursor_where_somebody_types) {
    Tippe("cboGeraet_2", "/dev/ttyUSB9");
    auto& zeile = *Teil<QComboBox>("cboGeraet_2").lineEdit();
    zeile.setCursorPosition(5);
    leitung.ports.push_back(EinAdapter());
    Fenster().Erneuere();
    EXPECT_EQ(zeile.cursorPosition(), 5);
}

TEST_F(AnschlussseiteTest, What_a_typed_device_leads_to_is_looked_at_again_and_again) {
    Tippe("cboGeraet_2", "/dev/pts/7");
    EXPECT_EQ(Text("lblGeraet_2"), "nicht da");
    leitung.befund = {};
    EXPECT_TRUE(pruefung::WarteBis([this] {
        umgebung.ErledigeAufgeschobenes();
        return Text("lblGeraet_2") == "frei";
    }));
}

TEST_F(AnschlussseiteTest, An_empty_device_or_a_wrong_format_cannot_be_applied_and_says_why) {
    Tippe("cboGeraet_1", " ");
    EXPECT_EQ(Text("lblGeraet_1"), "Bitte ein Gerät nennen, etwa /dev/ttyUSB0 oder COM5.");
    EXPECT_FALSE(Knopf("cmdUebernehmen").isEnabled());
    EXPECT_FALSE(Knopf("cmdVerbinden").isEnabled());
    Knopf("cmdVerwerfen").click();
    EXPECT_EQ(Text("lblFormatbefund"), "gilt für alle vier");
    Tippe("cboFormat", "9600;e;8;1");
    EXPECT_NE(Text("lblFormatbefund").find("kein Leitungsformat"), std::string::npos);
    EXPECT_FALSE(Knopf("cmdUebernehmen").isEnabled());
}

TEST_F(AnschlussseiteTest, Discarding_shows_what_is_in_force) {
    Fenster();
    EXPECT_FALSE(Knopf("cmdVerwerfen").isEnabled());
    Tippe("cboGeraet_1", "x");
    Teil<QRadioButton>("optCom_2").click();
    Tippe("cboFormat", "y");
    EXPECT_TRUE(Knopf("cmdVerwerfen").isEnabled());
    Knopf("cmdVerwerfen").click();
    EXPECT_EQ(Teil<QComboBox>("cboGeraet_1").currentText(), "/dev/ttyS0");
    EXPECT_TRUE(Teil<QRadioButton>("optCom_1").isChecked());
    EXPECT_EQ(Teil<QComboBox>("cboFormat").currentText(), "38400,n,8,2");
    EXPECT_FALSE(Knopf("cmdUebernehmen").isEnabled());
}

TEST_F(AnschlussseiteTest, Connecting_takes_what_was_entered_with_it) {
    Tippe("cboFormat", "9600,e,8,1");
    Knopf("cmdVerbinden").click();
    EXPECT_EQ(leitung.verbunden, 1);
    EXPECT_EQ(leitung.stand.wahl.format, "9600,e,8,1");
}

TEST_F(AnschlussseiteTest, That_a_choice_is_in_force_is_said_until_the_next_entry) {
    Tippe("cboFormat", "9600,e,8,1");
    Knopf("cmdUebernehmen").click();
    EXPECT_EQ(Text("lblErgebnis"), "");
    Fenster().Uebernommen();
    EXPECT_EQ(Text("lblErgebnis"), "Übernommen; gilt ab der nächsten Verbindung.");
    EXPECT_FALSE(Knopf("cmdUebernehmen").isEnabled());
    Tippe("cboFormat", "9600,e,8,2");
    EXPECT_EQ(Text("lblErgebnis"), "");
}

TEST_F(AnschlussseiteTest, Once_the_next_connection_is_there_it_is_not_announced_any_more) {
    Fenster().Uebernommen();
    EXPECT_NE(Text("lblErgebnis"), "");
    leitung.stand.offen = "/dev/ttyS0";
    Fenster().Erneuere();
    EXPECT_EQ(Text("lblErgebnis"), "");
}

TEST_F(AnschlussseiteTest, Every_format_that_a_controller_can_have_is_offered) {
    const QComboBox& box = Teil<QComboBox>("cboFormat");
    ASSERT_EQ(box.count(), static_cast<int>(Suchformate().size()));
    EXPECT_EQ(box.itemText(0), "38400,n,8,2");
    EXPECT_GE(box.findText("9600,e,8,1"), 0);
}

TEST_F(AnschlussseiteTest, A_device_of_the_run_and_the_built_in_controller_are_said) {
    EXPECT_FALSE(Teil<QLabel>("lblHinweis").isVisible());
    leitung.stand.geraetDiesesLaufs = "/dev/pts/7";
    Fenster().Erneuere();
    EXPECT_NE(Text("lblHinweis").find("/dev/pts/7 (Schalter /Geraet)"), std::string::npos);
    EXPECT_TRUE(Knopf("cmdUebernehmen").isEnabled()) << "it ends the device of the run";
    leitung.stand.geraetDiesesLaufs.clear();
    leitung.stand.simuliert = true;
    Fenster().Erneuere();
    EXPECT_NE(Text("lblHinweis").find("eingebaute Steuergerät"), std::string::npos);
    leitung.stand.immerSimuliert = true;
    Fenster().Erneuere();
    EXPECT_NE(Text("lblHinweis").find("/Simulator"), std::string::npos);
}

TEST_F(AnschlussseiteTest, Sixty_four_ports_scroll_and_do_not_widen_the_window) {
    Fenster().resize(820, 500);
    for (int i = 0; i < 64; ++i)
        leitung.ports.push_back(EinAdapter("/dev/ttyUSB" + std::to_string(i)));
    Fenster().Erneuere();
    EXPECT_EQ(Liste("lstPorts").topLevelItemCount(), 64);
    EXPECT_EQ(Fenster().size(), QSize(820, 500));
    EXPECT_EQ(Teil<QComboBox>("cboGeraet_1").count(), 128);
}

TEST_F(AnschlussseiteTest, The_keyboard_reaches_every_control_in_reading_order) {
    leitung.ports = {EinAdapter()};
    Fenster().activateWindow();
    ASSERT_TRUE(pruefung::WarteBis([this] { return Fenster().isActiveWindow(); }));
    Liste("lstPorts").setCurrentItem(Liste("lstPorts").topLevelItem(0));
    Liste("lstPorts").setFocus();
    for (const char* name : {"cmdGeben", "optCom_1", "cboGeraet_1", "cboGeraet_2", "cboGeraet_3",
                             "cboGeraet_4", "cboFormat", "cmdVerbinden", "cmdSchliessen"}) {
        QTest::keyClick(Fenster().focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(Fenster().focusWidget()->objectName().toStdString(), name);
    }
}

TEST_F(AnschlussseiteTest, Its_controls_have_names_for_a_screen_reader) {
    EXPECT_EQ(Teil<QRadioButton>("optCom_2").accessibleName(), "COM2 benutzen");
    EXPECT_EQ(Teil<QComboBox>("cboGeraet_2").accessibleName(), "Gerät von COM2");
    EXPECT_FALSE(Liste("lstPorts").accessibleName().isEmpty());
}

} // namespace varnoth
