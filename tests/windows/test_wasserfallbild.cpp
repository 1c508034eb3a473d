#include "wasserfallbild.h"

#include "ereigniszaehler.h"
#include "fenstertest.h"
#include "pruefmessanbieter.h"
#include "pruefumgebung.h"
#include "strahlproben.h"
#include "texte.h"

#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using namespace strahlproben;
using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::StartsWith;

/// The waterfall of a part with 40 beams, of which beam 8 (index 7) is interrupted in the second half.
class WasserfallbildTest : public testing::Test {
protected:
    static constexpr int Durchgaenge = 1200; // a minute

    WasserfallbildTest() {
        anbieter.quelle.angaben.beginn = std::chrono::sys_days{std::chrono::year(2026) / 11 / 22} + 5h;
        EXPECT_TRUE(anbieter.quelle.konfiguration.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten,
                                                                spezifisch::Strahlenzahl, 40));
        EXPECT_TRUE(anbieter.quelle.konfiguration.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten,
                                                                spezifisch::Aufloesung, 10));
        Fuelle(anbieter.quelle, Durchgaenge, 40,
               [](int durchgang, int strahl) { return strahl == 7 && durchgang >= Durchgaenge / 2; });
    }
    void Oeffne() {
        bild.resize(700, 400);
        bild.SetzeAnbieter(anbieter);
        bild.show();
        Bis([this] { return !bild.IstUnvollstaendig(); });
    }
    template<class Bedingung>
    bool Bis(Bedingung bedingung) {
        bild.grab();
        return pruefung::WarteBis([&] {
            umgebung.ErledigeAufgeschobenes();
            bild.grab();
            return bedingung();
        });
    }
    QColor Farbe(Zeit zeit, int strahl) {
        const QImage gemalt = bild.AlsBild();
        return gemalt.pixelColor(bild.PunktVon({zeit, strahl}).toPoint());
    }
    QPoint Punkt(Zeit zeit, int strahl) { return bild.PunktVon({zeit, strahl}).toPoint(); }
    void Rolle(QPoint wo, int rasten, Qt::KeyboardModifiers mit = {}) {
        QWheelEvent rad(wo, bild.mapToGlobal(wo), {}, {0, 120 * rasten}, {}, mit, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&bild, &rad);
    }
    void Ziehe(QPoint von, QPoint bis, Qt::KeyboardModifiers mit = {},
               Qt::MouseButton knopf = Qt::LeftButton) {
        QTest::mousePress(&bild, knopf, mit, von);
        QMouseEvent weiter(QEvent::MouseMove, bis, bild.mapToGlobal(bis), Qt::NoButton, knopf, mit);
        QCoreApplication::sendEvent(&bild, &weiter);
        QTest::mouseRelease(&bild, knopf, mit, bis);
    }
    std::string Stellentext() { return bild.Stellentext().toStdString(); }
    Zeit Dauer() { return bild.Fenster().Bis() - bild.Fenster().Von(); }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefMessanbieter anbieter;
    Wasserfallbild bild;
};

TEST_F(WasserfallbildTest, Shows_a_beam_interrupted_when_it_was_and_free_when_it_was) {
    Oeffne();
    bild.ZeigeAlles();
    const Strahlfarben farben = FarbenAus(bild.palette());
    EXPECT_EQ(Farbe(45s, 7).rgb(), farben.unterbrochen.rgb());
    EXPECT_EQ(Farbe(15s, 7).rgb(), AlsFlaeche(farben.frei, farben.grund).rgb());
    EXPECT_EQ(Farbe(45s, 8).rgb(), AlsFlaeche(farben.frei, farben.grund).rgb());
}

TEST_F(WasserfallbildTest, Shows_a_blanked_beam_as_such_whatever_it_does) {
    Blanke(anbieter.quelle.konfiguration, 0, {7});
    Oeffne();
    bild.ZeigeAlles();
    bild.SetzeStelle(Strahlstelle{45s, 7});
    Bis([] { return true; });
    EXPECT_THAT(Stellentext(), HasSubstr("geblankt"));
}

