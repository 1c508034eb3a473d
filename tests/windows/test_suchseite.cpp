#include "verbindungsfenstertest.h"

#include <QGroupBox>
#include <QProgressBar>

namespace varnoth {

using pruefung::EinAdapter;
using pruefung::EinFund;

namespace {

constexpr const char* ById = "/dev/serial/by-id/usb-FTDI_FT232R_USB_UART_A50285BI-if00-port0";

Suchstand Versuch(int nummer, std::optional<Suchergebnis> ergebnis = {}, const std::string& text = {}) {
    return {.nummer = nummer,
            .anzahl = 21,
            .versuch = {"/dev/ttyUSB0", "9600,e,8,1"},
            .ergebnis = ergebnis,
            .text = text};
}

} // namespace

class SuchseiteTest : public pruefung::VerbindungsfensterTest {
protected:
    SuchseiteTest() { leitung.ports = {EinAdapter()}; }

    frmVerbindung& Seite() {
        Fenster().Schlage(Verbindungsseite::Suche);
        return Fenster();
    }
    void Hake(int zeile, bool an) {
        Liste("lstSuchports").topLevelItem(zeile)->setCheckState(0, an ? Qt::Checked : Qt::Unchecked);
    }
    bool IstGehakt(int zeile) {
        return Liste("lstSuchports").topLevelItem(zeile)->checkState(0) == Qt::Checked;
    }
    /// A search that has found its controller at the first try.
    void Finde() {
        Seite();
        Knopf("cmdSuchen").click();
        Fenster().ZeigeVersuch(Versuch(1));
        Fenster().ZeigeVersuch(Versuch(1, Suchergebnis::Gefunden, "Steuergerät gefunden"));
        Fenster().BeendeSuche(EinFund());
    }
};

TEST_F(SuchseiteTest, Ports_that_can_be_had_are_ticked_and_others_can_be) {
    leitung.ports.push_back({.geraet = "/dev/ttyUSB1", .befund = {.hindernis = Hindernis::Belegt}});
    leitung.ports.push_back({.geraet = "/dev/ttyUSB2"});
    Seite();
    EXPECT_TRUE(IstGehakt(0));
    EXPECT_FALSE(IstGehakt(1));
    Hake(1, true);
    Hake(2, false);
    Knopf("cmdSuchen").click();
    EXPECT_EQ(leitung.gesuchte, (std::vector<std::vector<std::string>>{{"/dev/ttyUSB0", "/dev/ttyUSB1"}}));
}

TEST_F(SuchseiteTest, What_a_person_has_ticked_stays_when_the_list_is_renewed) {
    leitung.ports.push_back({.geraet = "/dev/ttyUSB1"});
    Seite();
    Hake(0, false);
    leitung.ports.insert(leitung.ports.begin(), {.geraet = "/dev/ttyS4"});
    Fenster().Erneuere();
    EXPECT_TRUE(IstGehakt(0));
    EXPECT_FALSE(IstGehakt(1));
    EXPECT_TRUE(IstGehakt(2));
}

TEST_F(SuchseiteTest, Without_a_ticked_port_there_is_nothing_to_search) {
    Seite();
    EXPECT_TRUE(Knopf("cmdSuchen").isEnabled());
    Hake(0, false);
    EXPECT_FALSE(Knopf("cmdSuchen").isEnabled());
    leitung.ports.clear();
    Fenster().Erneuere();
    EXPECT_FALSE(Knopf("cmdSuchen").isEnabled());
    EXPECT_TRUE(Teil<QLabel>("lblKeinSuchport").isVisible());
}

TEST_F(SuchseiteTest, Before_a_search_it_says_that_nothing_but_a_question_is_sent) {
    Seite();
    EXPECT_NE(Text("lblSuchstand").find("Gesendet wird nichts als die Frage, wer da ist"), std::string::npos);
    EXPECT_FALSE(Teil<QGroupBox>("fraFund").isVisible());
}

TEST_F(SuchseiteTest, Each_try_is_a_row_with_its_result) {
    Seite();
    Knopf("cmdSuchen").click();
    EXPECT_EQ(Text("lblSuchstand"), "Die Suche beginnt...");
    Fenster().ZeigeVersuch(Versuch(1));
    EXPECT_EQ(Zelle("lstVersuche", 0, 3), "läuft...");
    EXPECT_EQ(Text("lblSuchstand"), "Versuch 1 von 21: /dev/ttyUSB0, 9600,e,8,1");
    Fenster().ZeigeVersuch(Versuch(1, Suchergebnis::Stille, "keine Antwort"));
    Fenster().ZeigeVersuch(Versuch(2));
    EXPECT_EQ(Liste("lstVersuche").topLevelItemCount(), 2);
    EXPECT_EQ(Zelle("lstVersuche", 0, 0), "1");
    EXPECT_EQ(Zelle("lstVersuche", 0, 1), "/dev/ttyUSB0");
    EXPECT_EQ(Zelle("lstVersuche", 0, 2), "9600,e,8,1");
    EXPECT_EQ(Zelle("lstVersuche", 0, 3), "keine Antwort");
    EXPECT_EQ(Teil<QProgressBar>("pbFortschritt").value(), 2);
    EXPECT_EQ(Teil<QProgressBar>("pbFortschritt").maximum(), 21);
}

TEST_F(SuchseiteTest, The_newest_try_is_in_view_and_stays_so_when_a_find_takes_room) {
    Seite();
    Knopf("cmdSuchen").click();
    for (int nummer = 1; nummer <= 21; ++nummer)
        Fenster().ZeigeVersuch(Versuch(nummer, Suchergebnis::Stille, "keine Antwort"));
    Fenster().BeendeSuche(EinFund());
    const QTreeWidget& liste = Liste("lstVersuche");
    EXPECT_TRUE(pruefung::WarteBis([&] {
        const QRect letzte = liste.visualItemRect(liste.topLevelItem(20));
        return Teil<QGroupBox>("fraFund").isVisible() && liste.viewport()->rect().contains(letzte);
    }));
}

TEST_F(SuchseiteTest, While_it_runs_only_cancelling_is_offered) {
    Seite();
    Knopf("cmdSuchen").click();
    EXPECT_FALSE(Knopf("cmdSuchen").isEnabled());
    EXPECT_FALSE(Liste("lstSuchports").isEnabled());
    EXPECT_TRUE(Knopf("cmdCancel").isEnabled());
    Knopf("cmdCancel").click();
    EXPECT_EQ(leitung.abbrueche, 1);
    Fenster().BeendeSuche({.abgebrochen = true, .versuche = 1, .text = "Suche abgebrochen (1 Versuch)."});
    EXPECT_NE(Text("lblSuchstand").find("Suche abgebrochen (1 Versuch)."), std::string::npos);
    EXPECT_TRUE(Knopf("cmdSuchen").isEnabled());
    EXPECT_FALSE(Knopf("cmdCancel").isEnabled());
}

TEST_F(SuchseiteTest, A_found_controller_is_shown_and_used_as_the_number_in_use) {
    Finde();
    EXPECT_TRUE(Teil<QGroupBox>("fraFund").isVisible());
    EXPECT_NE(Text("lblFund").find("Seriennummer: VM-2024-00017\nAdresse: 17"), std::string::npos);
    EXPECT_EQ(Teil<QComboBox>("cboFundCom").currentText(), "COM1");
    Knopf("cmdVerwenden").click();
    EXPECT_EQ(leitung.verbunden, 1);
    EXPECT_EQ(leitung.stand.wahl.Geraet(1), ById);
    EXPECT_EQ(leitung.stand.wahl.format, "9600,e,8,1");
    EXPECT_EQ(leitung.stand.wahl.nummer, 1);
}

TEST_F(SuchseiteTest, It_can_be_used_as_another_number) {
    Finde();
    Teil<QComboBox>("cboFundCom").setCurrentIndex(2);
    Knopf("cmdVerwenden").click();
    EXPECT_EQ(leitung.stand.wahl.Geraet(3), ById);
    EXPECT_EQ(leitung.stand.wahl.nummer, 3);
    EXPECT_EQ(leitung.stand.wahl.Geraet(1), "/dev/ttyS0");
}

TEST_F(SuchseiteTest, A_search_without_a_find_offers_nothing_to_use) {
    Seite();
    Knopf("cmdSuchen").click();
    Fenster().BeendeSuche({.versuche = 21, .text = "Kein Steuergerät gefunden (21 Versuche)."});
    EXPECT_FALSE(Teil<QGroupBox>("fraFund").isVisible());
    EXPECT_FALSE(Knopf("cmdVerwenden").isEnabled());
    EXPECT_NE(Text("lblSuchstand").find("Kein Steuergerät gefunden"), std::string::npos);
}

TEST_F(SuchseiteTest, Results_look_old_once_ports_have_come_or_gone) {
    Finde();
    EXPECT_FALSE(Liste("lstVersuche").topLevelItem(0)->isDisabled());
    leitung.ports.push_back({.geraet = "/dev/ttyUSB1"});
    Fenster().Erneuere();
    EXPECT_TRUE(Liste("lstVersuche").topLevelItem(0)->isDisabled());
    EXPECT_NE(Text("lblSuchstand").find("Seither sind Ports gekommen oder gegangen."), std::string::npos);
    EXPECT_TRUE(Knopf("cmdVerwenden").isEnabled()) << "its own port has stayed";
}

TEST_F(SuchseiteTest, A_find_whose_port_was_away_cannot_be_used_even_when_it_is_back) {
    Finde();
    const auto ports = leitung.ports;
    leitung.ports.clear();
    Fenster().Erneuere();
    EXPECT_FALSE(Knopf("cmdVerwenden").isEnabled());
    leitung.ports = ports;
    Fenster().Erneuere();
    EXPECT_FALSE(Knopf("cmdVerwenden").isEnabled());
    EXPECT_FALSE(Teil<QLabel>("lblFund").isEnabled());
    EXPECT_NE(Text("lblSuchstand").find("Bitte noch einmal suchen."), std::string::npos);
}

TEST_F(SuchseiteTest, A_new_search_takes_the_results_of_the_last_one_away) {
    Finde();
    leitung.ports.push_back({.geraet = "/dev/ttyUSB1"});
    Fenster().Erneuere();
    Knopf("cmdSuchen").click();
    EXPECT_EQ(Liste("lstVersuche").topLevelItemCount(), 0);
    EXPECT_FALSE(Teil<QGroupBox>("fraFund").isVisible());
    Fenster().ZeigeVersuch(Versuch(1));
    EXPECT_FALSE(Liste("lstVersuche").topLevelItem(0)->isDisabled());
}

TEST_F(SuchseiteTest, A_port_whose_state_alone_has_changed_does_not_make_results_old) {
    Finde();
    leitung.stand.offen = "/dev/ttyUSB0";
    Fenster().Erneuere();
    EXPECT_FALSE(Liste("lstVersuche").topLevelItem(0)->isDisabled());
}

TEST_F(SuchseiteTest, A_search_that_something_else_has_displaced_can_be_asked_for_again) {
    Seite();
    Knopf("cmdSuchen").click();
    Fenster().Entfalle();
    EXPECT_TRUE(Knopf("cmdSuchen").isEnabled());
    EXPECT_FALSE(Knopf("cmdCancel").isEnabled());
}

TEST_F(SuchseiteTest, The_results_follow_the_language) {
    Finde();
    SetzeSprachoffset(Englisch);
    Fenster().Lokalisiere();
    EXPECT_EQ(Zelle("lstVersuche", 0, 3), "controller found");
    EXPECT_NE(Text("lblFund").find("Serial number: VM-2024-00017\nAddress: 17"), std::string::npos);
    EXPECT_NE(Text("lblSuchstand").find("Search of "), std::string::npos);
    EXPECT_EQ(Knopf("cmdVerwenden").text(), "Use and &connect");
}

} // namespace varnoth
