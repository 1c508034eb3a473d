#include "busablauf.h"

#include "dateidialog.h"
#include "dateien.h"
#include "fenstertest.h"
#include "mithoeren.h"
#include "pruefport.h"
#include "rahmen.h"
#include "texte.h"
#include "versionstext.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <unistd.h>

namespace varnoth {

using testing::HasSubstr;

/// The bus log with the files that it really writes.
class BusablaufTest : public testing::Test {
protected:
    BusablaufTest() {
        QFile datei(Pfad("varnoth.ini"));
        EXPECT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write("[Settings]\nComPort=3\n");
        datei.close();
        SetzeDateiantwort([this](const Dateifrage& frage) {
            gefragt.push_back(frage);
            return std::optional(ziel);
        });
        ablauf.Zeige();
        modMithoeren::Gesendet(Zeit(0));
        modMithoeren::Endet(Austauschart::Auftrag, LeseAnforderung(1, 193, 1),
                            modMithoeren::Ausgang::Ausgeblieben, true);
    }
    ~BusablaufTest() override { SetzeDateiantwort({}); }

    QString Pfad(const char* name) const { return ordner.filePath(QLatin1String(name)); }
    static QWidget& Fenster() {
        for (QWidget* const fenster : QApplication::topLevelWidgets())
            if (fenster->objectName() == "frmBusprotokoll")
                return *fenster;
        throw std::runtime_error("no window");
    }
    /// Presses a button and waits until something was written or said.
    bool Druecke(const char* knopf) {
        const auto gesagt = umgebung.meldungen.size();
        auto& meldung = *Fenster().findChild<QLabel*>("lblMeldung");
        EXPECT_TRUE(pruefung::WarteBis([&] {
            umgebung.ErledigeAufgeschobenes();
            return Fenster().findChild<QLabel*>("lblStand")->text().contains("1 gezeigt");
        }));
        Fenster().findChild<QPushButton*>(QLatin1String(knopf))->click();
        return pruefung::WarteBis([&] {
            umgebung.ErledigeAufgeschobenes();
            return !meldung.text().isEmpty() ||
                   umgebung.meldungen.size() > gesagt + (knopf == Support ? 1 : 0);
        });
    }
    std::string Geschriebenes() const { return LiesDatei(ziel, 1 << 20).bytes; }

    static constexpr const char* Support = "cmdSupport";
    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    pruefung::PruefPort port{umgebung};
    QTemporaryDir ordner;
    std::string ziel = Pfad("log.txt").toStdString();
    std::vector<Dateifrage> gefragt;
    Busablauf ablauf{[this] { return Pfad("varnoth.ini"); }};
};

TEST_F(BusablaufTest, Saves_the_log_where_the_user_wants_it) {
    ASSERT_TRUE(Druecke("cmdSpeichern"));
    EXPECT_THAT(Geschriebenes(), HasSubstr("Global: PNP-Ausgang  ** keine Antwort\n"));
    ASSERT_EQ(gefragt.size(), 1U);
    EXPECT_EQ(gefragt[0].filter, "Text (*.txt)|*.txt|CSV (*.csv)|*.csv");
    EXPECT_EQ(gefragt[0].name, "busprotokoll");
}

TEST_F(BusablaufTest, The_next_file_is_looked_for_in_the_folder_of_the_last) {
    ASSERT_TRUE(Druecke("cmdSpeichern"));
    EXPECT_EQ(gefragt.back().ordner, "");
    Fenster().findChild<QPushButton*>("cmdSpeichern")->click();
    ASSERT_EQ(gefragt.size(), 2U);
    EXPECT_EQ(gefragt.back().ordner, Pfad("").toStdString() + "/");
}

TEST_F(BusablaufTest, What_cannot_be_written_is_told_with_path_and_reason) {
    ziel = Pfad("missing").toStdString() + "/log.txt";
    ASSERT_TRUE(Druecke("cmdSpeichern"));
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_THAT(umgebung.meldungen[0].text, HasSubstr("missing/log.txt"));
    EXPECT_EQ(Fenster().findChild<QLabel*>("lblMeldung")->text(), "");
}

TEST_F(BusablaufTest, A_full_disk_leaves_no_half_file_and_is_told) {
    ziel = "/dev/full";
    ASSERT_TRUE(Druecke("cmdSpeichern"));
    EXPECT_GE(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(Fenster().findChild<QLabel*>("lblMeldung")->text(), "");
}

TEST_F(BusablaufTest, The_file_for_support_holds_versions_port_and_settings) {
    ASSERT_TRUE(Druecke(Support));
    const std::string datei = Geschriebenes();
    const std::string programm = Produktzeile().toStdString();
    EXPECT_NE(datei.find(programm), std::string::npos);
    EXPECT_EQ(datei.find(programm), datei.rfind(programm)) << "told once";
    EXPECT_THAT(datei, HasSubstr("Qt " + std::string(qVersion())));
    EXPECT_THAT(datei, HasSubstr("/dev/pruefung"));
    EXPECT_THAT(datei, HasSubstr("[Settings]\nComPort=3\n"));
    EXPECT_THAT(datei, HasSubstr("Global: PNP-Ausgang"));
}

TEST_F(BusablaufTest, Its_window_is_made_once_and_follows_the_language) {
    const QWidget* const fenster = &Fenster();
    SetzeSprachoffset(Englisch);
    ablauf.Lokalisiere();
    EXPECT_EQ(fenster->windowTitle().toStdString(), LadeText(8401));
    ablauf.Zeige();
    EXPECT_EQ(std::ranges::count(QApplication::topLevelWidgets(), QString("frmBusprotokoll"),
                                 [](const QWidget* eines) { return eines->objectName(); }),
              1);
}

TEST_F(BusablaufTest, At_the_end_of_the_program_the_window_goes_and_nobody_listens) {
    ablauf.Schliesse();
    EXPECT_FALSE(Fenster().isVisible());
}

} // namespace varnoth
