#include "frmVerlauf.h"

#include "bedienelement.h"
#include "darstellung.h"
#include "fenstertest.h"
#include "pruefdurchgaenge.h"
#include "pruefmessanbieter.h"
#include "pruefumgebung.h"
#include "texte.h"
#include "verlaufsbild.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;
using std::chrono::milliseconds;
using std::chrono::seconds;
using testing::HasSubstr;

namespace {

struct frmVerlaufTest : testing::Test {
    frmVerlauf& Oeffne() {
        fenster = std::make_unique<frmVerlauf>(anbieter);
        fenster->show();
        Erledige();
        return *fenster;
    }
    template<class Element>
    Element& Kind(const char* name) {
        return pruefung::Kind<Element>(*fenster, name);
    }
    Verlaufsbild& Bild() { return Kind<Verlaufsbild>("Bild"); }
    void Druecke(const char* knopf) { Kind<QPushButton>(knopf).click(); }
    std::string Label(const char* name) { return Kind<QLabel>(name).text().toStdString(); }
    void Erledige() {
        while (!umgebung.aufgeschobenes.empty())
            umgebung.ErledigeAufgeschobenes();
    }
    /// The source has got more, and the window looks.
    void Wachse() {
        ASSERT_TRUE(WarteBis([&] {
            Erledige();
            return Bild().Blick().Spanne().bis == anbieter.Jetzt();
        }));
    }

    PruefUmgebung umgebung;
    PruefEinstellungen einstellungen;
    PruefMessanbieter anbieter;
    std::unique_ptr<frmVerlauf> fenster;
};

} // namespace

TEST_F(frmVerlaufTest, Opens_before_anything_was_measured_and_shows_what_comes) {
    Oeffne();
    EXPECT_FALSE(Bild().Zeiger());
    EXPECT_EQ(Bild().Wahl().Reihen().size(), 3U);
    Messpaket paket = PaketMit(seconds(0), 10, milliseconds(100));
    for (Messdurchgang& durchgang : paket.durchgaenge)
        std::swap(durchgang.teile[0], durchgang.teile[1]);
    anbieter.quelle.Nimm(std::move(paket));
    Wachse();
    EXPECT_EQ(Bild().Wahl().Reihen(), (std::vector<Messreihe>{{1, 0}, {1, 1}, {1, 2}}));
    EXPECT_TRUE(Kind<QCheckBox>("chkKurve_6").isChecked());
}

TEST_F(frmVerlaufTest, Begins_with_the_last_five_minutes) {
    FuelleSekunden(anbieter.quelle, 600);
    Oeffne();
    EXPECT_EQ(Bild().Blick().Breite(), std::chrono::minutes(5));
    EXPECT_EQ(Kind<QComboBox>("cboBreite").currentText(), "5 Minuten");
    EXPECT_TRUE(Kind<QCheckBox>("chkFolgen").isChecked());
}

TEST_F(frmVerlaufTest, What_the_user_chooses_is_kept_and_not_chosen_for_him_again) {
    FuelleSekunden(anbieter.quelle, 10);
    Oeffne();
    Kind<QCheckBox>("chkKurve_0").setChecked(false);
    Kind<QCheckBox>("chkKurve_23").setChecked(true);
    Kind<QCheckBox>("chkBand").setChecked(false);
    Kind<QCheckBox>("chkMillimeter").setChecked(true);
    Kind<QComboBox>("cboBreite").setCurrentIndex(3);
    emit Kind<QComboBox>("cboBreite").activated(3);
    const Verlaufswahl gewaehlt = Bild().Wahl();
    fenster->close();
    Oeffne();
    EXPECT_EQ(Bild().Wahl(), gewaehlt);
    EXPECT_EQ(Bild().Blick().Breite(), std::chrono::hours(1));
    EXPECT_FALSE(Kind<QCheckBox>("chkKurve_0").isChecked());
    EXPECT_TRUE(Kind<QCheckBox>("chkKurve_23").isChecked());
}

TEST_F(frmVerlaufTest, Absurd_settings_do_no_harm) {
    einstellungen.SchreibText("frmVerlauf", "Kurven", "2147483647");
    einstellungen.SchreibText("frmVerlauf", "Sekunden", "-7");
    einstellungen.SchreibText("frmVerlauf", "Band", "hallo");
    FuelleSekunden(anbieter.quelle, 10);
    Oeffne();
    EXPECT_EQ(Bild().Wahl().Reihen().size(), static_cast<std::size_t>(AnzahlMessreihen));
    EXPECT_EQ(Bild().Blick().Breite(), std::chrono::minutes(5));
}

