// The connection window with adapters that come and go: pseudo terminals that appear in a watched folder.

#include "programmtest.h"

#include "geraetepfade.h"
#include "polling.h"
#include "schnittstelle.h"

#include <QComboBox>
#include <QDir>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTreeWidget>
#include <gmock/gmock.h>

namespace varnoth::pruefung {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

const QString Fenstername = QStringLiteral("frmVerbindung");

} // namespace

class VerbindungImBetrieb : public ProgrammTest {
protected:
    VerbindungImBetrieb() {
        QDir(ordner.path()).mkdir("ports");
        qputenv("VARNOTH_PORTS", Pfad("ports").toLocal8Bit());
    }
    ~VerbindungImBetrieb() override { qunsetenv("VARNOTH_PORTS"); }

    /// An adapter with a controller appears.
    void SteckeEin(const QStringList& optionen = {}) {
        geraet.emplace(Pfad("ports"), QStringList{"--unpaced"} + optionen);
    }
    std::string Adapter() { return geraet->Geraet().toStdString(); }
    /// The window, opened by its command.
    QWidget& Fenster() {
        if (SichtbaresFenster(Fenstername) == nullptr) {
            EXPECT_TRUE(FuehreAus("tlbVerbindung"));
        }
        return *SichtbaresFenster(Fenstername);
    }
    QPushButton& Knopf(const QString& name) { return Kind<QPushButton>(Fenster(), name); }
    std::string Text(const QString& name) { return Kind<QLabel>(Fenster(), name).text().toStdString(); }
    QTreeWidget& Liste(const QString& name) { return Kind<QTreeWidget>(Fenster(), name); }
    /// The row of the adapter; nullptr while the window does not show it.
    QTreeWidgetItem* Zeile(const QString& liste) {
        const auto zeilen = Liste(liste).findItems(geraet->Geraet(), Qt::MatchExactly);
        return zeilen.isEmpty() ? nullptr : zeilen.constFirst();
    }
    std::string Zustand() { return Zeile("lstPorts")->text(2).toStdString(); }
    /// Searches on the adapter alone, whatever ports this machine has.
    void BeginneSuche() {
        auto& ports = Liste("lstSuchports");
        for (int i = 0; i < ports.topLevelItemCount(); ++i)
            ports.topLevelItem(i)->setCheckState(
                0, ports.topLevelItem(i)->text(0) == geraet->Geraet() ? Qt::Checked : Qt::Unchecked);
        Knopf("cmdSuchen").click();
    }
    bool LaufeBisSuchende() {
        return LaufeBis([this] { return !Hauptfenster().BefehlWartet() && Knopf("cmdSuchen").isEnabled(); });
    }
    /// Live data of a controller at COM1.
    void GeheLiveAmAdapter() {
        SteckeEin({"--beams", "32"});
        SchreibeEinstellungen("[Settings]\nComGeraet1=" + geraet->Geraet().toUtf8() + "\n");
        Starte();
        Verbinde();
        ASSERT_TRUE(LaufeBis(IstLive));
    }
};

TEST_F(VerbindungImBetrieb, A_newcomer_plugs_in_finds_the_controller_and_sees_live_data_without_a_file) {
    SchreibeEinstellungen("[Settings]\nComGeraet1=" + Pfad("nothing").toUtf8() + "\n");
    Starte();
    InFenster("frmIdentifikationsAnforderung", [](QWidget& dialog) { Klicke(dialog, "cmdCancel"); });
    Verbinde();
    auto& suchen = Kind<QPushButton>(*Hauptfenster().statusBar(), "cmdVerbindungSuchen");
    ASSERT_TRUE(LaufeBis([&] { return suchen.isVisible(); }));
    suchen.click();
    ASSERT_TRUE(LaufeBis([] { return SichtbaresFenster(Fenstername) != nullptr; }));
    EXPECT_TRUE(Liste("lstSuchports").isVisible()) << "it opens at the search";
    SteckeEin({"--beams", "32", "--format", "9600,e,8,1"});
    ASSERT_TRUE(LaufeBis([this] { return Zeile("lstSuchports") != nullptr; }, 1000)) << "within a second";
    BeginneSuche();
    ASSERT_TRUE(LaufeBisSuchende());
    EXPECT_THAT(Text("lblFund"), HasSubstr("SIM-0001"));
    EXPECT_THAT(Text("lblFund"), HasSubstr("9600,e,8,1"));
    Knopf("cmdVerwenden").click();
    ASSERT_TRUE(LaufeBis(IstLive));
    EXPECT_EQ(Titel(0), "1. Optikteil online");
    EXPECT_THAT(LiesEinstellungen().toStdString(), HasSubstr("ComGeraet1=" + Adapter() + "\n"));
    EXPECT_THAT(LiesEinstellungen().toStdString(), HasSubstr("ComSettings=9600,e,8,1\n"));
    EXPECT_THAT(Statusfeld(2), StartsWith("COM1: 9600,e,8,1"));
}

