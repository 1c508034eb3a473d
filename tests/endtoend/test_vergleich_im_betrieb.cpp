// The comparison with a controller at the line.

#include "programmtest.h"

#include "dateidialog.h"
#include "frmVergleich.h"
#include "polling.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "sicherungen.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTreeWidget>
#include <gmock/gmock.h>

namespace varnoth::pruefung {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

const QString Lesedialog = QStringLiteral("frmKonfigurationLesenAusHardware");

} // namespace

class VergleichImBetrieb : public ProgrammTest {
protected:
    frmVergleich& Vergleich() {
        if (SichtbaresFenster("frmVergleich") == nullptr) {
            EXPECT_TRUE(FuehreAus("mnuVergleich"));
        }
        return dynamic_cast<frmVergleich&>(*SichtbaresFenster("frmVergleich"));
    }
    /// Group and name of each row that is shown.
    std::vector<std::string> Zeilen() {
        std::vector<std::string> zeilen;
        for (QTreeWidgetItemIterator i(&Kind<QTreeWidget>(Vergleich(), "trvVergleich"),
                                       QTreeWidgetItemIterator::NotHidden);
             *i != nullptr; ++i)
            if ((*i)->parent() != nullptr)
                zeilen.push_back(((*i)->parent()->text(0) + ": " + (*i)->text(0)).toStdString());
        return zeilen;
    }
    std::string Label(const char* name) { return Kind<QLabel>(Vergleich(), name).text().toStdString(); }
    void WaehleQuelle(const char* liste, Vergleichsquelle quelle) {
        QComboBox& box = Kind<QComboBox>(Vergleich(), liste);
        emit box.activated(box.findData(static_cast<int>(quelle)));
    }
    /// Reads the controller for the left side.
    bool LiesGeraet() {
        WaehleQuelle("cboSeiteA", Vergleichsquelle::Geraet);
        return LaufeBis([this] { return !Hauptfenster().BefehlWartet(); }) &&
               Vergleich().Paar().Seite(Seitenwahl::A).quelle == Vergleichsquelle::Geraet;
    }
    static void Setze(Speicherbereich bereich, std::int16_t adresse, std::int32_t wert, int teil = 0) {
        EXPECT_TRUE(modDaten::SetzeRegister(bereich, adresse, wert, teil));
    }
    /// Slow enough for the user to see the progress, then silent once so much is read; the user then cancels.
    void SchweigeNach(int schritte) {
        geraet->Befehl("fault late=20");
        const auto dialog = [] { return SichtbaresFenster(Lesedialog); };
        fahrer.Sobald(
            [dialog, schritte] {
                return dialog() != nullptr &&
                       Kind<QProgressBar>(*dialog(), "pbFortschritt").value() >= schritte;
            },
            [this] {
                geraet->Befehl("fault none");
                geraet->Befehl("fault silence");
            });
        fahrer.Sobald(
            [dialog] {
                return dialog() != nullptr && Kind<QLineEdit>(*dialog(), "txtLeseversuch").text().toInt() > 1;
            },
            [dialog] { Klicke(*dialog(), "cmdCancel"); });
    }
};

TEST_F(VergleichImBetrieb, Five_settings_that_were_changed_are_exactly_what_differs_from_the_last_read) {
    GeheLive({"--beams", "32,16,0,0"});
    Setze(Global, global::PnpAusgang, 0x41);
    Setze(Spezifisch, spezifisch::Reichweite, 1, 0);
    Setze(Spezifisch, spezifisch::Lochgroesse, 9, 1);
    Setze(Kommunikation, kommunikation::Stationsadresse, 77);
    Setze(Kommunikation, kommunikation::Pausenzeit, 1234);
    EXPECT_THAT(Zeilen(),
                ElementsAre("Global: PNP-Ausgang", "Optikteil 1: Reichweite", "Optikteil 2: Lochgröße/breite",
                            "Kommunikation: Stations Adresse", "Kommunikation: Pausenzeit für Antwort"));
    EXPECT_THAT(Label("lblBefund"), StartsWith("5 Unterschiede."));
    EXPECT_TRUE(LaufeDurchgaenge(1)) << "live data goes on beside the window";
}

