#include "fensterplatz.h"
#include "fenstertest.h"
#include "pruefumgebung.h"

#include <QApplication>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <gtest/gtest.h>

using namespace varnoth;

namespace {

class FensterplatzTest : public testing::Test {
protected:
    void SetUp() override {
        bereich = new QMdiArea;
        haupt.setCentralWidget(bereich);
        haupt.resize(790, 590);
        haupt.show();
        QApplication::processEvents();
        sicht = new QWidget;
        rahmen = bereich->addSubWindow(sicht);
        rahmen->setAttribute(Qt::WA_DeleteOnClose, false);
    }
    void Zeige() {
        rahmen->show();
        QApplication::processEvents();
    }

    pruefung::PruefEinstellungen einstellungen;
    QMainWindow haupt;
    QMdiArea* bereich = nullptr;
    QWidget* sicht = nullptr;
    QMdiSubWindow* rahmen = nullptr;
};

constexpr Fensterplatz Beispiel{Fensterplatz::Normal, 1500, 750, 4500, 3600};

} // namespace

TEST_F(FensterplatzTest, Fifteen_twips_are_a_pixel) {
    EXPECT_EQ(PixelAusTwips(6500), 433);
    EXPECT_EQ(PixelAusTwips(-30), -2);
    EXPECT_EQ(TwipsAusPixel(100), 1500);
}

TEST_F(FensterplatzTest, An_empty_section_gives_the_defaults) {
    EXPECT_EQ(LiesFensterplatz(einstellungen, "MDIForm", {}), (Fensterplatz{0, 1000, 1000, 6500, 6500}));
    Fensterplatz ohneZustand;
    ohneZustand.zustand = ZustandNichtGespeichert;
    EXPECT_EQ(LiesFensterplatz(einstellungen, "0Form", ohneZustand).zustand, -1);
}

TEST_F(FensterplatzTest, A_place_is_stored_as_five_decimal_texts) {
    SchreibFensterplatz(einstellungen, "2Form", {2, -30, 40, 5000, 6000});
    const std::map<std::pair<std::string, std::string>, std::string> erwartet{
        {{"2Form", "WindowState"}, "2"}, {{"2Form", "Left"}, "-30"},    {{"2Form", "Top"}, "40"},
        {{"2Form", "Width"}, "5000"},    {{"2Form", "Height"}, "6000"},
    };
    EXPECT_EQ(einstellungen.texte, erwartet);
}

TEST_F(FensterplatzTest, A_stored_place_is_read_again) {
    SchreibFensterplatz(einstellungen, "2Form", Beispiel);
    EXPECT_EQ(LiesFensterplatz(einstellungen, "2Form", {}), Beispiel);
}

TEST_F(FensterplatzTest, A_window_without_a_stored_place_begins_with_its_usual_size_on_the_screen) {
    QWidget fenster;
    StelleFensterHer(fenster, "frmNeu", {300, 200});
    EXPECT_EQ(fenster.size(), QSize(300, 200));
    StelleFensterHer(fenster, "frmNeu");
    EXPECT_EQ(fenster.size(), QSize(300, 200)) << "without a usual size it keeps its own";
    StelleFensterHer(fenster, "frmNeu", {100000, 100000});
    EXPECT_EQ(fenster.size(), fenster.screen()->availableSize());
}

TEST_F(FensterplatzTest, A_window_comes_back_to_where_it_was_kept) {
    SchreibFensterplatz(einstellungen, "frmNeu", Beispiel);
    QWidget fenster;
    StelleFensterHer(fenster, "frmNeu", {700, 700});
    EXPECT_EQ(fenster.size(), QSize(300, 240));
    fenster.resize(320, 250);
    fenster.show();
    BewahreFensterplatz(fenster, "frmNeu");
    EXPECT_EQ(LiesFensterplatz(einstellungen, "frmNeu", {}).breite, TwipsAusPixel(320));
    fenster.showMinimized();
    fenster.resize(400, 400);
    BewahreFensterplatz(fenster, "frmNeu");
    EXPECT_EQ(LiesFensterplatz(einstellungen, "frmNeu", {}).breite, TwipsAusPixel(320));
}

TEST_F(FensterplatzTest, A_minimised_window_is_restored_when_it_comes_to_the_front) {
    QWidget fenster;
    fenster.showMinimized();
    HoleNachVorn(fenster);
    EXPECT_FALSE(fenster.isMinimized());
    EXPECT_TRUE(fenster.isVisible());
    fenster.hide();
    HoleNachVorn(fenster);
    EXPECT_TRUE(fenster.isVisible());
}