TEST_F(WasserfallbildTest, Follows_live_data_at_first_and_slides_with_it) {
    Oeffne();
    EXPECT_EQ(bild.DerBlick(), Wasserfallbild::Blick::Folgt);
    const Zeit vorher = bild.Fenster().Bis();
    EXPECT_GT(vorher, anbieter.quelle.Spanne().bis);
    Fuelle(
        anbieter.quelle, 200, 40, [](int, int) { return false; }, 0, 60s);
    bild.NimmZuwachs();
    EXPECT_GT(bild.Fenster().Bis(), anbieter.quelle.Spanne().bis);
    EXPECT_LE(bild.Fenster().Bis() - anbieter.quelle.Spanne().bis, bild.Fenster().breite);
    EXPECT_GT(bild.Fenster().Bis(), vorher);
}

TEST_F(WasserfallbildTest, Moved_elsewhere_it_stands_still_while_data_comes) {
    Oeffne();
    QSignalSpy gewechselt(&bild, &Wasserfallbild::BlickGeaendert);
    Ziehe(Punkt(30s, 20), Punkt(30s, 20) + QPoint(150, 0), Qt::ShiftModifier);
    EXPECT_EQ(bild.DerBlick(), Wasserfallbild::Blick::Fest);
    EXPECT_EQ(gewechselt.count(), 1);
    const Zeitfenster vorher = bild.Fenster();
    Fuelle(
        anbieter.quelle, 200, 40, [](int, int) { return false; }, 0, 60s);
    bild.NimmZuwachs();
    EXPECT_EQ(bild.Fenster(), vorher);
}

TEST_F(WasserfallbildTest, A_record_is_shown_from_its_beginning_to_its_end) {
    anbieter.wiedergabe = true;
    anbieter.jetzt = 10s;
    Oeffne();
    EXPECT_EQ(bild.DerBlick(), Wasserfallbild::Blick::Alles);
    EXPECT_LE(bild.Fenster().Von(), 0s);
    EXPECT_GT(bild.Fenster().Bis(), anbieter.quelle.Spanne().bis);
    EXPECT_LT(Dauer(), 90s);
}

TEST_F(WasserfallbildTest, Everything_stays_in_view_while_more_comes) {
    Oeffne();
    bild.ZeigeAlles();
    Fuelle(
        anbieter.quelle, 2400, 40, [](int, int) { return false; }, 0, 60s);
    bild.NimmZuwachs();
    EXPECT_LE(bild.Fenster().Von(), 0s);
    EXPECT_GT(bild.Fenster().Bis(), anbieter.quelle.Spanne().bis);
}

TEST_F(WasserfallbildTest, The_wheel_zooms_the_time_around_the_pointer) {
    Oeffne();
    bild.ZeigeAlles();
    const QPoint wo = Punkt(20s, 20);
    const Zeit vorher = Dauer();
    const Zeit spalte = bild.Fenster().breite;
    const Zeit darunter = bild.StelleBei(wo)->zeit;
    Rolle(wo, 3);
    EXPECT_LT(Dauer(), vorher / 2);
    EXPECT_LE(std::chrono::abs(bild.StelleBei(wo)->zeit - darunter), spalte);
    Rolle(wo, -3);
    EXPECT_EQ(Dauer(), vorher);
    EXPECT_EQ(bild.SichtbareStrahlen(), GanzerAusschnitt(40));
}

TEST_F(WasserfallbildTest, With_ctrl_or_over_the_numbers_the_wheel_zooms_the_beams) {
    Oeffne();
    Rolle(Punkt(30s, 7), 4, Qt::ControlModifier);
    const double nah = bild.SichtbareStrahlen().anzahl;
    EXPECT_LT(nah, 20);
    EXPECT_LE(bild.SichtbareStrahlen().unten, 7);
    EXPECT_GE(bild.SichtbareStrahlen().unten + nah, 8);
    Rolle(QPoint(4, 200), -1);
    EXPECT_GT(bild.SichtbareStrahlen().anzahl, nah);
}