TEST_F(VergleichImBetrieb, The_controller_is_read_aside_and_live_data_goes_on_with_the_same_image) {
    GeheLive({"--beams", "32,16,0,0"});
    Setze(Spezifisch, spezifisch::Lochgroesse, 9, 0);
    geraet->Befehl("set specific 1 26 7");
    ASSERT_TRUE(LiesGeraet());
    EXPECT_THAT(Zeilen(), ElementsAre("Optikteil 1: Lochgröße/breite", "Optikteil 2: Lochgröße/breite"));
    EXPECT_THAT(Label("lblBefund"), Not(HasSubstr("nicht gelesen")));
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Lochgroesse, 0), 9);
    EXPECT_NE(modDaten::HoleRegister(Spezifisch, spezifisch::Lochgroesse, 1), 7);
    EXPECT_TRUE(LaufeDurchgaenge(1));
    EXPECT_EQ(Titel(0), "1. Optikteil online");
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Lochgroesse, 0), 9);
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(VergleichImBetrieb, Without_live_data_reading_the_controller_starts_none_and_marks_nothing_changed) {
    GeheLive({"--beams", "32,16,0,0"});
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    modDaten::LoescheGeaendert();
    ASSERT_TRUE(LiesGeraet());
    EXPECT_THAT(Label("lblBefund"), StartsWith("Kein Unterschied: Alle 26 Werte sind gleich."));
    EXPECT_EQ(modDaten::IstGeaendert(), False);
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
    EXPECT_FALSE(HatLeitungOffen());
}

TEST_F(VergleichImBetrieb, A_controller_that_goes_silent_in_the_middle_leaves_the_rest_called_not_read) {
    GeheLive({"--beams", "32,16,0,0"});
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    Vergleich();
    SchweigeNach(20);
    ASSERT_TRUE(LiesGeraet());
    geraet->Befehl("fault none");
    EXPECT_TRUE(fahrer.AllesGetan());
    EXPECT_THAT(Label("lblBefund"), HasSubstr("Nicht verglichen, weil nicht gelesen:"));
    EXPECT_THAT(Label("lblBefund"), Not(HasSubstr("Alle")));
    EXPECT_THAT(Label("lblEinzelheitA"), HasSubstr("nicht vollständig gelesen"));
    const auto& ergebnis = Vergleich().Paar().Ergebnis();
    EXPECT_GT(ergebnis.Anzahl(Vergleichsklasse::NichtLesbar), 0);
    EXPECT_GT(ergebnis.Anzahl(Vergleichsklasse::Gleich), 0);
    EXPECT_EQ(ergebnis.Unterschiede(), 0);
}

TEST_F(VergleichImBetrieb, A_controller_that_does_not_answer_at_all_leaves_the_sides_as_they_were) {
    GeheLive({"--beams", "32"});
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    geraet->Befehl("fault silence");
    Vergleich();
    InFenster("frmIdentifikationsAnforderung", [](QWidget& dialog) { Klicke(dialog, "cmdCancel"); });
    EXPECT_FALSE(LiesGeraet());
    EXPECT_EQ(Vergleich().Paar().Seite(Seitenwahl::A).quelle, Vergleichsquelle::ZuletztGelesen);
}

