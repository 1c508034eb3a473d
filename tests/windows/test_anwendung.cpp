#include "anwendung.h"

#include "dateien.h"
#include "einstellungen.h"
#include "fenstertest.h"
#include "frmSplash.h"
#include "konfigurationsdatei.h"
#include "plausibilitaet.h"
#include "polling.h"
#include "programmsymbol.h"
#include "qttexte.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "schnittstelle.h"
#include "servicetext.h"
#include "standardkonfiguration.h"
#include "texte.h"
#include "trace.h"
#include "transaktionen.h"
#include "versionstext.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <memory>
#include <optional>
#include <vector>

namespace varnoth {

class AnwendungTest : public testing::Test {
protected:
    AnwendungTest() {
        QDir::setCurrent(ordner.path());
        qputenv("XDG_CONFIG_HOME", ordner.filePath(QStringLiteral("config")).toUtf8());
    }
    ~AnwendungTest() override {
        anwendung.reset();
        QDir::setCurrent(vorher);
        qputenv("XDG_CONFIG_HOME", konfigurationVorher);
    }

    void SchreibEinstellungen(const QByteArray& text) const {
        QFile datei(ordner.filePath(QStringLiteral("varnoth.ini")));
        ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write(text);
    }
    Startbedingungen Bedingungen(const QStringList& worte) const {
        return {.worte = worte,
                .programmordner = ordner.path(),
                .programmname = QStringLiteral("varnoth"),
                .sperrordner = ordner.path(),
                .datenordner = ordner.filePath(QStringLiteral("daten")),
                .splashSekunden = 0,
                .laengsteUebergabe = std::chrono::milliseconds(100)};
    }
    /// A configuration file with a first part of 24 beams.
    std::string LegeKonfiguration(const char* name) const {
        std::string pfad = ordner.filePath(QLatin1String(name)).toStdString();
        modDaten::LadeStandardkonfiguration();
        modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, 0, {24});
        EXPECT_EQ(ErsetzeDatei(pfad, modDaten::SpeichereKonfigurationsdatei()), "");
        modDaten::LoescheGeaendert();
        return pfad;
    }
    /// What a second start does, while events run here. Whether the running program has taken the file.
    bool UebergibVonAussen(const std::string& pfad) const {
        const QString ort = Instanzsperre(QStringLiteral("varnoth"), ordner.path()).Briefkasten();
        auto antwort = std::async(std::launch::async, [&] { return UebergibDatei(ort, pfad); });
        EXPECT_TRUE(pruefung::WarteBis(
            [&] { return antwort.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
        return antwort.get();
    }
    Anwendung& Mit(const QStringList& worte) {
        anwendung.reset();
        anwendung = std::make_unique<Anwendung>(Bedingungen(worte));
        ZeichneAuf(*anwendung);
        return *anwendung;
    }
    void ZeichneAuf(Anwendung& programm) {
        programm.DieFensterumgebung().SetzeMeldungsweg([this](const Meldung& meldung) {
            meldungen.push_back(meldung.text);
            return Antwort::Ok;
        });
    }
    /// The help file of a program that is installed in the folder's "bin".
    QString LegeInstallierteHilfeAn() const {
        QDir().mkpath(ordner.filePath(QStringLiteral("bin")));
        QDir().mkpath(ordner.filePath(QStringLiteral("share/varnoth")));
        QFile datei(ordner.filePath(QStringLiteral("share/varnoth/varnoth.hlp")));
        EXPECT_TRUE(datei.open(QIODevice::WriteOnly));
        return datei.fileName();
    }
    QByteArray Trace() const {
        QFile datei(ordner.filePath(QStringLiteral("Test.txt")));
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("missing");
    }
    bool Sichtbar(const char* name) {
        return anwendung->Hauptfenster().findChild<QAction*>(QString::fromUtf8(name))->isVisible();
    }

    QTemporaryDir ordner;
    const QString vorher = QDir::currentPath();
    const QByteArray konfigurationVorher = qgetenv("XDG_CONFIG_HOME");
    std::vector<std::string> meldungen;
    std::unique_ptr<Anwendung> anwendung;
};

TEST_F(AnwendungTest, Without_a_settings_file_the_program_is_German) {
    EXPECT_TRUE(Mit({}).Starte());
    EXPECT_EQ(GetSprachoffset(), Deutsch);
    EXPECT_EQ(anwendung->Hilfedatei(), ordner.filePath(QStringLiteral("varnoth.hlp")));
    EXPECT_TRUE(anwendung->Hauptfenster().findChild<QAction*>("mnuDeutsch")->isChecked());
}

TEST_F(AnwendungTest, The_language_in_the_settings_file_selects_English_texts_and_help) {
    SchreibEinstellungen("[Settings]\nSprache=10000\n");
    EXPECT_TRUE(Mit({}).Starte());
    EXPECT_EQ(anwendung->Hauptfenster().findChild<QAction*>("mnuBeenden")->text(), "&Exit");
    EXPECT_EQ(anwendung->Hilfedatei(), ordner.filePath(QStringLiteral("varnothE.hlp")));
    EXPECT_TRUE(anwendung->Hauptfenster().findChild<QAction*>("mnuEnglisch")->isChecked());
}

TEST_F(AnwendungTest, A_help_file_beside_the_executable_comes_before_an_installed_one) {
    const QString installiert = LegeInstallierteHilfeAn();
    Startbedingungen bedingungen = Bedingungen({});
    bedingungen.programmordner = ordner.filePath(QStringLiteral("bin"));
    anwendung = std::make_unique<Anwendung>(bedingungen);
    EXPECT_EQ(anwendung->Hilfedatei(), installiert);

    const QString daneben = ordner.filePath(QStringLiteral("bin/varnoth.hlp"));
    ASSERT_TRUE(QFile::copy(installiert, daneben));
    EXPECT_EQ(anwendung->Hilfedatei(), daneben);
}

TEST_F(AnwendungTest, A_help_file_among_the_data_of_the_system_is_found) {
    if (QSysInfo::productType() == "windows")
        GTEST_SKIP() << "the help lies beside the program alone";
    const QByteArray vorherige = qgetenv("XDG_DATA_HOME");
    const QString installiert = LegeInstallierteHilfeAn();
    qputenv("XDG_DATA_HOME", ordner.filePath(QStringLiteral("share")).toUtf8());
    Startbedingungen bedingungen = Bedingungen({});
    bedingungen.programmordner = ordner.filePath(QStringLiteral("a/place/elsewhere"));
    anwendung = std::make_unique<Anwendung>(bedingungen);
    EXPECT_EQ(anwendung->Hilfedatei(), installiert);
    qputenv("XDG_DATA_HOME", vorherige);
}

TEST_F(AnwendungTest, Any_other_language_in_the_settings_file_counts_as_German) {
    for (const char* wert : {"1", "-1", "abc", "75536", "99999999"}) {
        SchreibEinstellungen(QByteArray("[Settings]\nSprache=") + wert + "\n");
        EXPECT_TRUE(Mit({}).Starte());
        EXPECT_EQ(GetSprachoffset(), Deutsch) << wert;
    }
}

TEST_F(AnwendungTest, The_start_shows_the_main_window) {
    ASSERT_TRUE(Mit({}).Starte());
    EXPECT_TRUE(anwendung->Hauptfenster().isVisible());
}

/// Notes whether the splash was there when a child of the main window was painted first.
struct Malzeuge : QObject {
    Malzeuge() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* ziel, QEvent* ereignis) override {
        const auto* const element = qobject_cast<QWidget*>(ziel);
        if (!beimErstenMalen && ereignis->type() == QEvent::Paint && element != nullptr &&
            element->window()->inherits("varnoth::frmMain"))
            beimErstenMalen =
                std::ranges::any_of(QApplication::topLevelWidgets(), [](const QWidget* fenster) {
                    return fenster->inherits("varnoth::frmSplash");
                });
        return false;
    }
    std::optional<bool> beimErstenMalen;
};

TEST_F(AnwendungTest, The_main_window_is_painted_before_the_splash_is_made) {
    Malzeuge zeuge;
    ASSERT_TRUE(Mit({}).Starte());
    EXPECT_EQ(zeuge.beimErstenMalen, false);
}

TEST_F(AnwendungTest, A_second_instance_is_refused_with_a_message) {
    Instanzsperre erste(QStringLiteral("varnoth"), ordner.path());
    ASSERT_TRUE(erste.Belege());
    EXPECT_FALSE(Mit({}).Starte());
    EXPECT_EQ(meldungen, std::vector<std::string>{"Das Programm wurde bereits gestartet"});
}

TEST_F(AnwendungTest, A_file_of_the_command_line_is_opened_instead_of_connecting) {
    const std::string datei = LegeKonfiguration("anlage 1.con");
    EXPECT_TRUE(Mit({"/Simulator", "anlage 1.con"}).Starte());
    anwendung->Verbinde();
    EXPECT_EQ(modModbus::GetIdentText1(), "");
    anwendung->Runde();
    EXPECT_EQ(modDaten::Strahlenzahl(0), 24);
    EXPECT_EQ(modDaten::GetDateiname(), datei);
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
    EXPECT_TRUE(meldungen.empty());
}

TEST_F(AnwendungTest, A_self_test_connects_whatever_file_is_named) {
    LegeKonfiguration("a.con");
    EXPECT_TRUE(Mit({"/Selbsttest=bild", "a.con"}).Starte());
    EXPECT_FALSE(anwendung->Hauptfenster().HatUebergebene());
}

TEST_F(AnwendungTest, A_file_of_a_second_start_brings_the_window_to_the_front_and_is_opened) {
    ASSERT_TRUE(Mit({}).Starte());
    anwendung->Hauptfenster().showMinimized();
    const std::string datei = LegeKonfiguration("b.con");
    EXPECT_TRUE(UebergibVonAussen(datei));
    EXPECT_FALSE(anwendung->Hauptfenster().isMinimized());
    anwendung->Hauptfenster().MenuAusführen();
    EXPECT_EQ(modDaten::GetDateiname(), datei);
}

TEST_F(AnwendungTest, A_program_that_is_about_to_end_takes_no_file_of_a_second_start) {
    ASSERT_TRUE(Mit({}).Starte());
    anwendung->Hauptfenster().close();
    EXPECT_FALSE(UebergibVonAussen("/a.con"));
}

TEST_F(AnwendungTest, A_second_start_with_several_files_says_that_this_is_not_possible) {
    Instanzsperre erste(QStringLiteral("varnoth"), ordner.path());
    ASSERT_TRUE(erste.Belege());
    EXPECT_FALSE(Mit({"a.con", "b.con"}).Starte());
    EXPECT_EQ(meldungen, std::vector{LadeText(8810)});
}

TEST_F(AnwendungTest, A_second_start_whose_file_nobody_takes_names_it) {
    Instanzsperre erste(QStringLiteral("varnoth"), ordner.path());
    ASSERT_TRUE(erste.Belege());
    EXPECT_FALSE(Mit({"a.con"}).Starte());
    EXPECT_EQ(
        meldungen,
        std::vector{"Das laufende Programm hat die Datei nicht angenommen. Öffnen Sie sie dort, oder beenden "
                    "Sie es zuerst:\n" +
                    ordner.filePath("a.con").toStdString()});
}

TEST_F(AnwendungTest, The_service_switch_stores_the_password_and_shows_the_service_items) {
    EXPECT_TRUE(Mit({"/Pabc"}).Starte());
    EXPECT_EQ(modService::GetServiceText(), "abc             ");
    EXPECT_TRUE(Sichtbar("mnuInitHardware"));
    EXPECT_TRUE(Sichtbar("mnuEinzelwerteLesenSchreiben"));
}

TEST_F(AnwendungTest, Without_the_service_switch_the_service_items_are_hidden) {
    EXPECT_TRUE(Mit({}).Starte());
    EXPECT_EQ(modService::GetServiceText(), "");
    EXPECT_FALSE(Sichtbar("mnuInitHardware"));
    EXPECT_FALSE(Sichtbar("mnuEinzelwerteLesenSchreiben"));
}

TEST_F(AnwendungTest, The_trace_switch_twice_in_a_row_leaves_only_the_second_trace) {
    EXPECT_TRUE(Mit({"/Tlogfile"}).Starte());
    modTrace::SchreibeSendung("first run");
    EXPECT_TRUE(Mit({"/Tlogfile"}).Starte());
    EXPECT_EQ(Trace(), "Start\r\n");
}

TEST_F(AnwendungTest, A_trace_file_that_cannot_be_created_ends_the_start_with_a_warning) {
    ASSERT_TRUE(QDir(ordner.path()).mkpath(QStringLiteral("Test.txt/in-the-way")));
    EXPECT_FALSE(Mit({"/Tlogfile"}).Starte());
    ASSERT_EQ(meldungen.size(), 1U);
    EXPECT_NE(meldungen[0], "");
}

TEST_F(AnwendungTest, The_switch_for_the_port_chooses_it) {
    SchreibEinstellungen("[Settings]\nComPort=2\n");
    ASSERT_TRUE(Mit({"/Com=3"}).Starte());
    EXPECT_EQ(modSchnittstelle::GetComPort(), 3);
    const auto* const punkt = anwendung->Hauptfenster().findChild<QAction*>("mnuCom_3");
    EXPECT_TRUE(punkt->isChecked());
}

TEST_F(AnwendungTest, A_malformed_switch_does_not_keep_the_program_from_starting) {
    EXPECT_TRUE(Mit({"/X", "/Tlog", "--help", "/Com=9", "/Geraet"}).Starte());
    EXPECT_TRUE(meldungen.empty());
}

TEST_F(AnwendungTest, The_main_loop_ends_when_the_last_form_is_closed) {
    EXPECT_TRUE(Mit({}).Starte());
    EXPECT_TRUE(anwendung->Runde());
    anwendung->Hauptfenster().close();
    EXPECT_FALSE(anwendung->Runde());
}

TEST_F(AnwendungTest, With_nothing_to_do_the_main_loop_rests_until_an_event_comes) {
    ASSERT_TRUE(Mit({}).Starte());
    int runden = 0;
    const auto ende = std::chrono::steady_clock::now() + std::chrono::milliseconds(300);
    while (std::chrono::steady_clock::now() < ende) {
        ASSERT_TRUE(anwendung->Runde());
        ++runden;
    }
    EXPECT_LT(runden, 100);
}

TEST_F(AnwendungTest, It_runs_until_its_window_is_closed_and_that_is_no_failure) {
    Mit({});
    QTimer::singleShot(0, qApp, [this] { anwendung->Hauptfenster().close(); });
    EXPECT_EQ(anwendung->Laufe(), 0);
    EXPECT_FALSE(anwendung->Hauptfenster().isVisible());
}

TEST_F(AnwendungTest, A_self_test_gives_the_window_the_size_of_its_picture_and_fails_without_one) {
    Mit({"/Simulator", "/Selbsttest=" + ordner.filePath("bild")});
    const auto ende = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    bool gesehen = false;
    QTimer blick;
    QObject::connect(&blick, &QTimer::timeout, &blick, [&] {
        auto& fenster = anwendung->Hauptfenster();
        gesehen = gesehen || fenster.size() == QSize(1280, 800);
        if (gesehen || std::chrono::steady_clock::now() > ende)
            fenster.close();
    });
    blick.start(10);
    EXPECT_EQ(anwendung->Laufe(), 1);
    EXPECT_TRUE(gesehen);
    EXPECT_FALSE(QFile::exists(ordner.filePath("bild")));
}

TEST_F(AnwendungTest, A_self_test_beside_a_program_that_runs_fails) {
    Instanzsperre erste(QStringLiteral("varnoth"), ordner.path());
    ASSERT_TRUE(erste.Belege());
    EXPECT_EQ(Mit({"/Selbsttest=bild"}).Laufe(), 1);
}

TEST_F(AnwendungTest, A_window_closed_during_the_splash_is_not_connected_any_more) {
    EXPECT_TRUE(Mit({}).Starte());
    anwendung->Hauptfenster().close();
    anwendung->Verbinde();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(meldungen.empty());
}

TEST_F(AnwendungTest, With_the_simulator_switch_the_program_connects_by_itself_and_shows_live_data) {
    EXPECT_TRUE(Mit({"/Simulator"}).Starte());
    anwendung->Verbinde();
    EXPECT_TRUE(pruefung::WarteBis([this] {
        anwendung->Runde();
        return modPolling::GetDurchgaenge() >= 2;
    }));
    EXPECT_EQ(anwendung->Hauptfenster().statusBar()->findChild<QLabel*>("sbStatusBar_3")->text().isEmpty(),
              false);
    EXPECT_TRUE(meldungen.empty());
}

TEST_F(AnwendungTest, The_simulated_controller_is_chosen_in_the_running_program_and_a_port_leads_back) {
    EXPECT_TRUE(Mit({"/Geraet=" + ordner.filePath("no-such-device")}).Starte());
    auto& fenster = anwendung->Hauptfenster();
    const auto& feld = *fenster.statusBar()->findChild<QLabel*>("sbStatusBar_2");
    EXPECT_EQ(feld.text(), "COM1: 38400,n,8,2");
    fenster.findChild<QPushButton*>("cmdWillkommenSimuliert")->click();
    EXPECT_TRUE(pruefung::WarteBis([this] {
        anwendung->Runde();
        return modPolling::GetDurchgaenge() >= 2;
    }));
    EXPECT_EQ(feld.text(), "Simuliertes Steuergerät");
    EXPECT_FALSE(fenster.findChild<QAction*>("mnuCom_1")->isChecked());
    fenster.findChild<QAction*>("mnuCom_1")->trigger();
    anwendung->Runde();
    EXPECT_EQ(feld.text(), "COM1: 38400,n,8,2");
    EXPECT_TRUE(fenster.findChild<QAction*>("mnuCom_1")->isChecked());
    modSchnittstelle::OpenCommPort();
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False) << "the device of the port is not there";
    EXPECT_TRUE(meldungen.empty());
}

TEST_F(AnwendungTest, With_the_simulator_switch_every_port_leads_to_the_simulated_controller) {
    EXPECT_TRUE(Mit({"/Simulator"}).Starte());
    auto& fenster = anwendung->Hauptfenster();
    const auto& feld = *fenster.statusBar()->findChild<QLabel*>("sbStatusBar_2");
    EXPECT_EQ(feld.text(), "Simuliertes Steuergerät");
    fenster.findChild<QAction*>("mnuEnglisch")->trigger();
    anwendung->Runde();
    EXPECT_EQ(feld.text(), "Simulated controller");
    fenster.findChild<QAction*>("mnuCom_2")->trigger();
    anwendung->Runde();
    EXPECT_EQ(feld.text(), "Simulated controller");
    EXPECT_TRUE(fenster.findChild<QAction*>("mnuCom_2")->isChecked());
}

TEST_F(AnwendungTest, A_dialog_larger_than_the_screen_scrolls) {
    EXPECT_TRUE(Mit({}).Starte());
    QDialog dialog;
    (new QVBoxLayout(&dialog))->addWidget(new QLabel);
    dialog.findChild<QLabel*>()->setMinimumSize(5000, 5000);
    dialog.show();
    EXPECT_LE(dialog.height(), dialog.screen()->availableSize().height());
    EXPECT_NE(dialog.findChild<QScrollArea*>("Dialogrollbereich"), nullptr);
}

TEST_F(AnwendungTest, A_run_begins_in_the_start_state_whatever_was_before) {
    modService::SetzeServiceText("left over");
    modSchnittstelle::SetzeComPort(3);
    Mit({});
    EXPECT_EQ(modService::GetServiceText(), "");
    EXPECT_EQ(modSchnittstelle::GetComPort(), 1);
}

TEST_F(AnwendungTest, The_splash_stays_over_the_window_until_the_second_full_second_and_no_longer) {
    Startbedingungen bedingungen = Bedingungen({});
    bedingungen.splashSekunden = Startbedingungen{}.splashSekunden;
    anwendung = std::make_unique<Anwendung>(bedingungen);
    const auto splash = [] {
        const auto fenster = QApplication::topLevelWidgets();
        return std::ranges::any_of(fenster, [](const QWidget* einer) {
            return einer->isVisible() && einer->inherits("varnoth::frmSplash");
        });
    };
    const auto sekunden = [] {
        return std::chrono::floor<std::chrono::seconds>(DieUmgebung().Uhr()).count();
    };
    std::int64_t zuletztGesehen = 0;
    QTimer blick;
    QObject::connect(&blick, &QTimer::timeout, &blick, [&] {
        if (splash())
            zuletztGesehen = sekunden();
    });
    blick.start(1);
    const std::int64_t beginn = sekunden();
    EXPECT_TRUE(anwendung->Starte());
    EXPECT_FALSE(splash());
    EXPECT_GE(zuletztGesehen, beginn + 1);
    EXPECT_GE(sekunden(), beginn + 2);
    EXPECT_LE(sekunden(), beginn + 4);
}

TEST_F(AnwendungTest, An_implausible_image_takes_the_controller_of_an_open_port_out_of_autosend) {
    Mit({"/Simulator"});
    modSchnittstelle::OpenCommPort();
    ASSERT_EQ(modModbus::RTUModeH11IndentifikationsAnforderung(), True);
    modModbus::SchreibeSteuerwert2();
    ASSERT_TRUE(modModbus::AutosendGestartet());
    const auto pruefe = [] {
        ASSERT_TRUE(modDaten::SetzeRegister(Spezifisch, spezifisch::Reichweite, 6));
        EXPECT_EQ(modDaten::PruefeKonfiguration(), False);
    };
    modSchnittstelle::CloseCommPort();
    pruefe();
    EXPECT_TRUE(modModbus::AutosendGestartet()) << "nothing is sent over a port that is closed";
    modSchnittstelle::OpenCommPort();
    pruefe();
    EXPECT_FALSE(modModbus::AutosendGestartet());
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST(Splash, Shows_product_and_owner_in_the_middle_of_the_screen) {
    SetzeSprachoffset(Deutsch);
    const frmSplash splash;
    const QRect schirm = QGuiApplication::primaryScreen()->geometry();
    EXPECT_LE((splash.geometry().center() - schirm.center()).manhattanLength(), 2);
    EXPECT_EQ(splash.findChild<QLabel*>("lblProduktText")->text(), "Varnoth  Softwareversion 1.0.0");
    EXPECT_EQ(splash.findChild<QLabel*>("lblEigentuemerText")->text(), Eigentuemerzeile());
    EXPECT_EQ(splash.findChild<QLabel*>("Image1")->pixmap().toImage(),
              Programmsymbol().pixmap(QSize(72, 72)).toImage());
}

TEST(Versionstext, Is_three_numbers_joined_by_points) {
    EXPECT_EQ(Versionstext(), "1.0.0");
}

TEST(Versionstext, The_product_line_is_in_the_chosen_language) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Produktzeile(), "Varnoth  Software Version 1.0.0");
    SetzeSprachoffset(Deutsch);
}

TEST_F(AnwendungTest, Settings_that_cannot_be_stored_are_spoken_of_in_the_status_bar) {
    Mit({});
    ASSERT_TRUE(anwendung->Starte());
    QFile::remove(ordner.filePath(QStringLiteral("varnoth.ini")));
    ASSERT_TRUE(QDir().mkdir(ordner.filePath(QStringLiteral("varnoth.ini"))));
    EXPECT_FALSE(DieEinstellungen().SchreibText("Settings", "Sprache", "77"));
    const QString text =
        anwendung->Hauptfenster().statusBar()->findChild<QLabel*>(QStringLiteral("sbStatusBar_1"))->text();
    EXPECT_TRUE(text.startsWith(QString::fromStdString(LadeText(9263)))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("varnoth.ini"))) << text.toStdString();
}

} // namespace varnoth