TEST_F(WasserfallbildTest, Zooms_down_to_single_passes_and_beams) {
    Oeffne();
    bild.ZeigeAlles();
    for (int i = 0; i < 20; ++i)
        Rolle(Punkt(30s, 7), 1);
    for (int i = 0; i < 20; ++i)
        Rolle(Punkt(30s, 7), 1, Qt::ControlModifier);
    EXPECT_LT(Dauer(), 10 * Takt);
    EXPECT_EQ(bild.SichtbareStrahlen().anzahl, MindestAusschnitt);
    ASSERT_TRUE(Bis([&] { return !bild.IstUnvollstaendig(); }));
    const Strahlfarben farben = FarbenAus(bild.palette());
    EXPECT_EQ(Farbe(30s + 5ms, 7).rgb(), farben.unterbrochen.rgb());
    EXPECT_EQ(Farbe(30s - 5ms, 7).rgb(), AlsFlaeche(farben.frei, farben.grund).rgb());
}

TEST_F(WasserfallbildTest, Dragging_in_the_picture_chooses_a_time) {
    Oeffne();
    bild.ZeigeAlles();
    QSignalSpy gewaehlt(&bild, &Wasserfallbild::ZeitraumGeaendert);
    QSignalSpy geklickt(&bild, &Wasserfallbild::ZeitAngeklickt);
    Ziehe(Punkt(40s, 20), Punkt(20s, 5));
    ASSERT_TRUE(bild.Gewaehlt());
    EXPECT_NEAR(static_cast<double>(bild.Gewaehlt()->von.count()), 20e6, 2e5);
    EXPECT_NEAR(static_cast<double>(bild.Gewaehlt()->bis.count()), 40e6, 2e5);
    EXPECT_GE(gewaehlt.count(), 1);
    EXPECT_EQ(geklickt.count(), 0);
    QTest::keyClick(&bild, Qt::Key_Escape);
    EXPECT_FALSE(bild.Gewaehlt());
}

TEST_F(WasserfallbildTest, A_click_tells_the_time_and_chooses_nothing) {
    Oeffne();
    bild.ZeigeAlles();
    QSignalSpy geklickt(&bild, &Wasserfallbild::ZeitAngeklickt);
    QTest::mouseClick(&bild, Qt::LeftButton, {}, Punkt(25s, 20));
    ASSERT_EQ(geklickt.count(), 1);
    EXPECT_NEAR(geklickt[0][0].toDouble(), 25e6, 2e5);
    EXPECT_FALSE(bild.Gewaehlt());
}

TEST_F(WasserfallbildTest, Dragging_on_the_axes_zooms_into_what_was_dragged_over) {
    Oeffne();
    bild.ZeigeAlles();
    const int unten = bild.height() - 4;
    Ziehe({Punkt(20s, 0).x(), unten}, {Punkt(30s, 0).x(), unten});
    EXPECT_NEAR(static_cast<double>(bild.Fenster().Von().count()), 20e6, 5e5);
    EXPECT_LT(Dauer(), 16s);
    Ziehe({5, Punkt(20s, 5).y()}, {5, Punkt(20s, 15).y()});
    EXPECT_NEAR(bild.SichtbareStrahlen().unten, 5, 1);
    EXPECT_NEAR(bild.SichtbareStrahlen().anzahl, 10, 1);
}

TEST_F(WasserfallbildTest, A_double_click_shows_everything_again) {
    Oeffne();
    Rolle(Punkt(30s, 7), 4, Qt::ControlModifier);
    Rolle(Punkt(50s, 7), 4);
    QTest::mouseDClick(&bild, Qt::LeftButton, {}, {300, 200});
    EXPECT_EQ(bild.SichtbareStrahlen(), GanzerAusschnitt(40));
    EXPECT_LE(bild.Fenster().Von(), 0s);
    EXPECT_GT(bild.Fenster().Bis(), anbieter.quelle.Spanne().bis);
}