TEST_F(frmVerlaufTest, Needs_the_parts_of_its_curves_only_while_it_is_open) {
    FuelleSekunden(anbieter.quelle, 10);
    Oeffne();
    EXPECT_TRUE(fenster->Braucht(0));
    EXPECT_FALSE(fenster->Braucht(3));
    Kind<QCheckBox>("chkKurve_18").setChecked(true);
    EXPECT_TRUE(fenster->Braucht(3));
    fenster->close();
    EXPECT_FALSE(fenster->Braucht(0));
}

TEST_F(frmVerlaufTest, Follow_and_the_view_agree) {
    FuelleSekunden(anbieter.quelle, 1000);
    Oeffne();
    QTest::keyClick(&Bild(), Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_FALSE(Kind<QCheckBox>("chkFolgen").isChecked());
    Kind<QCheckBox>("chkFolgen").click();
    EXPECT_TRUE(Bild().Blick().Folgt());
    Druecke("cmdAlles");
    EXPECT_TRUE(Bild().Blick().ZeigtAlles());
    EXPECT_EQ(Kind<QComboBox>("cboBreite").currentIndex(), -1);
}

TEST_F(frmVerlaufTest, Cursor_and_marks_are_told_below_the_picture) {
    FuelleSekunden(anbieter.quelle, 100);
    Oeffne();
    EXPECT_FALSE(Kind<QPushButton>("cmdMarkeA").isEnabled());
    Bild().SetzeZeiger(seconds(10));
    EXPECT_THAT(Label("lblZeiger"), HasSubstr("K1 TU 20, HU 30, ZU 11"));
    Druecke("cmdMarkeA");
    Bild().SetzeZeiger(seconds(15));
    Druecke("cmdMarkeB");
    EXPECT_THAT(Label("lblMarken"), HasSubstr("Abstand 5,000 s · K1 TU 0"));
    Druecke("cmdMarkenWeg");
    EXPECT_EQ(Label("lblMarken"), "");
}

TEST_F(frmVerlaufTest, A_note_goes_to_now_or_to_the_cursor) {
    FuelleSekunden(anbieter.quelle, 100);
    Oeffne();
    EXPECT_FALSE(Kind<QPushButton>("cmdNotizJetzt").isEnabled());
    Kind<QLineEdit>("txtNotiz").setText(" Bahn gewechselt ");
    EXPECT_FALSE(Kind<QPushButton>("cmdNotizZeiger").isEnabled());
    Druecke("cmdNotizJetzt");
    EXPECT_TRUE(Kind<QLineEdit>("txtNotiz").text().isEmpty());
    Bild().SetzeZeiger(seconds(10));
    Kind<QLineEdit>("txtNotiz").setText("hier");
    Druecke("cmdNotizZeiger");
    ASSERT_EQ(anbieter.notizen.size(), 2U);
    EXPECT_EQ(anbieter.notizen[0], std::pair(anbieter.Jetzt(), std::string("Bahn gewechselt")));
    EXPECT_EQ(anbieter.notizen[1], std::pair(Zeit(seconds(10)), std::string("hier")));
}

TEST_F(frmVerlaufTest, A_replay_says_so_moves_with_a_click_and_takes_no_notes) {
    FuelleSekunden(anbieter.quelle, 1000);
    anbieter.wiedergabe = true;
    anbieter.jetzt = seconds(400);
    Oeffne();
    EXPECT_THAT(fenster->windowTitle().toStdString(), HasSubstr("Wiedergabe"));
    EXPECT_EQ(Bild().Blick().Spanne().bis, seconds(400));
    QTest::mouseClick(&Bild(), Qt::LeftButton, {}, Bild().Stelle(seconds(300), 50).toPoint());
    ASSERT_EQ(anbieter.spruenge.size(), 1U);
    EXPECT_NEAR(static_cast<double>(anbieter.spruenge[0].count()) / 1e6, 300, 1);
    Kind<QLineEdit>("txtNotiz").setText("nein");
    EXPECT_FALSE(Kind<QPushButton>("cmdNotizJetzt").isEnabled());
    SetzeSprachoffset(Englisch);
    fenster->Lokalisiere();
    EXPECT_THAT(fenster->windowTitle().toStdString(), HasSubstr("Replay"));
}

TEST_F(frmVerlaufTest, The_title_follows_when_a_replay_begins_and_ends) {
    FuelleSekunden(anbieter.quelle, 10);
    Oeffne();
    EXPECT_EQ(fenster->windowTitle(), "Verlauf");
    anbieter.wiedergabe = true;
    ++anbieter.quellenzahl;
    EXPECT_TRUE(WarteBis([&] {
        Erledige();
        return fenster->windowTitle().contains("Wiedergabe");
    }));
}

TEST_F(frmVerlaufTest, What_is_in_view_is_written_in_pieces) {
    for (int i = 0; i < 200; ++i)
        anbieter.quelle.Nimm(PaketMit(seconds(i), 2, milliseconds(500)));
    Oeffne();
    Druecke("cmdSpeichern");
    ASSERT_EQ(anbieter.fragen.size(), 1U);
    EXPECT_TRUE(anbieter.geschrieben.empty());
    EXPECT_TRUE(Kind<QPushButton>("cmdCancel").isVisible());
    umgebung.ErledigeAufgeschobenes();
    Erledige();
    ASSERT_EQ(anbieter.geschrieben.size(), 1U);
    EXPECT_EQ(anbieter.geschrieben[0].first, "/tmp/datei");
    EXPECT_EQ(std::ranges::count(anbieter.geschrieben[0].second, '\n'), 401);
    EXPECT_THAT(Label("lblMeldung"), HasSubstr("400 Durchgänge"));
    EXPECT_FALSE(Kind<QPushButton>("cmdCancel").isVisible());
}

TEST_F(frmVerlaufTest, Writing_can_be_cancelled_and_asking_for_a_file_too) {
    FuelleSekunden(anbieter.quelle, 200);
    Oeffne();
    Druecke("cmdSpeichern");
    Druecke("cmdCancel");
    Erledige();
    anbieter.datei = {};
    Druecke("cmdSpeichern");
    Erledige();
    EXPECT_TRUE(anbieter.geschrieben.empty());
}

TEST_F(frmVerlaufTest, A_file_that_cannot_be_written_is_not_said_to_be_saved) {
    FuelleSekunden(anbieter.quelle, 20);
    anbieter.schreibbar = false;
    Oeffne();
    Druecke("cmdSpeichern");
    Erledige();
    EXPECT_THAT(Label("lblMeldung"), testing::Not(HasSubstr("gespeichert")));
}

TEST_F(frmVerlaufTest, The_picture_goes_to_the_clipboard) {
    FuelleSekunden(anbieter.quelle, 20);
    Oeffne();
    Druecke("cmdKopieren");
    const QImage bild = QGuiApplication::clipboard()->image();
    EXPECT_EQ(bild.size(), Bild().size());
    EXPECT_NE(bild.pixel(bild.width() / 2, bild.height() / 2), 0U);
}

TEST_F(frmVerlaufTest, The_picture_is_printed_dark_on_white) {
    const QTemporaryDir ordner;
    FuelleSekunden(anbieter.quelle, 20);
    Oeffne();
    fenster->setPalette(*PaletteFuer(Erscheinung::Dunkel));
    const QString datei = ordner.filePath("verlauf.pdf");
    fenster->SetzeDruckerwahl([&](QPrinter& drucker) {
        drucker.setOutputFormat(QPrinter::PdfFormat);
        drucker.setOutputFileName(datei);
        EXPECT_EQ(drucker.pageLayout().orientation(), QPageLayout::Landscape);
        return true;
    });
    Druecke("cmdDrucken");
    EXPECT_GT(QFileInfo(datei).size(), 2000);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(frmVerlaufTest, All_texts_follow_the_language) {
    FuelleSekunden(anbieter.quelle, 20);
    Oeffne();
    SetzeSprachoffset(Englisch);
    fenster->Lokalisiere();
    EXPECT_EQ(fenster->windowTitle(), "Trend");
    EXPECT_EQ(Label("lblTeil_0"), "C1");
    EXPECT_EQ(Kind<QComboBox>("cboBreite").currentText(), "5 minutes");
    EXPECT_EQ(Kind<QCheckBox>("chkFolgen").text(), "Follow");
}

TEST_F(frmVerlaufTest, Escape_ends_writing_first_and_then_closes) {
    FuelleSekunden(anbieter.quelle, 200);
    Oeffne();
    QApplication::setActiveWindow(fenster.get());
    Druecke("cmdSpeichern");
    QTest::keyClick(fenster.get(), Qt::Key_Escape);
    EXPECT_TRUE(fenster->isVisible());
    EXPECT_FALSE(Kind<QPushButton>("cmdCancel").isVisible());
    QTest::keyClick(fenster.get(), Qt::Key_Escape);
    EXPECT_FALSE(fenster->isVisible());
}

} // namespace varnoth
