#include "beambartest.h"
#include "strahlfarben.h"

#include <array>
#include <random>
#include <utility>
#include <vector>

using namespace varnoth;
using namespace varnoth::pruefung;

namespace {

class BeamBar : public BeamBarTest {};

// Which pixels of a row stand out from the ground, without colour.
std::vector<bool> Tinte(const QImage& bild, int von, int bis, int y) {
    const int grund = qGray(bild.pixel(bild.width() - 1, 0));
    std::vector<bool> tinte;
    for (int x = von; x < bis; ++x)
        tinte.push_back(std::abs(qGray(bild.pixel(x, y)) - grund) > 40);
    return tinte;
}

} // namespace

TEST_F(BeamBar, Beam_1_is_drawn_at_the_bottom) {
    Stelle(32, 300, 400);
    EXPECT_GT(balken.Strahlmitte(0).y(), balken.Strahlmitte(31).y());
    const QImage vorher = Bild();
    Setze(0, Unterbrochen);
    EXPECT_GT(*VerschiedeneZeilen(vorher, Bild()).begin(), 350);
}

TEST_F(BeamBar, Each_single_interrupted_beam_of_512_shows_in_300_pixels) {
    Stelle(512, 300, 300, 5);
    const QImage alleFrei = Bild();
    for (int strahl = 0; strahl < 512; ++strahl) {
        Setze(strahl, Unterbrochen);
        ASSERT_FALSE(VerschiedeneZeilen(alleFrei, Bild()).empty()) << strahl;
        Setze(strahl, Frei);
    }
}

TEST_F(BeamBar, An_interrupted_beam_between_blanked_ones_shows_in_300_pixels) {
    Stelle(512, 300, 300, 5);
    for (int strahl = 0; strahl < 512; ++strahl)
        Setze(strahl, Geblankt);
    const QImage alleGeblankt = Bild();
    Setze(100, Unterbrochen);
    EXPECT_FALSE(VerschiedeneZeilen(alleGeblankt, Bild()).empty());
}

TEST_F(BeamBar, The_three_states_differ_in_shape_without_colour) {
    for (const double dichte : {1.0, 1.5, 2.0}) {
        Stelle(3, 300, 200);
        Setze(0, Frei);
        Setze(1, Unterbrochen);
        Setze(2, Geblankt);
        const QImage bild = Bild(dichte);
        std::set<std::vector<bool>> formen;
        const auto links = static_cast<int>(100 * dichte);
        const auto rechts = static_cast<int>(240 * dichte);
        for (int strahl = 0; strahl < 3; ++strahl)
            formen.insert(
                Tinte(bild, links, rechts, static_cast<int>(balken.Strahlmitte(strahl).y() * dichte)));
        EXPECT_EQ(formen.size(), 3U) << dichte;
    }
}

TEST_F(BeamBar, A_free_beam_reaches_the_receiver_and_an_interrupted_one_does_not) {
    Stelle(3, 300, 200);
    Setze(1, Unterbrochen);
    const QImage bild = Bild();
    const auto ankunft = [&](int strahl) {
        return Tinte(bild, 220, 240, static_cast<int>(balken.Strahlmitte(strahl).y()));
    };
    EXPECT_EQ(ankunft(0), std::vector<bool>(20, true));
    EXPECT_EQ(ankunft(1), std::vector<bool>(20, false));
}

TEST_F(BeamBar, States_differ_in_grey_even_where_beams_are_areas) {
    Stelle(512, 300, 300, 5);
    Setze(100, Unterbrochen);
    for (int strahl = 200; strahl < 300; ++strahl)
        Setze(strahl, Geblankt);
    const QImage bild = Bild();
    std::set<std::vector<bool>> formen;
    for (const int strahl : {100, 250, 400})
        formen.insert(Tinte(bild, 70, 250, static_cast<int>(balken.Strahlmitte(strahl).y())));
    EXPECT_EQ(formen.size(), 3U);
}