TEST_F(VerbindungImBetrieb, What_was_found_is_used_at_the_next_start_too) {
    SteckeEin({"--beams", "32", "--format", "9600,e,8,1"});
    Starte();
    Fenster();
    BeginneSuche();
    ASSERT_TRUE(LaufeBisSuchende());
    Kind<QComboBox>(Fenster(), "cboFundCom").setCurrentIndex(2);
    Knopf("cmdVerwenden").click();
    ASSERT_TRUE(LaufeBis(IstLive));
    Beende();
    Starte();
    Verbinde();
    EXPECT_TRUE(LaufeBis(IstLive));
    EXPECT_THAT(Statusfeld(2), StartsWith("COM3: 9600,e,8,1"));
}

TEST_F(VerbindungImBetrieb, A_search_rests_live_data_and_leaves_it_as_it_was) {
    GeheLiveAmAdapter();
    EXPECT_EQ((Fenster(), Zustand()), "in diesem Programm offen");
    BeginneSuche();
    ASSERT_TRUE(LaufeBisSuchende());
    EXPECT_THAT(Text("lblFund"), HasSubstr("38400,n,8,2"));
    EXPECT_TRUE(LaufeDurchgaenge(2));
    EXPECT_EQ(Titel(0), "1. Optikteil online");
    EXPECT_EQ(modSchnittstelle::GetComSettings(), "38400,n,8,2");
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(VerbindungImBetrieb, A_search_without_a_find_changes_nothing) {
    GeheLiveAmAdapter();
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    const QByteArray vorher = LiesEinstellungen();
    geraet->Befehl("fault silence");
    Fenster();
    fahrer.Sobald([this] { return Liste("lstVersuche").topLevelItemCount() > 2; },
                  [this] { Knopf("cmdCancel").click(); });
    BeginneSuche();
    ASSERT_TRUE(LaufeBisSuchende());
    EXPECT_THAT(Text("lblSuchstand"), HasSubstr("abgebrochen"));
    EXPECT_EQ(LiesEinstellungen(), vorher);
    EXPECT_EQ(modSchnittstelle::GetComSettings(), "38400,n,8,2");
    EXPECT_FALSE(HatLeitungOffen());
    geraet->Befehl("fault none");
    Verbinde();
    EXPECT_TRUE(LaufeBis(IstLive));
}

TEST_F(VerbindungImBetrieb, A_search_does_not_keep_the_program_from_ending) {
    SteckeEin({"--beams", "32"});
    geraet->Befehl("fault silence");
    Starte();
    Fenster();
    fahrer.Sobald([this] { return Liste("lstVersuche").topLevelItemCount() > 0; },
                  [this] { Hauptfenster().close(); });
    BeginneSuche();
    EXPECT_TRUE(LaufeBis([this] { return Hauptfenster().OffeneFormulare() == 0; }, 2000));
}

TEST_F(VerbindungImBetrieb, An_adapter_that_vanishes_during_the_search_is_said_and_the_program_lives_on) {
    SteckeEin({"--beams", "32"});
    geraet->Befehl("fault silence");
    Starte();
    Fenster();
    fahrer.Sobald([this] { return Liste("lstVersuche").topLevelItemCount() > 1; },
                  [this] { geraet->Beende(); });
    BeginneSuche();
    ASSERT_TRUE(LaufeBis([this] { return !Hauptfenster().BefehlWartet(); }));
    EXPECT_THAT(Text("lblSuchstand"), HasSubstr("Kein Steuergerät gefunden"));
    EXPECT_TRUE(LaufeBis([this] { return Zeile("lstPorts") == nullptr; }, 1500));
}

TEST_F(VerbindungImBetrieb, A_port_that_another_program_holds_is_named_with_it_and_not_called_free) {
    SteckeEin({"--beams", "32"});
    QProcess anderer;
    anderer.start("sh", {"-c", "exec 3<>" + geraet->Geraet() + "; echo da; cat"});
    ASSERT_TRUE(anderer.waitForReadyRead());
    Starte();
    Fenster();
    EXPECT_TRUE(LaufeBis([this] { return Zustand() != "frei"; }, 4000));
    EXPECT_THAT(Zustand(), testing::MatchesRegex("belegt durch .*cat \\([0-9]+\\).*"));
    anderer.closeWriteChannel();
    ASSERT_TRUE(anderer.waitForFinished());
    EXPECT_TRUE(LaufeBis([this] { return Zustand() == "frei"; }, 4000));
}

TEST_F(VerbindungImBetrieb, Another_number_with_another_controller_needs_no_restart) {
    GeheLiveAmAdapter();
    Simulatorprozess zweites({"--unpaced", "--beams", "16"});
    Fenster();
    Kind<QRadioButton>(Fenster(), "optCom_2").click();
    Kind<QComboBox>(Fenster(), "cboGeraet_2").setEditText(zweites.Geraet());
    Knopf("cmdUebernehmen").click();
    ASSERT_TRUE(LaufeBis([this] { return !Hauptfenster().BefehlWartet(); }));
    EXPECT_EQ(modPolling::GetPollingAktiv(), False) << "as after the menu command";
    EXPECT_THAT(Statusfeld(2), StartsWith("COM2:"));
    EXPECT_TRUE(Aktion("mnuCom_2").isChecked());
    Knopf("cmdVerbinden").click();
    ASSERT_TRUE(LaufeBis(IstLive));
    EXPECT_THAT(LiesEinstellungen().toStdString(),
                HasSubstr("ComGeraet2=" + zweites.Geraet().toStdString() + "\n"));
    EXPECT_THAT(LiesEinstellungen().toStdString(), HasSubstr("ComPort=2\n"));
}

TEST_F(VerbindungImBetrieb, The_line_check_tells_a_line_in_order_and_live_data_goes_on) {
    GeheLiveAmAdapter();
    Fenster();
    Knopf("cmdPruefen").click();
    ASSERT_TRUE(
        LaufeBis([this] { return !Hauptfenster().BefehlWartet() && Knopf("cmdPruefen").isEnabled(); }));
    EXPECT_EQ(Liste("lstZahlen").topLevelItem(1)->text(1), "200");
    EXPECT_THAT(Text("lblDeutung"), HasSubstr("Die Leitung ist in Ordnung."));
    EXPECT_TRUE(LaufeDurchgaenge(2));
}

TEST_F(VerbindungImBetrieb, The_line_check_finds_an_echo) {
    SteckeEin({"--beams", "32", "--echo"});
    SchreibeEinstellungen("[Settings]\nComGeraet1=" + geraet->Geraet().toUtf8() + "\n");
    Starte();
    Fenster();
    Knopf("cmdPruefen").click();
    ASSERT_TRUE(
        LaufeBis([this] { return !Hauptfenster().BefehlWartet() && Knopf("cmdPruefen").isEnabled(); }));
    EXPECT_THAT(Text("lblDeutung"), StartsWith("Was gesendet wird, kommt zurück"));
}

TEST_F(VerbindungImBetrieb, The_built_in_controller_rests_while_real_ports_are_searched_and_is_back_after) {
    SteckeEin({"--beams", "32", "--format", "9600,e,8,1"});
    Starte({"/Simulator"});
    Verbinde();
    ASSERT_TRUE(LaufeBis(IstLive));
    Fenster();
    EXPECT_THAT(Text("lblHinweis"), HasSubstr("/Simulator"));
    BeginneSuche();
    ASSERT_TRUE(LaufeBisSuchende());
    EXPECT_THAT(Text("lblFund"), HasSubstr("9600,e,8,1"));
    EXPECT_TRUE(LaufeDurchgaenge(2));
    EXPECT_TRUE(modSchnittstelle::GetAnschluss().simuliert);
}

TEST_F(VerbindungImBetrieb, The_window_follows_the_language_and_goes_with_the_program) {
    SteckeEin({"--beams", "32"});
    Starte();
    Fenster();
    ASSERT_TRUE(FuehreAus("mnuEnglisch"));
    EXPECT_EQ(Fenster().windowTitle(), "Set up the connection");
    EXPECT_EQ(Zustand(), "free");
    Hauptfenster().close();
    EXPECT_TRUE(LaufeBis([] { return SichtbaresFenster(Fenstername) == nullptr; }));
}

} // namespace varnoth::pruefung
