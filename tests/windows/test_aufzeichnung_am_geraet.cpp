// A recording in the main window: whose it is, and what its mark says of live data.

#include "frmmaintest.h"

#include "dateieingabe.h"
#include "dateien.h"
#include "ereignisse.h"
#include "programmversion.h"
#include "vrecleser.h"

#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

namespace varnoth {

class AufzeichnungAmGeraetTest : public pruefung::FrmMainTest {
protected:
    AufzeichnungAmGeraetTest() {
        einstellungen.texte[{"Aufzeichnung", "Ordner"}] = ordner.path().toStdString();
        einstellungen.texte[{"Aufzeichnung", "Csv"}] = "0";
    }

    void Schalte() { Waehle("tlbAufzeichnung"); }
    QString Marke() { return Fenster().findChild<QPushButton*>("cmdAufzeichnungsmarke")->text(); }
    Messangaben AngabenDerDatei() const {
        const QStringList dateien = QDir(ordner.path()).entryList({"*.vrec"});
        EXPECT_EQ(dateien.size(), 1);
        Vrecleser leser(OeffneEingabe(ordner.filePath(dateien.value(0)).toStdString()).datei);
        while (leser.Arbeite()) {
        }
        return leser.Angaben();
    }

    QTemporaryDir ordner;
};

TEST_F(AufzeichnungAmGeraetTest, Names_the_controller_that_answers_and_the_program) {
    MissEinmal({32, 0, 0, 0});
    Schalte();
    Schalte();
    const Messangaben angaben = AngabenDerDatei();
    EXPECT_EQ(angaben.bezeichnung, "Varnoth");
    EXPECT_EQ(angaben.seriennummer, "4711");
    EXPECT_EQ(angaben.programm, Programmversion());
}

TEST_F(AufzeichnungAmGeraetTest, Names_no_controller_where_none_has_answered) {
    Schalte();
    Schalte();
    const Messangaben angaben = AngabenDerDatei();
    EXPECT_EQ(angaben.bezeichnung, "");
    EXPECT_EQ(angaben.seriennummer, "");
    EXPECT_EQ(angaben.programm, Programmversion());
}

TEST_F(AufzeichnungAmGeraetTest, A_note_typed_in_the_trend_stands_in_the_record_and_among_the_events) {
    MissEinmal({32, 0, 0, 0});
    Schalte();
    Waehle("tlbVerlauf");
    QWidget* const verlauf = Offenes("frmVerlauf");
    ASSERT_NE(verlauf, nullptr);
    verlauf->findChild<QLineEdit*>("txtNotiz")->setText("web changed");
    verlauf->findChild<QPushButton*>("cmdNotizJetzt")->click();
    verlauf->close();
    Schalte();
    EXPECT_EQ(AngabenDerDatei().seriennummer, "4711");
    const QString datei = ordner.filePath(QDir(ordner.path()).entryList({"*.vrec"}).value(0));
    EXPECT_NE(LiesDatei(datei.toStdString(), 1 << 20).bytes.find("web changed"), std::string::npos);
    const auto& ereignisse = modEreignisse::Alle();
    int notizen = 0;
    for (std::uint64_t i = ereignisse.Erstes(); i < ereignisse.Ende(); ++i)
        notizen += ereignisse.Hole(i).art == Ereignisart::Notiz && ereignisse.Hole(i).text == "web changed";
    EXPECT_EQ(notizen, 1);
}

TEST_F(AufzeichnungAmGeraetTest, A_click_on_the_mark_shows_the_recordings) {
    Schalte();
    Fenster().findChild<QPushButton*>("cmdAufzeichnungsmarke")->click();
    Fenster().MenuAusführen();
    EXPECT_NE(Offenes("frmAufzeichnung"), nullptr);
    Schalte();
}

TEST_F(AufzeichnungAmGeraetTest,
       The_mark_tells_passes_a_second_while_live_data_runs_and_its_absence_otherwise) {
    MissEinmal({32, 0, 0, 0});
    Schalte();
    EXPECT_TRUE(Marke().endsWith("/s")) << Marke().toStdString();
    Waehle("mnuMessdatenVisualisierenStop");
    EXPECT_TRUE(pruefung::WarteBis([this] { return Marke().endsWith("keine Live-Daten"); }));
    Schalte();
}

TEST_F(AufzeichnungAmGeraetTest, The_mark_tells_that_the_connection_is_lost) {
    MissEinmal({32, 0, 0, 0});
    Schalte();
    geraet.schweige = [](const std::string&) { return true; };
    modPolling::PollingZyklus();
    ASSERT_TRUE(modPolling::VerbindungVerloren());
    EXPECT_TRUE(pruefung::WarteBis([this] { return Marke().endsWith("keine Live-Daten"); }));
    Schalte();
}

} // namespace varnoth
