#include "frmWasserfall.h"

#include "bedienelement.h"
#include "fenstertest.h"
#include "pruefmessanbieter.h"
#include "pruefumgebung.h"
#include "strahlbericht.h"
#include "strahlbits.h"
#include "strahlproben.h"
#include "texte.h"
#include "wasserfallbild.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using namespace strahlproben;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

struct Anbieter : pruefung::PruefMessanbieter {
    void BerichteStrahlen(const Strahlbericht& abschnitt) override { berichte.push_back(abschnitt); }
    std::vector<Strahlbericht> berichte;
};

} // namespace

/// The window over a minute of a part with 64 beams, of which beam 13 is dirty; beam 20 is interrupted in the
/// second half.
class FrmWasserfallTest : public testing::Test {
protected:
    FrmWasserfallTest() {
        anbieter.quelle.angaben.beginn = std::chrono::sys_days{std::chrono::year(2026) / 11 / 22} + 5h;
        EXPECT_TRUE(anbieter.quelle.konfiguration.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten,
                                                                spezifisch::Strahlenzahl, 64));
        Fuelle(anbieter.quelle, 1200, 64,
               [](int durchgang, int strahl) { return strahl == 12 || (strahl == 19 && durchgang >= 600); });
    }
    frmWasserfall& Fenster() {
        if (!fenster) {
            fenster.emplace(anbieter);
            fenster->show();
        }
        return *fenster;
    }
    template<class Element>
    Element& Kind(const char* name) {
        return pruefung::Kind<Element>(Fenster(), name);
    }
    template<class Bedingung>
    bool Bis(Bedingung bedingung) {
        return pruefung::WarteBis([&] {
            umgebung.ErledigeAufgeschobenes();
            return bedingung();
        });
    }
    bool BisGezaehlt() {
        Fenster();
        return Bis([&] { return Label("lblStand").find("Statistik: ") == 0 && Zeilen() > 0; });
    }
    std::string Label(const char* name) { return Kind<QLabel>(name).text().toStdString(); }
    QTableView& Tabelle() { return Kind<QTableView>("tblStrahlen"); }
    int Zeilen() { return Tabelle().model()->rowCount(); }
    std::string Zelle(int zeile, int spalte) {
        return Tabelle().model()->index(zeile, spalte).data().toString().toStdString();
    }
    std::vector<std::string> Verdacht() {
        std::vector<std::string> zeilen;
        const auto& liste = Kind<QListWidget>("lstVerdacht");
        for (int i = 0; i < liste.count(); ++i)
            zeilen.push_back(liste.item(i)->text().toStdString());
        return zeilen;
    }
    void Druecke(const char* knopf) { Kind<QPushButton>(knopf).click(); }
    Wasserfallbild& Bild() { return Kind<Wasserfallbild>("bild"); }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    Anbieter anbieter;
    std::optional<frmWasserfall> fenster;
};

TEST_F(FrmWasserfallTest, Shows_minutes_at_first_however_small_the_picture_was_before_it_was_laid_out) {
    const auto& bild = *Fenster().findChild<Wasserfallbild*>();
    const Zeit dauer = bild.Fenster().Bis() - bild.Fenster().Von();
    EXPECT_GE(dauer, 1min);
    EXPECT_LE(dauer, 5min);
}

TEST_F(FrmWasserfallTest, Counts_all_the_time_there_is_and_says_so) {
    ASSERT_TRUE(BisGezaehlt());
    EXPECT_EQ(Zeilen(), 64);
    EXPECT_EQ(Zelle(12, 2), "100 %");
    EXPECT_EQ(Zelle(19, 3), "1");
    EXPECT_EQ(Zelle(0, 2), "0 %");
    EXPECT_THAT(Label("lblStand"), HasSubstr("22.11.2026 05:00:00,000"));
    EXPECT_THAT(Label("lblStand"), HasSubstr("1 min 00 s"));
}

TEST_F(FrmWasserfallTest, Lists_what_is_suspicious_with_its_reason_on_top) {
    ASSERT_TRUE(BisGezaehlt());
    ASSERT_EQ(Verdacht().size(), 1U);
    EXPECT_THAT(Verdacht()[0], StartsWith("Strahl 13: verschmutzt oder verstellt? Unterbrochen in 100 %"));
    EXPECT_LT(Kind<QListWidget>("lstVerdacht").y(), Tabelle().y());
}

