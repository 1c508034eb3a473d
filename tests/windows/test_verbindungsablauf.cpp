#include "verbindungsablauf.h"

#include "bedienelement.h"
#include "fenstertest.h"
#include "geraetepfade.h"
#include "pruefgeraet.h"
#include "schnittstelle.h"
#include "texte.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace varnoth {

namespace {

/// A terminal that stands for a port, under a name in a folder.
class Portersatz {
public:
    explicit Portersatz(const QString& name) : pfad(name), meister(posix_openpt(O_RDWR | O_NOCTTY)) {
        grantpt(meister);
        unlockpt(meister);
        QFile::link(QString::fromLocal8Bit(ptsname(meister)), pfad);
    }
    Portersatz(const Portersatz&) = delete;
    Portersatz& operator=(const Portersatz&) = delete;
    ~Portersatz() {
        QFile::remove(pfad);
        close(meister);
    }
    std::string Pfad() const { return pfad.toStdString(); }

private:
    QString pfad;
    int meister;
};

} // namespace

/// The connection window over a program that writes down what is asked of it.
class VerbindungsablaufTest : public testing::Test {
protected:
    VerbindungsablaufTest() {
        qputenv("VARNOTH_PORTS", ordner.path().toLocal8Bit());
        einstellungen.texte[{"Settings", "ComGeraet1"}] = "/nowhere/1";
        einstellungen.texte[{"Settings", "ComGeraet2"}] = "/nowhere/2";
        modSchnittstelle::SetzeComPort(1);
        port.anschluss = {.geraet = "/nowhere/1"};
        ablauf = std::make_unique<Verbindungsablauf>(Verbindungsablauf::Ziel{
            .klick = [this](Befehl befehl) { klicks.push_back(befehl); },
            .wartetAuf = [this](Befehl befehl) { return !klicks.empty() && klicks.back() == befehl; },
            .unterbrochen = [this] { return unterbrochen; },
            .nimmPort =
                [this](int nummer) {
                    genommen.push_back(nummer);
                    modSchnittstelle::SetzeComPort(static_cast<std::int16_t>(nummer));
                },
            .amPort =
                [this](const std::function<void()>& tat) {
                    ++geliehen;
                    tat();
                },
            .immerSimuliert = [this] { return immerSimuliert; }});
        ablauf->Zeige(false);
    }
    ~VerbindungsablaufTest() override { qunsetenv("VARNOTH_PORTS"); }

    static QWidget& Fenster() {
        for (QWidget* const fenster : QApplication::topLevelWidgets())
            if (fenster->objectName() == "frmVerbindung")
                return *fenster;
        throw std::out_of_range("frmVerbindung");
    }
    template<class Element>
    static Element& Teil(const char* name) {
        return pruefung::Kind<Element>(Fenster(), name);
    }
    static QPushButton& Knopf(const char* name) { return Teil<QPushButton>(name); }
    static std::string Text(const char* name) { return Teil<QLabel>(name).text().toStdString(); }
    /// All that the list of ports says of a device; empty where it does not stand there.
    static QString Portzeile(const std::string& pfad) {
        const auto& ports = Teil<QTreeWidget>("lstPorts");
        QStringList worte;
        for (int i = 0; i < ports.topLevelItemCount(); ++i)
            for (int spalte = 0;
                 ports.topLevelItem(i)->text(0).toStdString() == pfad && spalte < ports.columnCount();
                 ++spalte)
                worte += ports.topLevelItem(i)->text(spalte);
        return worte.join(' ');
    }
    std::string Eintrag(const char* schluessel) { return einstellungen.texte[{"Settings", schluessel}]; }
    static void Tippe(const char* box, const char* text) { Teil<QComboBox>(box).setEditText(text); }
    /// Asks for a search of the port of the folder alone, whatever this machine has, and lets it run.
    void SucheAnErsatz() {
        ablauf->Erneuere();
        auto& ports = Teil<QTreeWidget>("lstSuchports");
        for (int i = 0; i < ports.topLevelItemCount(); ++i)
            ports.topLevelItem(i)->setCheckState(
                0, ports.topLevelItem(i)->text(0).startsWith(ordner.path()) ? Qt::Checked : Qt::Unchecked);
        Knopf("cmdSuchen").click();
        ablauf->FuehreSucheAus();
    }

