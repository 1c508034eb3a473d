// What a beam bar shows to those who watch: the strip of all beams, the row under the pointer, and what a
// screen reader gets.

#include "beambartest.h"
#include "strahlfarben.h"
#include "texte.h"

#include <QAccessible>

#include <vector>

using namespace varnoth;
using namespace varnoth::pruefung;

namespace {

class BeamBarBeobachtung : public BeamBarTest {
protected:
    BeamBarBeobachtung() {
        balken.SetzeBeobachtung(true);
        Stelle(512, 320, 420, 5);
    }

    static constexpr int Streifenmitte = 320 - 3 - 5; // the strip lies 3 pixels from the right edge

    /// The rows of the strip that show an interrupted beam.
    int RoteZeilen() {
        const QRgb rot = FarbenAus(balken.palette()).unterbrochen.rgb();
        const QImage bild = Bild();
        int zeilen = 0;
        for (int y = 0; y < bild.height(); ++y)
            zeilen += bild.pixel(Streifenmitte, y) == rot ? 1 : 0;
        return zeilen;
    }
    QAccessibleInterface& Zugang() { return *QAccessible::queryAccessibleInterface(&balken); }
};

} // namespace

TEST_F(BeamBarBeobachtung, A_bar_that_shows_all_beams_needs_no_strip) {
    Setze(100, Unterbrochen);
    EXPECT_EQ(RoteZeilen(), 0);
}

TEST_F(BeamBarBeobachtung, Every_interrupted_beam_shows_in_the_strip_wherever_the_view_is) {
    balken.ZeigeAusschnitt({200, 20});
    for (int strahl = 0; strahl < 512; ++strahl) {
        Setze(strahl, Unterbrochen);
        ASSERT_GE(RoteZeilen(), 3) << strahl;
        Setze(strahl, Frei);
    }
}

TEST_F(BeamBarBeobachtung, The_strip_shows_the_range_of_the_view) {
    balken.ZeigeAusschnitt({0, 128});
    const QImage unten = Bild();
    balken.ZeigeAusschnitt({384, 128});
    const QImage oben = Bild();
    const int x = 320 - 3 - 16 + 1;
    const QRgb marke = FarbenAus(balken.palette()).marke.rgb();
    EXPECT_EQ(unten.pixel(x, 400), marke);
    EXPECT_NE(unten.pixel(x, 60), marke);
    EXPECT_EQ(oben.pixel(x, 60), marke);
    EXPECT_NE(oben.pixel(x, 400), marke);
}

TEST_F(BeamBarBeobachtung, A_strip_without_values_shows_none) {
    Setze(100, Unterbrochen);
    balken.ZeigeAusschnitt({200, 20});
    balken.SetzeDatenstand(Datenstand::Ungueltig);
    EXPECT_EQ(RoteZeilen(), 0);
}

TEST_F(BeamBarBeobachtung, A_click_in_the_strip_moves_the_view_there) {
    balken.ZeigeAusschnitt({0, 64});
    Ziehe({Streifenmitte, 220}, {Streifenmitte, 220});
    EXPECT_NEAR(balken.SichtbarerAusschnitt().unten + 32, 256, 15);
    EXPECT_EQ(balken.SichtbarerAusschnitt().anzahl, 64);
}

TEST_F(BeamBarBeobachtung, A_drag_in_the_strip_takes_the_view_along) {
    balken.ZeigeAusschnitt({0, 64});
    Ziehe({Streifenmitte, 400}, {Streifenmitte, 20});
    EXPECT_EQ(balken.SichtbarerAusschnitt().unten, 448);
}

TEST_F(BeamBarBeobachtung, The_strip_is_no_beam) {
    balken.ZeigeAusschnitt({0, 64});
    EXPECT_EQ(balken.StrahlBei({Streifenmitte, 200}), -1);
    EXPECT_GE(balken.StrahlBei({150, 200}), 0);
}

TEST_F(BeamBarBeobachtung, Zooming_and_its_end_are_reported) {
    int gemeldet = 0;
    QObject::connect(&balken, &BeamBarControl::AusschnittGeaendert, [&] { ++gemeldet; });
    Rad(balken.Strahlmitte(70), 4);
    EXPECT_TRUE(balken.IstGezoomt());
    balken.ZeigeAlles();
    EXPECT_FALSE(balken.IstGezoomt());
    balken.ZeigeAlles();
    EXPECT_EQ(gemeldet, 2);
}

TEST_F(BeamBarBeobachtung, Beams_keep_their_height_when_the_strip_appears) {
    for (const int abstand : {0, 5}) {
        balken.SetzeStrahlabstand(abstand);
        balken.ZeigeAlles();
        const QPointF oben = balken.Strahlmitte(511);
        const QPointF unten = balken.Strahlmitte(0);
        balken.ZeigeAusschnitt({0, 256});
        EXPECT_NEAR(balken.Strahlmitte(0).y(), unten.y(), 1);
        EXPECT_NEAR(balken.Strahlmitte(255).y(), oben.y(), 1);
    }
}