TEST_F(BeamBar, Rows_are_sharp_at_every_scale) {
    for (const double dichte : {1.0, 1.5, 2.0}) {
        Stelle(100, 300, 400);
        const QImage bild = Bild(dichte);
        const auto x = static_cast<int>(100 * dichte);
        std::set<QRgb> farben;
        for (int y = static_cast<int>(40 * dichte); y < static_cast<int>(380 * dichte); ++y)
            farben.insert(bild.pixel(x, y));
        EXPECT_EQ(farben.size(), 2U) << dichte << ": line and ground, nothing in between";
    }
}

TEST_F(BeamBar, Light_and_dark_palettes_keep_all_states_readable) {
    for (const QPalette& palette : {QPalette(Qt::white), Dunkel()}) {
        const Strahlfarben farben = FarbenAus(palette);
        EXPECT_GE(Kontrast(farben.frei, farben.grund), 2.5);
        EXPECT_GE(Kontrast(farben.geblankt, farben.grund), 3);
        EXPECT_GE(Kontrast(farben.unterbrochen, farben.grund), 5);
    }
}

TEST_F(BeamBar, The_ground_is_the_base_of_the_palette) {
    Stelle(10, 300, 300);
    Bild();
    balken.setPalette(Dunkel());
    EXPECT_EQ(Bild().pixelColor(1, 1), Dunkel().color(QPalette::Base));
}

TEST_F(BeamBar, Without_a_spacing_there_is_no_scale_and_more_room_for_beams) {
    Stelle(10, 300, 300, 10);
    const double mitSkala = balken.Strahlmitte(0).x();
    balken.SetzeStrahlabstand(0);
    EXPECT_LT(balken.Strahlmitte(0).x(), mitSkala);
}

TEST_F(BeamBar, Any_size_and_any_number_of_beams_can_be_drawn) {
    for (const QSize groesse : {QSize(1, 1), QSize(20, 300), QSize(300, 20), QSize(96, 120)})
        for (const int strahlen : {0, 1, 2, 512}) {
            Stelle(strahlen, groesse.width(), groesse.height());
            EXPECT_EQ(Bild().size(), groesse);
        }
}

TEST_F(BeamBar, A_state_is_given_to_the_selected_beam) {
    Stelle(10, 300, 300);
    balken.WaehleStrahl(4);
    balken.SetzeZustand(Geblankt);
    EXPECT_EQ(balken.Zustand(), Geblankt);
    EXPECT_EQ(balken.Zustand(4), Geblankt);
    EXPECT_EQ(balken.Zustand(5), Frei);
}

TEST_F(BeamBar, Selecting_a_beam_that_is_none_changes_nothing) {
    Stelle(10, 300, 300);
    for (const int index : {-1, 10, 65535}) {
        balken.WaehleStrahl(index);
        balken.SetzeZustand(Geblankt);
        EXPECT_EQ(balken.Zustand(), Frei);
    }
    EXPECT_EQ(balken.Zustand(9), Frei);
}

TEST_F(BeamBar, A_scan_is_one_paint) {
    Stelle(512, 300, 400);
    Zeige();
    balken.SetzeAutomatischesZeichnen(false);
    for (int strahl = 0; strahl < 512; ++strahl)
        Setze(strahl, Unterbrochen);
    QApplication::processEvents();
    EXPECT_EQ(balken.gezeichnet, 0);
    balken.SetzeAutomatischesZeichnen(true);
    pruefung::WarteBis([this] { return balken.gezeichnet > 0; });
    QApplication::processEvents();
    EXPECT_EQ(balken.gezeichnet, 1);
}

TEST_F(BeamBar, A_beam_that_changes_draws_its_row_and_no_others) {
    Stelle(128, 300, 500);
    Zeige();
    Setze(20, Unterbrochen);
    Setze(100, Geblankt);
    ASSERT_TRUE(WarteBis([this] { return balken.gezeichnet > 0; }));
    for (const int strahl : {20, 100})
        EXPECT_TRUE(balken.gebiet.contains(balken.Strahlmitte(strahl).toPoint())) << strahl;
    EXPECT_FALSE(balken.gebiet.contains(balken.Strahlmitte(60).toPoint()));
    EXPECT_LT(balken.gebiet.boundingRect().width(), balken.width());
}