    QTemporaryDir ordner;
    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    pruefung::PruefPort port{umgebung};
    pruefung::PruefGeraet geraet{port};
    std::vector<Befehl> klicks;
    std::vector<int> genommen;
    int geliehen = 0;
    bool unterbrochen = false;
    bool immerSimuliert = false;
    std::unique_ptr<Verbindungsablauf> ablauf;
};

TEST_F(VerbindungsablaufTest, It_shows_what_the_settings_say) {
    EXPECT_EQ(Teil<QComboBox>("cboGeraet_1").currentText(), "/nowhere/1");
    EXPECT_EQ(Teil<QComboBox>("cboGeraet_3").currentText().toStdString(), UeblichesGeraet(3));
    EXPECT_EQ(Text("lblGeraet_1"), "nicht da");
    EXPECT_TRUE(Teil<QRadioButton>("optCom_1").isChecked());
}

TEST_F(VerbindungsablaufTest, A_device_of_the_settings_stands_among_the_ports_and_says_what_it_is) {
    einstellungen.texte[{"Settings", "ComGeraet3"}] = "/dev/null";
    ablauf->Erneuere();
    EXPECT_TRUE(Portzeile("/dev/null").contains("keine serielle Schnittstelle"));
    EXPECT_EQ(Portzeile("/nowhere/2"), "") << "it is not there";
}

TEST_F(VerbindungsablaufTest, A_port_that_the_program_has_open_is_said_to_be_its_own) {
    const Portersatz ersatz(ordner.filePath("adapter"));
    port.anschluss = {.geraet = ersatz.Pfad()};
    ablauf->Erneuere();
    const QString frei = Portzeile(ersatz.Pfad());
    EXPECT_NE(frei, "");
    modSchnittstelle::OpenCommPort();
    ablauf->Erneuere();
    EXPECT_TRUE(Portzeile(ersatz.Pfad()).contains(QString::fromStdString(LadeText(8319))))
        << Portzeile(ersatz.Pfad()).toStdString();
    modSchnittstelle::CloseCommPort();
    ablauf->Erneuere();
    EXPECT_EQ(Portzeile(ersatz.Pfad()), frei);
}

TEST_F(VerbindungsablaufTest, That_the_built_in_controller_answers_is_said_and_whether_nothing_else_will) {
    EXPECT_EQ(Text("lblHinweis"), "");
    port.anschluss = {.simuliert = true};
    ablauf->Erneuere();
    EXPECT_EQ(Text("lblHinweis"), LadeText(8339));
    immerSimuliert = true;
    ablauf->Erneuere();
    EXPECT_EQ(Text("lblHinweis"), LadeText(8340));
}

TEST_F(VerbindungsablaufTest, It_opens_at_the_page_of_the_search_where_that_is_wanted) {
    EXPECT_FALSE(Knopf("cmdSuchen").isVisible());
    ablauf->Zeige(true);
    EXPECT_TRUE(Knopf("cmdSuchen").isVisible());
}

TEST_F(VerbindungsablaufTest, It_follows_the_language_and_closes_with_the_program) {
    SetzeSprachoffset(Englisch);
    ablauf->Lokalisiere();
    EXPECT_EQ(Text("lblGeraet_1"), "not there");
    ablauf->Schliesse();
    EXPECT_FALSE(Fenster().isVisible());
}