TEST_F(BeamBarBeobachtung, There_is_room_for_a_line_of_text_above_the_beams) {
    for (const int abstand : {0, 5}) {
        balken.SetzeStrahlabstand(abstand);
        EXPECT_GE(balken.Kopfzeile().height(), balken.fontMetrics().height());
        EXPECT_LT(balken.Kopfzeile().bottom(), balken.Strahlmitte(511).y());
    }
}

TEST_F(BeamBarBeobachtung, No_beam_number_stands_in_the_line_above_a_zoomed_view) {
    for (int zehntel = 0; zehntel < 10; ++zehntel) {
        balken.ZeigeAusschnitt({200 + zehntel / 10.0, 20});
        const QImage bild = Bild();
        const QRect zeile = balken.Kopfzeile();
        for (int y = zeile.top(); y <= zeile.bottom(); ++y)
            for (int x = zeile.left(); x <= zeile.right(); ++x)
                ASSERT_EQ(bild.pixelColor(x, y), balken.palette().color(QPalette::Base))
                    << zehntel << ": " << x << ", " << y;
    }
}

TEST_F(BeamBarBeobachtung, The_row_under_the_pointer_is_marked_across_the_whole_width) {
    Stelle(40, 320, 420);
    const QImage ohne = Bild();
    Maus(QEvent::MouseMove, balken.Strahlmitte(7), Qt::NoButton);
    const QImage mit = Bild();
    const auto y = static_cast<int>(balken.Strahlmitte(7).y());
    for (int x = 0; x < 320; ++x)
        ASSERT_NE(mit.pixel(x, y), ohne.pixel(x, y)) << x;
}

TEST_F(BeamBarBeobachtung, A_marked_row_still_tells_its_state) {
    Setze(7, Unterbrochen);
    Maus(QEvent::MouseMove, balken.Strahlmitte(7), Qt::NoButton);
    const QImage unterbrochen = Bild();
    Setze(7, Frei);
    EXPECT_NE(Bild(), unterbrochen);
}

TEST_F(BeamBarBeobachtung, A_bar_for_editing_looks_as_ever) {
    balken.SetzeBeobachtung(false);
    balken.ZeigeAusschnitt({200, 20});
    Setze(0, Unterbrochen);
    EXPECT_EQ(RoteZeilen(), 0);
    const double ersterX = balken.Strahlmitte(205).x();
    balken.ZeigeAlles();
    EXPECT_EQ(balken.Strahlmitte(205).x(), ersterX);
    const QImage ohne = Bild();
    Maus(QEvent::MouseMove, balken.Strahlmitte(7), Qt::NoButton);
    const auto y = static_cast<int>(balken.Strahlmitte(7).y());
    EXPECT_EQ(Bild().pixel(2, y), ohne.pixel(2, y));
}

TEST_F(BeamBarBeobachtung, A_screen_reader_gets_count_ranges_and_the_beam_at_the_pointer) {
    SetzeSprachoffset(Deutsch);
    for (const int strahl : {79, 80, 81, 200})
        Setze(strahl, Unterbrochen);
    balken.setAccessibleDescription("Status: Loch erkannt");
    EXPECT_EQ(Zugang().text(QAccessible::Value), "512 Strahlen; unterbrochen: 80–82, 201; geblankt: keine");
    Maus(QEvent::MouseMove, balken.Strahlmitte(80), Qt::NoButton);
    const int strahl = balken.StrahlAmZeiger();
    EXPECT_EQ(Zugang().text(QAccessible::Description),
              QStringLiteral("Status: Loch erkannt; 512 Strahlen; unterbrochen: 80–82, 201; geblankt: keine; "
                             "Strahl %1, %2 mm: unterbrochen")
                  .arg(strahl + 1)
                  .arg(5 * strahl));
    EXPECT_EQ(Zugang().text(QAccessible::Name), balken.accessibleName());
}

TEST_F(BeamBarBeobachtung, A_screen_reader_gets_no_states_without_values) {
    Setze(79, Unterbrochen);
    balken.SetzeDatenstand(Datenstand::Ungueltig);
    EXPECT_EQ(Zugang().text(QAccessible::Value), "512 Strahlen; Keine aktuellen Werte");
}

TEST_F(BeamBarBeobachtung, A_scan_with_strip_and_pointer_is_one_paint) {
    Zeige();
    balken.ZeigeAusschnitt({0, 64});
    Maus(QEvent::MouseMove, balken.Strahlmitte(7), Qt::NoButton);
    QApplication::processEvents();
    balken.gezeichnet = 0;
    balken.SetzeAutomatischesZeichnen(false);
    for (int strahl = 0; strahl < 512; ++strahl)
        Setze(strahl, Unterbrochen);
    balken.SetzeAutomatischesZeichnen(true);
    WarteBis([this] { return balken.gezeichnet > 0; });
    QApplication::processEvents();
    EXPECT_EQ(balken.gezeichnet, 1);
}