TEST_F(BeamBar, Changes_of_some_beams_leave_the_same_picture_as_a_paint_of_all) {
    std::mt19937 zufall(7);
    const auto bis = [&](int anzahl) { return std::uniform_int_distribution<>(0, anzahl - 1)(zufall); };
    for (const auto& [strahlen, hoehe] : {std::pair(4, 300), {20, 300}, {128, 330}, {512, 300}, {512, 777}}) {
        Stelle(strahlen, 260, hoehe);
        Zeige();
        for (int scan = 0; scan < 12; ++scan) {
            balken.SetzeAutomatischesZeichnen(false);
            const int lauf = bis(strahlen / 4) + 1;
            for (int stelle = 0; stelle <= scan; ++stelle)
                for (int i = 0, von = bis(strahlen); i < lauf && von + i < strahlen; ++i)
                    Setze(von + i,
                          std::array{Frei, Unterbrochen, Geblankt}[static_cast<std::size_t>(bis(3))]);
            balken.SetzeAutomatischesZeichnen(true);
            QApplication::processEvents();
            ASSERT_EQ(Gesehenes(), Bild()) << strahlen << " beams, " << hoehe << " pixels, scan " << scan;
        }
    }
}

TEST_F(BeamBar, A_scan_without_a_change_is_not_painted) {
    Stelle(512, 300, 400);
    Zeige();
    balken.SetzeAutomatischesZeichnen(false);
    for (int strahl = 0; strahl < 512; ++strahl)
        Setze(strahl, Frei);
    balken.SetzeAutomatischesZeichnen(true);
    QApplication::processEvents();
    EXPECT_EQ(balken.gezeichnet, 0);
}

TEST_F(BeamBar, The_beam_under_the_pointer_is_reported_once) {
    Stelle(32, 300, 400);
    std::vector<int> gemeldet;
    QObject::connect(&balken, &BeamBarControl::StrahlUnterMaus,
                     [&](int index) { gemeldet.push_back(index); });
    Maus(QEvent::MouseMove, balken.Strahlmitte(7), Qt::NoButton);
    Maus(QEvent::MouseMove, balken.Strahlmitte(7) + QPointF(3, 0), Qt::NoButton);
    Maus(QEvent::MouseMove, QPointF(100, 1), Qt::NoButton);
    EXPECT_EQ(gemeldet, (std::vector{7, -1}));
}

TEST_F(BeamBar, Leaving_the_widget_reports_no_beam) {
    Stelle(32, 300, 400);
    Maus(QEvent::MouseMove, balken.Strahlmitte(7), Qt::NoButton);
    std::vector<int> gemeldet;
    QObject::connect(&balken, &BeamBarControl::StrahlUnterMaus,
                     [&](int index) { gemeldet.push_back(index); });
    QEvent weg(QEvent::Leave);
    QApplication::sendEvent(&balken, &weg);
    EXPECT_EQ(gemeldet, std::vector{-1});
}

TEST_F(BeamBar, The_beam_under_the_pointer_is_marked_beside_its_row) {
    Stelle(32, 300, 400);
    const QImage ohne = Bild();
    Maus(QEvent::MouseMove, balken.Strahlmitte(7), Qt::NoButton);
    const std::set<int> marke = VerschiedeneZeilen(ohne, Bild());
    ASSERT_FALSE(marke.empty());
    EXPECT_NEAR((*marke.begin() + *marke.rbegin()) / 2.0, balken.Strahlmitte(7).y(), 1);
}

TEST_F(BeamBar, The_mark_of_the_pointer_goes_with_the_pointer) {
    Stelle(32, 300, 400);
    const QImage ohne = Bild();
    Maus(QEvent::MouseMove, balken.Strahlmitte(7), Qt::NoButton);
    QEvent weg(QEvent::Leave);
    QApplication::sendEvent(&balken, &weg);
    EXPECT_TRUE(VerschiedeneZeilen(ohne, Bild()).empty());
}

TEST_F(BeamBar, Every_beam_is_hit_in_its_middle) {
    Stelle(64, 300, 400);
    for (int strahl = 0; strahl < 64; ++strahl)
        EXPECT_EQ(balken.StrahlBei(balken.Strahlmitte(strahl)), strahl);
    EXPECT_EQ(balken.StrahlBei(QPointF(-5, 200)), -1);
}