TEST_F(VergleichImBetrieb, A_file_is_compared_without_a_word_to_the_controller_and_taken_over_on_request) {
    GeheLive({"--beams", "32,16,0,0"});
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    SetzeDateiantwort([pfad = Pfad("line.con").toStdString()](const Dateifrage&) { return pfad; });
    ASSERT_TRUE(FuehreAus("mnuSpeichernUnter"));
    Setze(Spezifisch, spezifisch::Lochgroesse, 9, 1);
    WaehleQuelle("cboSeiteA", Vergleichsquelle::Datei);
    EXPECT_EQ(Vergleich().windowTitle().toStdString(), "Vergleich: line.con – Konfiguration in Bearbeitung");
    EXPECT_THAT(Zeilen(), ElementsAre("Optikteil 2: Lochgröße/breite"));
    EXPECT_FALSE(HatLeitungOffen());
    Kind<QAbstractButton>(Vergleich(), "cmdAlle").click();
    Kind<QAbstractButton>(Vergleich(), "cmdUebernehmen").click();
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Lochgroesse, 1), 1);
    EXPECT_THAT(Zeilen(), IsEmpty());
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST_F(VergleichImBetrieb, A_backup_is_chosen_where_the_newest_one_lies_and_without_one_that_is_said) {
    GeheLive({"--beams", "32"});
    WaehleQuelle("cboSeiteA", Vergleichsquelle::Sicherung);
    EXPECT_THAT(Meldungen(), ElementsAre("Es gibt noch keine Sicherung."));
    ASSERT_EQ(SichereGeraetestand(), "");
    const std::string pfad = DieSicherungen()->Alle().at(0).pfad;
    std::string gefragter;
    SetzeDateiantwort([&](const Dateifrage& frage) {
        gefragter = frage.ordner;
        return std::string(pfad);
    });
    WaehleQuelle("cboSeiteA", Vergleichsquelle::Sicherung);
    EXPECT_NE(gefragter, "");
    EXPECT_THAT(pfad, StartsWith(gefragter));
    EXPECT_EQ(Vergleich().Paar().Seite(Seitenwahl::A).quelle, Vergleichsquelle::Sicherung);
    EXPECT_THAT(Label("lblBefund"), StartsWith("Kein Unterschied: Alle 17 Werte sind gleich."));
}

TEST_F(VergleichImBetrieb, A_file_that_is_no_configuration_is_refused_and_the_side_stays) {
    GeheLive({"--beams", "32"});
    QFile datei(Pfad("photo.con"));
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write("no configuration");
    datei.close();
    SetzeDateiantwort([pfad = Pfad("photo.con").toStdString()](const Dateifrage&) { return pfad; });
    WaehleQuelle("cboSeiteA", Vergleichsquelle::Datei);
    EXPECT_THAT(Meldungen(), ElementsAre("Unbekanntes Dateiformat"));
    EXPECT_EQ(Vergleich().Paar().Seite(Seitenwahl::A).quelle, Vergleichsquelle::ZuletztGelesen);
}

TEST_F(VergleichImBetrieb, The_comparison_is_saved_as_text) {
    GeheLive({"--beams", "32"});
    Setze(Kommunikation, kommunikation::Stationsadresse, 77);
    SetzeDateiantwort([pfad = Pfad("compare.txt").toStdString()](const Dateifrage&) { return pfad; });
    Kind<QAbstractButton>(Vergleich(), "cmdSpeichern").click();
    QFile datei(Pfad("compare.txt"));
    ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
    const std::string text = datei.readAll().toStdString();
    EXPECT_THAT(text, StartsWith("Vergleich: Steuergerät, zuletzt gelesen – Konfiguration in Bearbeitung"));
    EXPECT_THAT(text, HasSubstr("Rechts: 4DH"));
}

TEST_F(VergleichImBetrieb, The_window_follows_the_language_and_goes_with_the_program) {
    GeheLive({"--beams", "32"});
    Vergleich();
    ASSERT_TRUE(FuehreAus("mnuEnglisch"));
    EXPECT_EQ(Vergleich().windowTitle().toStdString(),
              "Comparison: Controller, last read – Configuration being edited");
    Hauptfenster().close();
    EXPECT_TRUE(LaufeBis([] { return SichtbaresFenster("frmVergleich") == nullptr; }));
}

} // namespace varnoth::pruefung