TEST_F(FrmWasserfallTest, Says_that_nothing_is_suspicious_only_when_enough_was_measured) {
    anbieter.quelle.pakete.clear();
    Fuelle(anbieter.quelle, 40, 8, [](int, int) { return false; });
    ASSERT_TRUE(BisGezaehlt());
    EXPECT_THAT(Verdacht(), ElementsAre("Für ein Urteil ist zu wenig gemessen."));
    Fuelle(
        anbieter.quelle, 400, 8, [](int, int) { return false; }, 0, 2s);
    EXPECT_TRUE(Bis([&] { return Verdacht()[0].find("Nichts Verdächtiges in ") == 0; }));
}

TEST_F(FrmWasserfallTest, Goes_on_counting_while_live_data_comes) {
    ASSERT_TRUE(BisGezaehlt());
    const auto vorher = Fenster().Bezug().gemessen;
    Fuelle(
        anbieter.quelle, 200, 64, [](int, int) { return false; }, 0, 60s);
    EXPECT_TRUE(Bis([&] { return Fenster().Bezug().gemessen > vorher + 9s; }));
    EXPECT_TRUE(Bis([&] { return Zelle(12, 3) == "1"; }));
}

TEST_F(FrmWasserfallTest, A_time_chosen_in_the_picture_is_that_of_the_statistics_until_it_is_let_go) {
    ASSERT_TRUE(BisGezaehlt());
    EXPECT_FALSE(Kind<QPushButton>("cmdZeitraum").isEnabled());
    Bild().Waehle(Zeitspanne{40s, 50s});
    EXPECT_TRUE(Bis([&] { return Zelle(19, 2) == "100 %"; }));
    EXPECT_EQ(Fenster().Bezug().gemessen, 10s);
    EXPECT_THAT(Label("lblStand"), HasSubstr("05:00:40,000"));
    Druecke("cmdZeitraum");
    EXPECT_TRUE(Bis([&] { return Zeilen() == 64 && Zelle(19, 2) == "50,0 %"; }));
    EXPECT_FALSE(Bild().Gewaehlt());
}

TEST_F(FrmWasserfallTest, The_table_is_sorted_by_value_and_shows_suspicious_beams_only_when_asked) {
    ASSERT_TRUE(BisGezaehlt());
    Tabelle().sortByColumn(2, Qt::DescendingOrder);
    EXPECT_EQ(Zelle(0, 0), "13");
    EXPECT_EQ(Zelle(1, 0), "20");
    Tabelle().sortByColumn(0, Qt::DescendingOrder);
    EXPECT_EQ(Zelle(0, 0), "64");
    Kind<QCheckBox>("chkNurVerdaechtige").setChecked(true);
    ASSERT_EQ(Zeilen(), 1);
    EXPECT_EQ(Zelle(0, 0), "13");
    EXPECT_EQ(Zelle(0, 6), "Strahl 13: verschmutzt oder verstellt?");
}

TEST_F(FrmWasserfallTest, Another_part_is_shown_and_counted) {
    Fuelle(
        anbieter.quelle, 1200, 16, [](int, int strahl) { return strahl == 3; }, 2, 60s);
    ASSERT_TRUE(BisGezaehlt());
    Kind<QComboBox>("cboTeil").setCurrentIndex(2);
    EXPECT_EQ(Bild().Teil(), 2);
    EXPECT_TRUE(Bis([&] { return Zeilen() == 16 && Zelle(3, 2) == "100 %"; }));
    Kind<QComboBox>("cboTeil").setCurrentIndex(1);
    EXPECT_TRUE(Bis([&] { return Zeilen() == 0 && Label("lblStand") == "Statistik: noch keine Messdaten"; }));
    EXPECT_FALSE(Kind<QPushButton>("cmdTabelle").isEnabled());
    EXPECT_FALSE(Kind<QPushButton>("cmdBlanking").isEnabled());
}

TEST_F(FrmWasserfallTest, Suggests_to_blank_what_was_interrupted_all_the_chosen_time_and_does_nothing_else) {
    ASSERT_TRUE(BisGezaehlt());
    Bild().Waehle(Zeitspanne{40s, 50s});
    ASSERT_TRUE(Bis([&] { return Zelle(19, 2) == "100 %"; }));
    Druecke("cmdBlanking");
    ASSERT_EQ(anbieter.vorschlaege.size(), 1U);
    EXPECT_EQ(anbieter.vorschlaege[0].first, 0);
    for (int strahl = 0; strahl < 64; ++strahl)
        EXPECT_EQ(StrahlBit(anbieter.vorschlaege[0].second, strahl), strahl == 12 || strahl == 19) << strahl;
}

TEST_F(FrmWasserfallTest, Says_so_when_there_is_nothing_to_blank) {
    anbieter.quelle.pakete.clear();
    Fuelle(anbieter.quelle, 400, 8, [](int, int) { return false; });
    ASSERT_TRUE(BisGezaehlt());
    Druecke("cmdBlanking");
    EXPECT_TRUE(anbieter.vorschlaege.empty());
    EXPECT_EQ(Label("lblMeldung"), "Kein Strahl war die ganze Zeit unterbrochen.");
}

