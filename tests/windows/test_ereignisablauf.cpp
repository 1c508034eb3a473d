#include "anwendung.h"

#include "dateidialog.h"
#include "ereignisse.h"
#include "fenstertest.h"
#include "messhoerer.h"
#include "sicherungen.h"
#include "standardkonfiguration.h"
#include "texte.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QTableView>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace varnoth {

/// The program with its built-in controller, not connected.
class EreignisablaufTest : public testing::Test {
protected:
    EreignisablaufTest() {
        EXPECT_TRUE(programm.Starte());
        programm.DieFensterumgebung().SetzeMeldungsweg([](const Meldung&) { return Antwort::Ok; });
    }
    ~EreignisablaufTest() override { SetzeDateiantwort({}); }

    Startbedingungen Bedingungen() const {
        return {.worte = {"/Simulator"},
                .programmordner = ordner.path(),
                .programmname = QStringLiteral("varnoth"),
                .sperrordner = ordner.path(),
                .datenordner = ordner.filePath(QStringLiteral("daten")),
                .splashSekunden = 0};
    }
    void Waehle(const char* aktion) {
        programm.Hauptfenster().findChild<QAction*>(QLatin1String(aktion))->trigger();
        programm.Hauptfenster().MenuAusführen();
    }
    static QWidget* Fenster() {
        for (QWidget* const fenster : QApplication::topLevelWidgets())
            if (fenster->objectName() == "frmEreignisse" && fenster->isVisible())
                return fenster;
        return nullptr;
    }
    static bool Geschah(Ereignisart art, const std::string& text = {}) {
        const Ereignisspeicher& alle = modEreignisse::Alle();
        for (std::uint64_t nummer = alle.Erstes(); nummer < alle.Ende(); ++nummer)
            if (alle.Hole(nummer).art == art && alle.Hole(nummer).text == text)
                return true;
        return false;
    }

    QTemporaryDir ordner;
    Anwendung programm{Bedingungen()};
};

TEST_F(EreignisablaufTest, The_button_opens_the_window_which_closes_with_the_program) {
    Waehle("tlbEreignisse");
    ASSERT_NE(Fenster(), nullptr);
    EXPECT_TRUE(pruefung::WarteBis([] {
        DieUmgebung().NutzeWartezeit();
        return Fenster()->findChild<QTableView*>()->model()->rowCount() > 0;
    })) << "the command that opened it is an event";
    Waehle("mnuEnglisch");
    EXPECT_EQ(Fenster()->windowTitle().toStdString(), "Events");
    programm.Hauptfenster().close();
    EXPECT_EQ(Fenster(), nullptr);
}

TEST_F(EreignisablaufTest, Commands_messages_backups_and_live_data_become_events) {
    Waehle("mnuEnglisch");
    EXPECT_TRUE(Geschah(Ereignisart::Befehl, "Englisch") || Geschah(Ereignisart::Befehl, "&Englisch"));
    ZeigeWarnung("kein Platz");
    EXPECT_TRUE(Geschah(Ereignisart::Meldung, "kein Platz"));
    EXPECT_EQ(DieSicherungen()->Lege(Standardkonfiguration(), {.zeit = std::chrono::system_clock::now()}),
              "");
    EXPECT_TRUE(Geschah(Ereignisart::Gesichert));
    modMesshoerer::Melde(Liveereignisart::Begonnen);
    EXPECT_TRUE(Geschah(Ereignisart::LiveBegonnen));
}

TEST_F(EreignisablaufTest, The_file_of_the_day_lies_in_the_folder_chosen_when_the_program_ends) {
    std::optional<Dateifrage> gefragt;
    SetzeDateiantwort([&](const Dateifrage& frage) {
        gefragt = frage;
        return ordner.path().toStdString();
    });
    Waehle("tlbEreignisse");
    Fenster()->findChild<QCheckBox*>("chkMitschrift")->click();
    ASSERT_TRUE(gefragt);
    EXPECT_EQ(gefragt->art, Dateiwahl::Ordner);
    EXPECT_EQ(gefragt->titel, "Ordner der Tagesdateien");
    ZeigeWarnung("kein Platz");
    programm.Hauptfenster().close();
    const QStringList dateien = QDir(ordner.path()).entryList({"varnoth-20*.txt"});
    ASSERT_EQ(dateien.size(), 1);
    QFile datei(ordner.filePath(dateien.front()));
    ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
    EXPECT_TRUE(datei.readAll().endsWith("  Meldung: kein Platz\n"));
}

} // namespace varnoth