TEST_F(WasserfallbildTest, Tells_beam_place_time_and_state_under_the_pointer) {
    Oeffne();
    bild.ZeigeAlles();
    QTest::mouseMove(&bild, Punkt(45s, 7));
    QMouseEvent bewegung(QEvent::MouseMove, Punkt(45s, 7), bild.mapToGlobal(Punkt(45s, 7)), Qt::NoButton,
                         Qt::NoButton, {});
    QCoreApplication::sendEvent(&bild, &bewegung);
    QSignalSpy erzaehlt(&bild, &Wasserfallbild::StelleGeaendert);
    EXPECT_TRUE(Bis([&] { return erzaehlt.count() == 1; })) << "it is drawn, so that its state is known";
    EXPECT_THAT(Stellentext(), StartsWith("Strahl 8, 70 mm"));
    EXPECT_THAT(Stellentext(), HasSubstr("22.11.2026 05:00:4"));
    EXPECT_THAT(Stellentext(), HasSubstr("unterbrochen"));
    EXPECT_THAT(bild.Ansage().toStdString(), HasSubstr("40 Strahlen"));
    EXPECT_THAT(bild.Ansage().toStdString(), HasSubstr("Strahl 8, 70 mm"));
}

TEST_F(WasserfallbildTest, The_keyboard_walks_by_columns_and_beams_and_takes_the_picture_along) {
    Oeffne();
    bild.ZeigeAlles();
    bild.SetzeStelle(Strahlstelle{45s, 7});
    QTest::keyClick(&bild, Qt::Key_Up);
    EXPECT_EQ(bild.Stelle()->strahl, 8);
    QTest::keyClick(&bild, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(bild.Stelle()->strahl, 0);
    QTest::keyClick(&bild, Qt::Key_Right);
    EXPECT_EQ(bild.Stelle()->zeit, 45s + bild.Fenster().breite);
    QTest::keyClick(&bild, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(bild.Stelle()->zeit, 45s - 9 * bild.Fenster().breite);
    for (int i = 0; i < 8; ++i)
        QTest::keyClick(&bild, Qt::Key_Plus);
    EXPECT_LT(Dauer(), 10s);
    QTest::keyClick(&bild, Qt::Key_Home);
    EXPECT_EQ(bild.Stelle()->zeit, 0s);
    EXPECT_LE(bild.Fenster().Von(), 0s);
    QTest::keyClick(&bild, Qt::Key_0);
    EXPECT_GT(Dauer(), 55s);
}

TEST_F(WasserfallbildTest, A_place_that_another_window_sets_is_drawn) {
    Oeffne();
    QCoreApplication::processEvents();
    pruefung::Ereigniszaehler zaehler(bild);
    bild.SetzeStelle(Strahlstelle{45s, 7});
    EXPECT_TRUE(pruefung::WarteBis([&] { return zaehler.anzahl[QEvent::Paint] > 0; }));
}

TEST_F(WasserfallbildTest, The_beam_of_a_place_is_framed_the_same_at_the_edges) {
    Oeffne();
    bild.ZeigeAlles();
    Bis([] { return true; });
    const QImage ohne = bild.AlsBild();
    const int daneben = Punkt(30s, 20).x();
    const auto gezeichnete = [&](int strahl) {
        bild.SetzeStelle(Strahlstelle{45s, strahl});
        const QImage mit = bild.AlsBild();
        int zeilen = 0;
        for (int y = 0; y < mit.height(); ++y)
            zeilen += mit.pixel(daneben, y) != ohne.pixel(daneben, y) ? 1 : 0;
        return zeilen;
    };
    const int mitten = gezeichnete(20);
    EXPECT_GT(mitten, 0);
    EXPECT_EQ(gezeichnete(0), mitten);
    EXPECT_EQ(gezeichnete(39), mitten);
}

TEST_F(WasserfallbildTest, The_keyboard_begins_in_the_middle_of_the_picture) {
    Oeffne();
    bild.ZeigeAlles();
    const Zeitfenster& fenster = bild.Fenster();
    QTest::keyClick(&bild, Qt::Key_Up);
    ASSERT_TRUE(bild.Stelle());
    EXPECT_EQ(bild.Stelle()->strahl, 21);
    EXPECT_EQ(bild.Stelle()->zeit, fenster.Von() + fenster.spalten / 2 * fenster.breite);
}

TEST_F(WasserfallbildTest, With_shift_the_keyboard_chooses_a_time_and_enter_goes_there) {
    Oeffne();
    bild.ZeigeAlles();
    bild.SetzeStelle(Strahlstelle{30s, 7});
    const Zeit breite = bild.Fenster().breite;
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&bild, Qt::Key_Right, Qt::ShiftModifier);
    ASSERT_TRUE(bild.Gewaehlt());
    EXPECT_EQ(*bild.Gewaehlt(), (Zeitspanne{30s, 30s + 3 * breite}));
    QTest::keyClick(&bild, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(*bild.Gewaehlt(), (Zeitspanne{30s, 30s + 2 * breite}));
    QSignalSpy geklickt(&bild, &Wasserfallbild::ZeitAngeklickt);
    QTest::keyClick(&bild, Qt::Key_Return);
    ASSERT_EQ(geklickt.count(), 1);
    EXPECT_EQ(geklickt[0][0].toLongLong(), Zeit(30s + 2 * breite).count());
}

TEST_F(WasserfallbildTest, A_picture_reads_few_packets_and_the_next_ones_read_the_rest) {
    Fuelle(
        anbieter.quelle, 6000, 40, [](int, int) { return false; }, 0, 60s);
    bild.resize(700, 400);
    bild.SetzeAnbieter(anbieter);
    Zeitfenster fenster = FensterUm({0s, 300s}, 640);
    bild.SetzeFenster(fenster);
    bild.grab();
    EXPECT_TRUE(bild.IstUnvollstaendig());
    EXPECT_LE(anbieter.quelle.gelesen, 30);
    bild.show();
    EXPECT_TRUE(Bis([&] { return !bild.IstUnvollstaendig(); }));
}

TEST_F(WasserfallbildTest, Sliding_to_either_side_draws_what_drawing_anew_draws) {
    Oeffne();
    bild.ZeigeAlles();
    for (int i = 0; i < 4; ++i)
        Rolle(Punkt(30s, 7), 1);
    bild.grab();
    for (const int um : {7, -3, -200, 5000, -5000}) {
        Zeitfenster fenster = bild.Fenster();
        fenster.erste += um;
        bild.SetzeFenster(fenster);
        ASSERT_TRUE(Bis([&] { return !bild.IstUnvollstaendig(); }));
        Wasserfallbild neues;
        neues.resize(bild.size());
        neues.SetzeAnbieter(anbieter);
        neues.SetzeFenster(fenster);
        do
            neues.grab();
        while (neues.IstUnvollstaendig());
        EXPECT_EQ(bild.AlsBild(), neues.AlsBild()) << um;
    }
}

TEST_F(WasserfallbildTest, Says_so_when_there_is_nothing_to_show) {
    pruefung::PruefMessanbieter leerer;
    bild.SetzeAnbieter(leerer);
    bild.resize(700, 400);
    bild.grab();
    EXPECT_THAT(bild.Ansage().toStdString(), StartsWith("Noch keine Messdaten"));
    SetzeSprachoffset(Englisch);
    EXPECT_THAT(bild.Ansage().toStdString(), StartsWith("No measured data"));
}

TEST_F(WasserfallbildTest, Another_source_shows_nothing_of_the_former) {
    Oeffne();
    bild.Waehle(Zeitspanne{10s, 20s});
    bild.SetzeStelle(Strahlstelle{45s, 7});
    pruefung::PruefMessanbieter anderer;
    Fuelle(anderer.quelle, 100, 16, [](int, int) { return false; });
    bild.SetzeAnbieter(anderer);
    EXPECT_FALSE(bild.Gewaehlt());
    EXPECT_FALSE(bild.Stelle());
    EXPECT_EQ(bild.Strahlen(), 16);
    bild.ZeigeAlles();
    bild.grab();
    bild.SetzeStelle(Strahlstelle{3s, 7});
    EXPECT_THAT(Stellentext(), HasSubstr("frei"));
}

} // namespace varnoth
