// The comparison in the main window: the controller read aside, files, the language.

#include "frmmaintest.h"

#include "dateidialog.h"
#include "dateien.h"
#include "frmVergleich.h"
#include "konfigurationsdatei.h"
#include "pruefsicherungen.h"

#include <QComboBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <vector>

namespace varnoth {

using testing::HasSubstr;
using testing::Not;

class VergleichsablaufTest : public pruefung::FrmMainTest {
protected:
    VergleichsablaufTest() {
        umgebung.beiEreignissen = [] { QCoreApplication::processEvents(); };
        SetzeDateiantwort([this](const Dateifrage& frage) {
            fragen.push_back(frage);
            return antwort;
        });
    }
    ~VergleichsablaufTest() override {
        fenster.reset();
        SetzeDateiantwort({});
    }
    /// A controller that was read, no live data, and the window of the comparison.
    void Beginne() {
        SchliesseAn({32, 0, 0, 0});
        Fenster().Autostart();
        Waehle("mnuMessdatenVisualisierenStop");
        Waehle("mnuVergleich");
        geraet.gelesen.clear();
    }
    static frmVergleich& Vergleich() {
        for (QWidget* const fenster : QApplication::topLevelWidgets())
            if (auto* const vergleich = qobject_cast<frmVergleich*>(fenster))
                return *vergleich;
        throw std::runtime_error("no window");
    }
    void Waehle(Seitenwahl seite, Vergleichsquelle quelle) {
        auto* const quellen =
            Vergleich().findChild<QComboBox*>(seite == Seitenwahl::A ? "cboSeiteA" : "cboSeiteB");
        emit quellen->activated(quellen->findData(static_cast<int>(quelle)));
        Fenster().MenuAusführen();
    }
    using FrmMainTest::Waehle;
    static Vergleichsquelle Quelle(Seitenwahl seite) { return Vergleich().Paar().Seite(seite).quelle; }
    static std::string Einzelheit() {
        return Vergleich().findChild<QLabel*>("lblEinzelheitA")->text().toStdString();
    }
    /// Whoever waits for the controller gives up once so many reads were answered.
    void VerstummeNach(std::size_t gelesene) {
        geraet.schweige = [this, gelesene](const std::string&) {
            const bool stumm = geraet.gelesen.size() >= gelesene;
            if (auto* const dialog = QApplication::activeModalWidget(); stumm && dialog != nullptr)
                QMetaObject::invokeMethod(dialog->findChild<QPushButton*>("cmdCancel"), "click",
                                          Qt::QueuedConnection);
            return stumm;
        };
    }

    QTemporaryDir ordner;
    std::optional<std::string> antwort;
    std::vector<Dateifrage> fragen;
};

TEST_F(VergleichsablaufTest, The_controller_takes_the_side_that_asked_for_it) {
    Beginne();
    Waehle(Seitenwahl::A, Vergleichsquelle::Geraet);
    EXPECT_EQ(Quelle(Seitenwahl::A), Vergleichsquelle::Geraet);
    EXPECT_EQ(Quelle(Seitenwahl::B), Vergleichsquelle::InBearbeitung);
    EXPECT_THAT(Einzelheit(), Not(HasSubstr("nicht vollständig gelesen")));
    EXPECT_THAT(Einzelheit(), HasSubstr("4711"));
}

TEST_F(VergleichsablaufTest, A_controller_that_falls_silent_half_read_is_called_so) {
    Beginne();
    VerstummeNach(10);
    Waehle(Seitenwahl::A, Vergleichsquelle::Geraet);
    EXPECT_EQ(Quelle(Seitenwahl::A), Vergleichsquelle::Geraet);
    EXPECT_THAT(Einzelheit(), HasSubstr("nicht vollständig gelesen"));
}

TEST_F(VergleichsablaufTest, A_controller_of_which_nothing_was_read_takes_no_side) {
    Beginne();
    VerstummeNach(0);
    Waehle(Seitenwahl::A, Vergleichsquelle::Geraet);
    EXPECT_EQ(Quelle(Seitenwahl::A), Vergleichsquelle::ZuletztGelesen);
}

TEST_F(VergleichsablaufTest, A_file_takes_the_side_that_asked_for_it_unless_the_question_is_cancelled) {
    Beginne();
    Waehle(Seitenwahl::B, Vergleichsquelle::Datei);
    EXPECT_EQ(Quelle(Seitenwahl::B), Vergleichsquelle::InBearbeitung);
    antwort = ordner.filePath("a.con").toStdString();
    ASSERT_EQ(ErsetzeDatei(*antwort, AlsKonfigurationsdatei(modDaten::DasAbbild())), "");
    Waehle(Seitenwahl::B, Vergleichsquelle::Datei);
    EXPECT_EQ(Quelle(Seitenwahl::B), Vergleichsquelle::Datei);
    EXPECT_EQ(Quelle(Seitenwahl::A), Vergleichsquelle::ZuletztGelesen);
}

TEST_F(VergleichsablaufTest, A_backup_is_looked_for_where_the_newest_lies) {
    pruefung::PruefSicherungen sicherungen;
    Beginne();
    sicherungen.gelegte.clear();
    Waehle(Seitenwahl::A, Vergleichsquelle::Sicherung);
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, "Es gibt noch keine Sicherung.");
    EXPECT_TRUE(fragen.empty());
    sicherungen.gelegte.emplace_back(Sicherung{"/backups/neu/a.con", {}}, Abbild());
    Waehle(Seitenwahl::A, Vergleichsquelle::Sicherung);
    ASSERT_EQ(fragen.size(), 1U);
    EXPECT_EQ(fragen[0].ordner, "/backups/neu/");
}

TEST_F(VergleichsablaufTest, What_differs_is_saved_where_the_user_says_and_nowhere_else) {
    Beginne();
    auto* const speichern = Vergleich().findChild<QPushButton*>("cmdSpeichern");
    speichern->click();
    EXPECT_EQ(fragen.size(), 1U);
    antwort = ordner.filePath("vergleich.txt").toStdString();
    speichern->click();
    EXPECT_THAT(LiesDatei(*antwort, 1 << 20).bytes,
                testing::StartsWith("Vergleich: Steuergerät, zuletzt gelesen"));
    EXPECT_TRUE(umgebung.meldungen.empty());
    antwort = ordner.filePath("fehlt/vergleich.txt").toStdString();
    speichern->click();
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
}

TEST_F(VergleichsablaufTest, The_window_follows_the_language_and_goes_with_the_main_window) {
    Beginne();
    Waehle("mnuEnglisch");
    EXPECT_TRUE(Vergleich().windowTitle().startsWith("Comparison: "));
    Waehle("mnuDeutsch");
    modDaten::LoescheGeaendert();
    Fenster().close();
    EXPECT_FALSE(Vergleich().isVisible());
}

TEST_F(VergleichsablaufTest, Neither_a_language_nor_a_new_configuration_needs_the_window) {
    Fenster();
    Waehle("mnuEnglisch");
    Waehle("mnuDeutsch");
    Fenster().close();
    EXPECT_THROW(Vergleich(), std::runtime_error);
}

} // namespace varnoth