TEST_F(FensterplatzTest, A_view_takes_its_place_inside_the_main_window) {
    WendeAn(Beispiel, *sicht);
    Zeige();
    EXPECT_EQ(rahmen->geometry(), QRect(100, 50, 300, 240));
    EXPECT_EQ(PlatzVon(*sicht), Beispiel);
}

TEST_F(FensterplatzTest, Placing_a_hidden_view_does_not_show_it) {
    WendeAn({Fensterplatz::Maximiert, 1500, 750, 4500, 3600}, *sicht);
    QApplication::processEvents();
    EXPECT_FALSE(rahmen->isVisible());
}

TEST_F(FensterplatzTest, A_maximised_view_keeps_its_normal_place) {
    Fensterplatz gross = Beispiel;
    gross.zustand = Fensterplatz::Maximiert;
    WendeAn(gross, *sicht);
    Zeige();
    EXPECT_TRUE(rahmen->isMaximized());
    EXPECT_EQ(PlatzVon(*sicht), gross);
}

TEST_F(FensterplatzTest, A_view_maximised_by_the_user_stores_where_it_was) {
    WendeAn(Beispiel, *sicht);
    Zeige();
    rahmen->move(120, 60);
    rahmen->showMaximized();
    QApplication::processEvents();
    EXPECT_EQ(PlatzVon(*sicht), (Fensterplatz{Fensterplatz::Maximiert, 1800, 900, 4500, 3600}));
}

TEST_F(FensterplatzTest, A_minimised_view_has_no_place_to_store) {
    Zeige();
    rahmen->showMinimized();
    QApplication::processEvents();
    EXPECT_EQ(PlatzVon(*sicht), std::nullopt);
}

TEST_F(FensterplatzTest, A_hidden_view_keeps_the_place_it_had) {
    WendeAn(Beispiel, *sicht);
    Zeige();
    rahmen->move(120, 60);
    rahmen->hide();
    EXPECT_EQ(PlatzVon(*sicht), (Fensterplatz{Fensterplatz::Normal, 1800, 900, 4500, 3600}));
}

TEST_F(FensterplatzTest, A_view_out_of_reach_is_moved_back) {
    WendeAn({Fensterplatz::Normal, 90000, -90000, 4500, 3600}, *sicht);
    Zeige();
    EXPECT_TRUE(bereich->viewport()->rect().intersects(rahmen->geometry()));
    EXPECT_EQ(rahmen->y(), 0);
}

TEST_F(FensterplatzTest, A_window_of_its_own_takes_its_place_on_the_screen) {
    QWidget fenster;
    WendeAn(Beispiel, fenster);
    fenster.show();
    QApplication::processEvents();
    EXPECT_EQ(PlatzVon(fenster), Beispiel);
}

TEST_F(FensterplatzTest, A_window_of_its_own_stores_its_normal_place_when_maximised) {
    QWidget fenster;
    WendeAn({Fensterplatz::Maximiert, 1500, 750, 4500, 3600}, fenster);
    fenster.show();
    QApplication::processEvents();
    EXPECT_TRUE(fenster.isMaximized());
    EXPECT_EQ(PlatzVon(fenster), (Fensterplatz{Fensterplatz::Maximiert, 1500, 750, 4500, 3600}));
}

TEST_F(FensterplatzTest, No_window_grows_beyond_all_screens_together) {
    const QSize schirme = QGuiApplication::primaryScreen()->virtualSize();
    for (const int riesig : {1500000, 2147483647}) {
        QWidget fenster;
        WendeAn({Fensterplatz::Normal, riesig, riesig, riesig, riesig}, fenster);
        WendeAn({Fensterplatz::Normal, riesig, riesig, riesig, riesig}, *sicht);
        Zeige();
        EXPECT_EQ(fenster.size(), schirme);
        EXPECT_EQ(rahmen->size(), schirme);
    }
}

TEST_F(FensterplatzTest, A_window_without_size_is_still_a_window) {
    QWidget fenster;
    WendeAn({Fensterplatz::Normal, 0, 0, -2147483647 - 1, 0}, fenster);
    EXPECT_GE(fenster.width(), 1);
    EXPECT_GE(fenster.height(), 1);
}