TEST_F(BeamBar, The_wheel_zooms_around_the_pointer) {
    Stelle(100, 300, 400);
    const QPointF stelle = balken.Strahlmitte(70);
    EXPECT_TRUE(Rad(stelle, 4));
    EXPECT_LT(balken.SichtbarerAusschnitt().anzahl, 50);
    EXPECT_EQ(balken.StrahlBei(stelle), 70);
}

TEST_F(BeamBar, The_wheel_is_passed_on_where_all_beams_are_shown_already) {
    Stelle(100, 300, 400);
    EXPECT_FALSE(Rad(balken.Strahlmitte(70), -1));
}

TEST_F(BeamBar, A_dragged_band_is_zoomed_in) {
    Stelle(100, 300, 400);
    Ziehe(balken.Strahlmitte(20), balken.Strahlmitte(39));
    EXPECT_EQ(balken.SichtbarerAusschnitt(), (Ausschnitt{20, 20}));
}

TEST_F(BeamBar, A_band_is_shown_over_the_rows_that_it_was_dragged_over) {
    Stelle(100, 300, 400);
    const int unten = static_cast<int>(balken.Strahlmitte(20).y());
    const int oben = static_cast<int>(balken.Strahlmitte(39).y());
    Maus(QEvent::MouseButtonPress, balken.Strahlmitte(20));
    const QImage ohne = Bild();
    Maus(QEvent::MouseMove, balken.Strahlmitte(39));
    const std::set<int> band = VerschiedeneZeilen(ohne, Bild());
    for (int y = oben + 1; y < unten; ++y)
        EXPECT_TRUE(band.contains(y)) << "row " << y;
}

TEST_F(BeamBar, A_click_in_zoom_mode_zooms_and_blanks_nothing) {
    Stelle(100, 300, 400);
    Klicke(20);
    EXPECT_EQ(balken.SichtbarerAusschnitt(), GanzerAusschnitt(100));
    EXPECT_EQ(balken.Zustand(20), Frei);
}

TEST_F(BeamBar, A_double_click_shows_all_beams_again) {
    Stelle(100, 300, 400);
    balken.ZeigeAusschnitt({20, 20});
    Maus(QEvent::MouseButtonDblClick, balken.Strahlmitte(25));
    EXPECT_EQ(balken.SichtbarerAusschnitt(), GanzerAusschnitt(100));
}

TEST_F(BeamBar, Dragging_with_the_middle_button_moves_the_view) {
    Stelle(100, 300, 400);
    balken.ZeigeAusschnitt({20, 20});
    Ziehe(balken.Strahlmitte(30), balken.Strahlmitte(25), Qt::MiddleButton);
    EXPECT_NEAR(balken.SichtbarerAusschnitt().unten, 25, 0.1);
}

TEST_F(BeamBar, Dragging_the_scale_moves_the_view) {
    Stelle(100, 300, 400);
    balken.ZeigeAusschnitt({20, 20});
    Ziehe(QPointF(5, 200), QPointF(5, 9000));
    EXPECT_NEAR(balken.SichtbarerAusschnitt().unten, 80, 0.1);
}

TEST_F(BeamBar, Another_number_of_beams_shows_all_of_them) {
    Stelle(100, 300, 400);
    balken.ZeigeAusschnitt({20, 20});
    balken.SetzeStrahlanzahl(64);
    EXPECT_EQ(balken.SichtbarerAusschnitt(), GanzerAusschnitt(64));
}

class BeamBarBlanking : public BeamBar {
protected:
    BeamBarBlanking() {
        Stelle(40, 300, 400);
        balken.SetzeBedienart(Bedienart::Blanking);
        QObject::connect(&balken, &BeamBarControl::BlankingGeaendert,
                         [this](int index, bool geblankt) { gemeldet.emplace_back(index, geblankt); });
    }

    std::vector<std::pair<int, bool>> gemeldet;
};

TEST_F(BeamBarBlanking, A_click_blanks_a_beam_and_another_frees_it) {
    Klicke(5);
    EXPECT_EQ(balken.Zustand(5), Geblankt);
    Klicke(5);
    EXPECT_EQ(balken.Zustand(5), Frei);
    EXPECT_EQ(gemeldet, (std::vector<std::pair<int, bool>>{{5, true}, {5, false}}));
}