TEST_F(FrmWasserfallTest, A_replay_says_so_in_the_title_and_suggests_nothing_for_the_controller) {
    anbieter.wiedergabe = true;
    ASSERT_TRUE(BisGezaehlt());
    EXPECT_THAT(Fenster().windowTitle().toStdString(), HasSubstr("Wiedergabe"));
    EXPECT_FALSE(Kind<QPushButton>("cmdBlanking").isEnabled());
    EXPECT_FALSE(Kind<QPushButton>("cmdBericht").isEnabled());
    EXPECT_TRUE(Kind<QPushButton>("cmdTabelle").isEnabled());
    anbieter.wiedergabe = false;
    anbieter.quellenzahl = 2;
    EXPECT_TRUE(Bis([&] { return Fenster().windowTitle() == "Strahlverlauf"; }));
    EXPECT_TRUE(Bis([&] { return Kind<QPushButton>("cmdBlanking").isEnabled(); }));
}

TEST_F(FrmWasserfallTest, A_click_moves_a_replay_and_live_data_stays_where_it_is) {
    ASSERT_TRUE(BisGezaehlt());
    Bild().ZeigeAlles();
    const QPoint wo = Bild().PunktVon({25s, 20}).toPoint();
    QTest::mouseClick(&Bild(), Qt::LeftButton, {}, wo);
    EXPECT_TRUE(anbieter.spruenge.empty());
    anbieter.wiedergabe = true;
    QTest::mouseClick(&Bild(), Qt::LeftButton, {}, wo);
    ASSERT_EQ(anbieter.spruenge.size(), 1U);
    EXPECT_NEAR(static_cast<double>(anbieter.spruenge[0].count()), 25e6, 3e5);
}

TEST_F(FrmWasserfallTest, Another_source_begins_anew) {
    ASSERT_TRUE(BisGezaehlt());
    Bild().Waehle(Zeitspanne{40s, 50s});
    anbieter.quelle.pakete.clear();
    anbieter.quelle.konfiguration = {};
    anbieter.quelle.uebersicht = Uebersicht();
    Fuelle(anbieter.quelle, 400, 8, [](int, int strahl) { return strahl == 5; });
    anbieter.quellenzahl = 2;
    EXPECT_TRUE(Bis([&] { return Zeilen() == 8 && Zelle(5, 2) == "100 %"; }));
    EXPECT_FALSE(Bild().Gewaehlt());
}

TEST_F(FrmWasserfallTest, Saves_the_table_for_a_spreadsheet) {
    ASSERT_TRUE(BisGezaehlt());
    anbieter.datei = "/tmp/strahlen.csv";
    Druecke("cmdTabelle");
    ASSERT_EQ(anbieter.geschrieben.size(), 1U);
    EXPECT_EQ(anbieter.geschrieben[0].first, "/tmp/strahlen.csv");
    EXPECT_THAT(anbieter.geschrieben[0].second, HasSubstr("\r\n13;;100,000;0;"));
    EXPECT_EQ(Label("lblMeldung"), "Gespeichert: /tmp/strahlen.csv");
}

TEST_F(FrmWasserfallTest, Says_nothing_of_a_file_that_could_not_be_written) {
    ASSERT_TRUE(BisGezaehlt());
    anbieter.schreibbar = false;
    Druecke("cmdTabelle");
    EXPECT_EQ(Label("lblMeldung"), "");
    anbieter.datei.reset();
    Druecke("cmdTabelle");
    EXPECT_EQ(anbieter.geschrieben.size(), 1U);
}

TEST_F(FrmWasserfallTest, Hands_its_statistics_to_the_report) {
    ASSERT_TRUE(BisGezaehlt());
    Druecke("cmdBericht");
    ASSERT_EQ(anbieter.berichte.size(), 1U);
    const Strahlbericht& bericht = anbieter.berichte[0];
    EXPECT_THAT(bericht.zeitraum, StartsWith("Optikteil 1, 22.11.2026 05:00:00,000 bis"));
    EXPECT_THAT(bericht.verdacht, ElementsAre(StartsWith("Strahl 13: verschmutzt")));
    ASSERT_EQ(bericht.zeilen.size(), 2U) << "the others were never interrupted";
    EXPECT_EQ(bericht.zeilen[0][0], "13");
    EXPECT_EQ(bericht.zeilen[1][0], "20");
    EXPECT_THAT(bericht.anmerkung, StartsWith("62 von 64 Strahlen"));
}