TEST_F(VerbindungsablaufTest, A_device_that_is_not_in_use_is_entered_at_once_and_live_data_runs_on) {
    Tippe("cboGeraet_2", "/dev/other");
    Knopf("cmdUebernehmen").click();
    EXPECT_EQ(Eintrag("ComGeraet2"), "/dev/other");
    EXPECT_TRUE(klicks.empty());
    EXPECT_TRUE(genommen.empty());
    EXPECT_EQ(einstellungen.geschrieben, 1) << "nothing else is written";
    EXPECT_EQ(Text("lblErgebnis"), "Übernommen; gilt ab der nächsten Verbindung.");
}

TEST_F(VerbindungsablaufTest, What_the_connection_uses_is_changed_by_a_command_that_stops_live_data) {
    Tippe("cboGeraet_1", "/dev/other");
    Tippe("cboFormat", "9600,e,8,1");
    Knopf("cmdUebernehmen").click();
    EXPECT_EQ(klicks, std::vector{Befehl::AnschlussUebernehmen});
    EXPECT_EQ(Eintrag("ComGeraet1"), "/nowhere/1") << "not before the command runs";
    ablauf->FuehreUebernahmeAus();
    EXPECT_EQ(Eintrag("ComGeraet1"), "/dev/other");
    EXPECT_EQ(Eintrag("ComSettings"), "9600,e,8,1");
    EXPECT_EQ(modSchnittstelle::GetComSettings(), "9600,e,8,1");
    EXPECT_EQ(genommen, std::vector{1});
    EXPECT_EQ(klicks.size(), 1U) << "it does not connect";
}

TEST_F(VerbindungsablaufTest, Another_number_is_used_and_kept) {
    Teil<QRadioButton>("optCom_2").click();
    Knopf("cmdUebernehmen").click();
    ablauf->FuehreUebernahmeAus();
    EXPECT_EQ(genommen, std::vector{2});
    EXPECT_EQ(Eintrag("ComPort"), "2");
    EXPECT_TRUE(Teil<QRadioButton>("optCom_2").isChecked());
}

TEST_F(VerbindungsablaufTest, Connecting_follows_once_the_choice_is_in_force) {
    Knopf("cmdVerbinden").click();
    ablauf->FuehreUebernahmeAus();
    EXPECT_EQ(klicks, (std::vector{Befehl::AnschlussUebernehmen, Befehl::VisualisierenStart}));
}

TEST_F(VerbindungsablaufTest, A_choice_ends_the_device_that_was_named_for_the_run) {
    SetzeGeraetepfad("/dev/pts/7");
    ablauf->Erneuere();
    EXPECT_NE(Text("lblHinweis").find("/dev/pts/7"), std::string::npos);
    Knopf("cmdUebernehmen").click();
    ablauf->FuehreUebernahmeAus();
    EXPECT_EQ(GeraetDiesesLaufs(), "");
    EXPECT_EQ(genommen, std::vector{1});
}

TEST_F(VerbindungsablaufTest, A_file_a_folder_and_another_device_are_no_serial_ports) {
    for (const std::string& keiner : {ordner.path().toStdString(), std::string("/dev/null")}) {
        Tippe("cboGeraet_2", keiner.c_str());
        EXPECT_EQ(Text("lblGeraet_2"), "keine serielle Schnittstelle") << keiner;
    }
}

TEST_F(VerbindungsablaufTest, A_port_that_appears_is_found_by_its_controller_and_used) {
    const Portersatz ersatz(ordner.filePath("adapter"));
    SucheAnErsatz();
    EXPECT_EQ(klicks, std::vector{Befehl::GeraetSuchen});
    EXPECT_EQ(geliehen, 1) << "a real port is needed for it";
    EXPECT_NE(Text("lblFund").find("Port: " + ersatz.Pfad() + ", Format 38400,n,8,2"), std::string::npos);
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
    Knopf("cmdVerwenden").click();
    ablauf->FuehreUebernahmeAus();
    EXPECT_EQ(Eintrag("ComGeraet1"), ersatz.Pfad());
    EXPECT_EQ(klicks.back(), Befehl::VisualisierenStart);
}