TEST_F(BeamBarBlanking, A_drag_gives_all_beams_on_its_way_the_state_of_the_first) {
    Setze(12, Geblankt);
    Ziehe(balken.Strahlmitte(10), balken.Strahlmitte(14));
    for (int strahl = 10; strahl <= 14; ++strahl)
        EXPECT_EQ(balken.Zustand(strahl), Geblankt) << strahl;
    EXPECT_EQ(balken.Zustand(9), Frei);
    EXPECT_EQ(balken.Zustand(15), Frei);
    EXPECT_EQ(gemeldet.size(), 4U);
}

TEST_F(BeamBarBlanking, A_drag_that_begins_on_a_blanked_beam_frees) {
    for (int strahl = 10; strahl <= 14; ++strahl)
        Setze(strahl, Geblankt);
    Ziehe(balken.Strahlmitte(14), balken.Strahlmitte(10));
    for (int strahl = 10; strahl <= 14; ++strahl)
        EXPECT_EQ(balken.Zustand(strahl), Frei) << strahl;
}

TEST_F(BeamBarBlanking, A_drag_beyond_the_edge_paints_to_the_last_beam) {
    Ziehe(balken.Strahlmitte(37), QPointF(150, -500));
    EXPECT_EQ(balken.Zustand(39), Geblankt);
}

TEST_F(BeamBarBlanking, Two_quick_clicks_toggle_twice) {
    balken.ZeigeAusschnitt({0, 20});
    Klicke(5);
    Maus(QEvent::MouseButtonDblClick, balken.Strahlmitte(5));
    EXPECT_EQ(balken.Zustand(5), Frei);
    EXPECT_EQ(balken.SichtbarerAusschnitt(), (Ausschnitt{0, 20}));
}

TEST_F(BeamBarBlanking, Space_toggles_the_beam_of_the_cursor) {
    Taste(Qt::Key_Home);
    Taste(Qt::Key_Up);
    Taste(Qt::Key_Space);
    EXPECT_EQ(gemeldet, (std::vector<std::pair<int, bool>>{{1, true}}));
}

TEST_F(BeamBarBlanking, Keys_move_the_cursor_within_the_beams) {
    const auto geblankt = [this] {
        Taste(Qt::Key_Space);
        return gemeldet.back().first;
    };
    Taste(Qt::Key_End);
    EXPECT_EQ(geblankt(), 39);
    Taste(Qt::Key_PageDown);
    EXPECT_EQ(geblankt(), 29);
    Taste(Qt::Key_PageUp);
    Taste(Qt::Key_PageUp);
    EXPECT_EQ(geblankt(), 39);
    Taste(Qt::Key_Home);
    Taste(Qt::Key_Down);
    EXPECT_EQ(geblankt(), 0);
}

TEST_F(BeamBarBlanking, The_view_follows_the_cursor) {
    balken.ZeigeAusschnitt({0, 10});
    Taste(Qt::Key_End);
    EXPECT_EQ(balken.SichtbarerAusschnitt(), (Ausschnitt{30, 10}));
}

TEST_F(BeamBarBlanking, Keys_zoom_and_other_keys_are_passed_on) {
    EXPECT_TRUE(Taste(Qt::Key_Plus));
    EXPECT_LT(balken.SichtbarerAusschnitt().anzahl, 40);
    EXPECT_TRUE(Taste(Qt::Key_0));
    EXPECT_EQ(balken.SichtbarerAusschnitt(), GanzerAusschnitt(40));
    EXPECT_FALSE(Taste(Qt::Key_Escape));
}

TEST_F(BeamBarBlanking, Space_does_nothing_in_zoom_mode) {
    balken.SetzeBedienart(Bedienart::Zoom);
    Taste(Qt::Key_Space);
    EXPECT_TRUE(gemeldet.empty());
}

TEST_F(BeamBarBlanking, Fewer_beams_end_a_drag) {
    Maus(QEvent::MouseButtonPress, balken.Strahlmitte(39));
    balken.SetzeStrahlanzahl(4);
    Maus(QEvent::MouseMove, QPointF(150, 390));
    EXPECT_EQ(balken.Zustand(0), Frei);
}