TEST_F(FrmWasserfallTest, Copies_the_picture) {
    ASSERT_TRUE(BisGezaehlt());
    QApplication::clipboard()->clear();
    Druecke("cmdBild");
    EXPECT_EQ(QApplication::clipboard()->image().size(), Bild().size() * Bild().devicePixelRatioF());
    EXPECT_EQ(Label("lblMeldung"), "Das Bild liegt in der Zwischenablage.");
}

TEST_F(FrmWasserfallTest, Counting_much_shows_how_far_it_is_and_can_be_stopped) {
    Fenster();
    umgebung.beiEreignissen = nullptr;
    ASSERT_TRUE(Bis([&] {
        umgebung.uhr += 100ms; // each piece takes long
        return Zeilen() == 64;
    }));
    Fuelle(
        anbieter.quelle, 20000, 64, [](int, int) { return false; }, 0, 60s);
    anbieter.quellenzahl = 2;
    struct Langsame : pruefung::PruefUmgebung {
        Zeit Uhr() override { return uhr += 5ms; }
    } langsame;
    const auto bis = [&](auto bedingung) {
        return pruefung::WarteBis([&] {
            langsame.ErledigeAufgeschobenes();
            umgebung.ErledigeAufgeschobenes();
            return bedingung();
        });
    };
    ASSERT_TRUE(bis([&] { return Label("lblStand").find("Statistik wird gerechnet: ") == 0; }));
    EXPECT_TRUE(Kind<QPushButton>("cmdCancel").isVisible());
    Druecke("cmdCancel");
    EXPECT_FALSE(Kind<QPushButton>("cmdCancel").isVisible());
    EXPECT_THAT(Label("lblMeldung"), StartsWith("Abgebrochen."));
    EXPECT_LT(Fenster().Bezug().gemessen, 1000s);
    SetzeUmgebung(&umgebung);
}

TEST_F(FrmWasserfallTest, A_suspicious_beam_that_is_chosen_is_shown_in_table_and_picture) {
    ASSERT_TRUE(BisGezaehlt());
    auto& liste = Kind<QListWidget>("lstVerdacht");
    QApplication::setActiveWindow(&Fenster());
    liste.setFocus();
    ASSERT_TRUE(Bis([&] { return liste.hasFocus(); }));
    liste.setCurrentRow(-1);
    liste.setCurrentRow(0);
    ASSERT_TRUE(Bild().Stelle());
    EXPECT_EQ(Bild().Stelle()->strahl, 12);
    EXPECT_EQ(Tabelle().currentIndex().row(), 12);
    EXPECT_THAT(Label("lblStelle"), StartsWith("Strahl 13"));
    EXPECT_THAT(Bild().accessibleDescription().toStdString(), HasSubstr("Strahl 13"));
}

TEST_F(FrmWasserfallTest, Speaks_the_language_that_is_switched_to) {
    ASSERT_TRUE(BisGezaehlt());
    SetzeSprachoffset(Englisch);
    Fenster().Lokalisiere();
    EXPECT_EQ(Fenster().windowTitle(), "Beam history");
    EXPECT_THAT(Verdacht()[0], StartsWith("beam 13: dirty or misaligned?"));
    EXPECT_EQ(Tabelle().model()->headerData(2, Qt::Horizontal).toString(), "Interrupted");
    EXPECT_THAT(Label("lblStand"), StartsWith("Statistics: 2026-11-22 05:00:00.000 to "));
    EXPECT_EQ(Kind<QPushButton>("cmdBlanking").text(), "Suggest &blanking...");
}

TEST_F(FrmWasserfallTest, Follows_live_data_as_long_as_it_is_ticked) {
    ASSERT_TRUE(BisGezaehlt());
    auto& folgen = Kind<QCheckBox>("chkFolgen");
    EXPECT_TRUE(folgen.isChecked());
    Druecke("cmdAlles");
    EXPECT_FALSE(folgen.isChecked());
    folgen.setChecked(true);
    EXPECT_EQ(Bild().DerBlick(), Wasserfallbild::Blick::Folgt);
    folgen.setChecked(false);
    EXPECT_EQ(Bild().DerBlick(), Wasserfallbild::Blick::Fest);
}

TEST_F(FrmWasserfallTest, Keeps_its_place_and_closes_with_escape) {
    Fenster().resize(760, 560);
    ASSERT_TRUE(BisGezaehlt());
    QTest::keyClick(&Fenster(), Qt::Key_Escape);
    EXPECT_FALSE(Fenster().isVisible());
    frmWasserfall zweites(anbieter);
    EXPECT_EQ(zweites.size(), QSize(760, 560));
}

} // namespace varnoth
