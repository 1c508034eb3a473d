// What a view shows that has no values, and one whose values are old.

#include "frmdocumenttest.h"

#include <QImage>
#include <QRegularExpression>

using namespace varnoth;
using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

class FrmDocumentStand : public pruefung::FrmDocumentTest {
protected:
    void Miss() {
        Setze(spezifisch::Optikteilstatus, 4);
        SetzeMesswerte(10, 20, 30);
        Scan({0, 1}, {3});
    }
    void ErwarteNichts() {
        EXPECT_EQ(Werttexte(), QStringList(6, "–"));
        EXPECT_EQ(Text("lblInhaltBlankingStrahlenMax"), "–");
        EXPECT_EQ(Text("sbStatusBar_1"), "");
        EXPECT_EQ(Balken().Stand(), Datenstand::Ungueltig);
    }
    bool WirdAlt() {
        return pruefung::WarteBis([this] { return Balken().Stand() == Datenstand::Veraltet; }, 3000);
    }
};

} // namespace

TEST_F(FrmDocumentStand, A_view_that_was_just_built_shows_no_values_and_no_status) {
    Setze(spezifisch::Optikteilstatus, 4);
    ErwarteNichts();
}

TEST_F(FrmDocumentStand, The_first_whole_data_set_shows_everything) {
    Miss();
    EXPECT_EQ(Werttexte(), (QStringList{"10", "11", "12", "13", "14", "15"}));
    EXPECT_EQ(Text("lblInhaltBlankingStrahlenMax"), "1");
    EXPECT_EQ(Text("sbStatusBar_1"), "Status: Bahn in Mitte");
    EXPECT_EQ(Balken().Stand(), Datenstand::Gueltig);
}

TEST_F(FrmDocumentStand, Discarded_values_leave_nothing_behind) {
    Miss();
    sicht->VerwirfWerte();
    ErwarteNichts();
}

TEST_F(FrmDocumentStand, Values_discarded_before_there_was_time_to_show_them_stay_away) {
    SetzeMesswerte(10, 20, 30);
    Lies({0, 1}, {3});
    sicht->VerwirfWerte();
    umgebung.ErledigeAufgeschobenes();
    ErwarteNichts();
}

TEST_F(FrmDocumentStand, A_view_that_is_built_anew_has_no_values) {
    Miss();
    sicht->InitfrmDocument();
    ErwarteNichts();
}

TEST_F(FrmDocumentStand, The_same_values_come_back_after_they_were_discarded) {
    Miss();
    sicht->VerwirfWerte();
    Miss();
    EXPECT_EQ(Werttexte(), (QStringList{"10", "11", "12", "13", "14", "15"}));
    EXPECT_EQ(Text("lblInhaltBlankingStrahlenMax"), "1");
    EXPECT_EQ(Text("sbStatusBar_1"), "Status: Bahn in Mitte");
    EXPECT_EQ(Balken().Zustand(0), Strahlzustand::Frei);
}

TEST_F(FrmDocumentStand, Minimum_and_maximum_of_the_image_are_not_shown_either) {
    Miss();
    sicht->VerwirfWerte();
    Waehle(1);
    ErwarteNichts();
}

TEST_F(FrmDocumentStand, A_choice_made_without_values_holds_for_the_next_ones) {
    Waehle(1);
    Miss();
    EXPECT_EQ(Werttexte(), (QStringList{"20", "21", "22", "23", "24", "25"}));
}

TEST_F(FrmDocumentStand, Another_language_does_not_bring_values_back) {
    Miss();
    sicht->VerwirfWerte();
    SetzeSprachoffset(Englisch);
    sicht->Lokalisiere();
    ErwarteNichts();
    EXPECT_EQ(Text("lblHinweis"), "No current values");
}

TEST_F(FrmDocumentStand, A_sign_over_the_beams_says_that_there_are_no_values) {
    Zeige();
    EXPECT_EQ(Text("lblHinweis"), "Keine aktuellen Werte");
    EXPECT_TRUE(Feld("lblHinweis").isVisible());
    Miss();
    EXPECT_FALSE(Feld("lblHinweis").isVisible());
}

TEST_F(FrmDocumentStand, The_sign_fits_into_every_bar_and_lies_in_its_middle) {
    Zeige();
    for (const int breite : {227, 400, 800}) {
        rahmen->resize(breite, 300);
        QApplication::processEvents();
        const QRect schild = Feld("lblHinweis").geometry();
        EXPECT_TRUE(Balken().rect().contains(schild)) << breite;
        EXPECT_NEAR(schild.center().x(), Balken().rect().center().x(), 1) << breite;
        EXPECT_GE(schild.height(), Feld("lblHinweis").heightForWidth(schild.width())) << breite;
    }
}

TEST_F(FrmDocumentStand, Values_are_live_for_a_second) {
    Zeige();
    Miss();
    umgebung.uhr += milliseconds(999);
    EXPECT_FALSE(pruefung::WarteBis([this] { return Balken().Stand() != Datenstand::Gueltig; }, 600));
}

TEST_F(FrmDocumentStand, Values_that_are_not_renewed_fade_and_tell_their_age) {
    Zeige();
    Miss();
    const QColor frisch = Feld("lblInhaltTU").palette().color(QPalette::WindowText);
    umgebung.uhr += milliseconds(3200);
    ASSERT_TRUE(WirdAlt());
    EXPECT_EQ(Text("lblHinweis"), "vor 3 s");
    for (const char* name : {"lblInhaltTU", "lblInhaltZNU", "lblInhaltBlankingStrahlenMax", "sbStatusBar_1"})
        EXPECT_NE(Feld(name).palette().color(QPalette::WindowText), frisch) << name;
    EXPECT_EQ(Text("lblInhaltTU"), "10");
}

TEST_F(FrmDocumentStand, The_age_grows) {
    Zeige();
    Miss();
    umgebung.uhr += seconds(2);
    ASSERT_TRUE(WirdAlt());
    umgebung.uhr += seconds(5);
    EXPECT_TRUE(pruefung::WarteBis([this] { return Text("lblHinweis") == "vor 7 s"; }, 3000));
}

TEST_F(FrmDocumentStand, Renewed_values_are_live_again_at_once) {
    Zeige();
    Miss();
    const QColor frisch = Feld("lblInhaltTU").palette().color(QPalette::WindowText);
    umgebung.uhr += seconds(2);
    ASSERT_TRUE(WirdAlt());
    Miss();
    EXPECT_EQ(Balken().Stand(), Datenstand::Gueltig);
    EXPECT_EQ(Text("lblHinweis"), "");
    EXPECT_EQ(Feld("lblInhaltTU").palette().color(QPalette::WindowText), frisch);
}

TEST_F(FrmDocumentStand, The_colour_of_old_values_follows_another_palette) {
    Zeige();
    Miss();
    umgebung.uhr += seconds(2);
    ASSERT_TRUE(WirdAlt());
    const QColor hell = Feld("lblInhaltTU").palette().color(QPalette::WindowText);
    sicht->setPalette(QPalette(QColor(40, 42, 46)));
    QApplication::processEvents();
    EXPECT_NE(Feld("lblInhaltTU").palette().color(QPalette::WindowText), hell);
}

TEST_F(FrmDocumentStand, Discarded_values_do_not_age) {
    Miss();
    sicht->VerwirfWerte();
    umgebung.uhr += seconds(5);
    EXPECT_FALSE(pruefung::WarteBis([this] { return Text("lblHinweis") != "Keine aktuellen Werte"; }, 600));
}