TEST_F(VerbindungsablaufTest, A_silent_port_is_tried_with_every_format_and_that_is_said) {
    geraet.schweige = [](const std::string&) { return true; };
    const Portersatz ersatz(ordner.filePath("adapter"));
    SucheAnErsatz();
    EXPECT_EQ(Teil<QTreeWidget>("lstVersuche").topLevelItemCount(), static_cast<int>(Suchformate().size()));
    EXPECT_NE(Text("lblSuchstand").find("Kein Steuergerät gefunden"), std::string::npos);
}

TEST_F(VerbindungsablaufTest, Another_command_or_the_end_of_the_program_ends_a_search) {
    geraet.schweige = [](const std::string&) { return true; };
    umgebung.Plane(umgebung.uhr + std::chrono::milliseconds(100), [this] { unterbrochen = true; });
    const Portersatz ersatz(ordner.filePath("adapter"));
    SucheAnErsatz();
    EXPECT_LE(Teil<QTreeWidget>("lstVersuche").topLevelItemCount(), 1);
    EXPECT_NE(Text("lblSuchstand").find("Suche abgebrochen"), std::string::npos);
}

TEST_F(VerbindungsablaufTest, Closing_the_window_ends_a_search) {
    geraet.schweige = [](const std::string&) { return true; };
    umgebung.Plane(umgebung.uhr + std::chrono::milliseconds(100), [] { Fenster().close(); });
    const Portersatz ersatz(ordner.filePath("adapter"));
    SucheAnErsatz();
    EXPECT_LE(Teil<QTreeWidget>("lstVersuche").topLevelItemCount(), 1);
}

TEST_F(VerbindungsablaufTest, A_search_that_another_click_has_displaced_is_not_waited_for) {
    const Portersatz ersatz(ordner.filePath("adapter"));
    ablauf->Erneuere();
    Knopf("cmdSuchen").click();
    ablauf->Erneuere();
    EXPECT_FALSE(Knopf("cmdSuchen").isEnabled()) << "it waits still";
    klicks.push_back(Befehl::Info);
    ablauf->Erneuere();
    EXPECT_TRUE(Knopf("cmdSuchen").isEnabled());
}

TEST_F(VerbindungsablaufTest, The_line_check_asks_two_hundred_times_and_shows_its_numbers) {
    Knopf("cmdPruefen").click();
    EXPECT_EQ(klicks, std::vector{Befehl::LeitungPruefen});
    ablauf->FuehrePruefungAus();
    EXPECT_EQ(Teil<QTreeWidget>("lstZahlen").topLevelItem(1)->text(1), "200");
    EXPECT_FALSE(Text("lblDeutung").empty());
    EXPECT_EQ(geliehen, 0) << "the line in use is what is checked";
}

TEST_F(VerbindungsablaufTest, The_line_check_is_stopped) {
    umgebung.Plane(umgebung.uhr + std::chrono::milliseconds(100), [] { Knopf("cmdAnhalten").click(); });
    Knopf("cmdPruefen").click();
    ablauf->FuehrePruefungAus();
    EXPECT_LT(Teil<QTreeWidget>("lstZahlen").topLevelItem(0)->text(1).toInt(), 200);
    EXPECT_TRUE(Knopf("cmdPruefen").isEnabled());
}

TEST_F(VerbindungsablaufTest, A_cancelled_search_does_not_cancel_the_next) {
    const Portersatz ersatz(ordner.filePath("adapter"));
    ablauf->Erneuere();
    Knopf("cmdSuchen").click();
    Knopf("cmdCancel").click();
    ablauf->FuehreSucheAus();
    EXPECT_NE(Text("lblSuchstand").find("Suche abgebrochen"), std::string::npos);
    SucheAnErsatz();
    EXPECT_NE(Text("lblFund"), "");
}

} // namespace varnoth
