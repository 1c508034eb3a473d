#include "verlaufsbild.h"

#include "fenstertest.h"
#include "kurvenfarben.h"
#include "kurvenspur.h"
#include "kurvenstil.h"
#include "pruefdurchgaenge.h"
#include "pruefmessanbieter.h"
#include "pruefumgebung.h"
#include "texte.h"
#include "verlaufsfeld.h"

#include <QApplication>
#include <QPaintEvent>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include <cstdlib>

namespace varnoth {

using namespace pruefung;
using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

namespace {

constexpr QSize Groesse(900, 500);

/// What of a widget was drawn.
class Zeichnungen : public QObject {
public:
    explicit Zeichnungen(QWidget& welches) { welches.installEventFilter(this); }

    int anzahl = 0;
    QRect letzte;

protected:
    bool eventFilter(QObject* /*objekt*/, QEvent* ereignis) override {
        if (ereignis->type() != QEvent::Paint)
            return false;
        ++anzahl;
        letzte = static_cast<QPaintEvent*>(ereignis)->rect();
        return false;
    }
};

struct VerlaufsbildTest : testing::Test {
    VerlaufsbildTest() {
        bild.resize(Groesse);
        Verlaufswahl wahl;
        wahl.Setze({0, 0}, true);
        wahl.band = false;
        bild.SetzeWahl(wahl);
    }
    void Zeige() {
        bild.SetzeAnbieter(anbieter);
        Erledige();
    }
    void Erneuere() {
        bild.Erneuere();
        Erledige();
    }
    void Erledige() {
        while (!umgebung.aufgeschobenes.empty())
            umgebung.ErledigeAufgeschobenes();
    }
    QImage Aufnahme() { return bild.grab().toImage(); }
    /// Whether the curve covers a time and a value, a pixel more or less.
    bool HatKurve(const QImage& aufnahme, Zeit laufzeit, double wert) {
        const QPoint ort = bild.Stelle(laufzeit, wert).toPoint();
        const QColor farbe = VerlaufsfarbenAus(bild.palette()).Reihe({0, 0});
        for (int dx = -1; dx <= 1; ++dx)
            for (int dy = -1; dy <= 1; ++dy)
                if (aufnahme.pixel(ort + QPoint(dx, dy)) == farbe.rgb())
                    return true;
        return false;
    }
    void Drehe(QPointF ort, int stufen, Qt::KeyboardModifiers mit = Qt::NoModifier) {
        QWheelEvent ereignis(ort, bild.mapToGlobal(ort), {}, {0, 120 * stufen}, Qt::NoButton, mit,
                             Qt::NoScrollPhase, false);
        QApplication::sendEvent(&bild, &ereignis);
    }
    QPoint Ort(Zeit laufzeit, double wert = 50) { return bild.Stelle(laufzeit, wert).toPoint(); }

    PruefUmgebung umgebung;
    PruefMessanbieter anbieter;
    Verlaufsbild bild;
};

} // namespace

TEST_F(VerlaufsbildTest, A_spike_of_one_pass_in_eight_hours_is_seen) {
    for (int i = 0; i < 8 * 3600; ++i)
        anbieter.quelle.Nimm(PaketMit(seconds(i), 1, seconds(1), i == 17'321 ? 100 : 20));
    Zeige();
    bild.ZeigeAlles();
    Erledige();
    const QImage aufnahme = Aufnahme();
    EXPECT_TRUE(HatKurve(aufnahme, seconds(17'321), 100));
    EXPECT_TRUE(HatKurve(aufnahme, seconds(17'321), 60));
    EXPECT_FALSE(HatKurve(aufnahme, seconds(17'900), 60));
    EXPECT_TRUE(HatKurve(aufnahme, seconds(17'900), 20));
}

TEST_F(VerlaufsbildTest, A_picture_that_slides_looks_as_if_drawn_anew) {
    FuelleSekunden(anbieter.quelle, 400, 20);
    Zeige();
    Aufnahme();
    for (int i = 0; i < 30; ++i) {
        anbieter.quelle.Nimm(
            PaketMit(seconds(400 + i), 10, milliseconds(100), static_cast<std::uint16_t>(20 + 13 * i % 90)));
        Erneuere();
        Aufnahme();
    }
    const QImage geschoben = Aufnahme();
    Verlaufsbild neues;
    neues.resize(Groesse);
    neues.SetzeWahl(bild.Wahl());
    neues.SetzeAnbieter(anbieter);
    Erledige();
    EXPECT_EQ(neues.grab().toImage(), geschoben);
}

TEST_F(VerlaufsbildTest, What_is_seen_while_it_grows_is_what_would_be_drawn_anew) {
    FuelleSekunden(anbieter.quelle, 400, 20);
    Messpaket mitNotiz = PaketMit(seconds(400), 1, milliseconds(100), 20);
    mitNotiz.ereignisse = {{.art = Messereignisart::Notiz, .laufzeit = seconds(400), .text = "web changed"}};
    anbieter.quelle.Nimm(std::move(mitNotiz));
    Zeige();
    bild.SetzeZeiger(seconds(390));
    Zeichnungen zeichnungen(bild);
    bild.show();
    ASSERT_TRUE(WarteBis([&] { return zeichnungen.anzahl > 0; }));
    for (int i = 0; i < 40; ++i) {
        const int vorher = zeichnungen.anzahl;
        anbieter.quelle.Nimm(PaketMit(milliseconds(400'100 + 100 * i), 1, milliseconds(100),
                                      static_cast<std::uint16_t>(20 + 13 * i % 90)));
        Erneuere();
        ASSERT_TRUE(WarteBis([&] { return zeichnungen.anzahl > vorher; }));
        const QImage gesehen = bild.screen()->grabWindow(bild.winId()).toImage();
        ASSERT_EQ(gesehen.convertToFormat(QImage::Format_RGB32),
                  Aufnahme().convertToFormat(QImage::Format_RGB32))
            << i;
    }
}

TEST_F(VerlaufsbildTest, Only_what_looks_otherwise_than_before_is_drawn_while_it_grows) {
    FuelleSekunden(anbieter.quelle, 400, 20);
    Zeige();
    Zeichnungen zeichnungen(bild);
    bild.show();
    ASSERT_TRUE(WarteBis([&] { return zeichnungen.anzahl > 0; }));
    int schmale = 0;
    int geschobene = 0;
    for (int i = 0; i < 20; ++i) {
        const Zeitspanne vorher = bild.Spanne();
        const int bisher = zeichnungen.anzahl;
        anbieter.quelle.Nimm(PaketMit(milliseconds(400'000 + 100 * i), 1, milliseconds(100), 20));
        Erneuere();
        ASSERT_TRUE(WarteBis([&] { return zeichnungen.anzahl > bisher; }));
        if (bild.Spanne().von == vorher.von) {
            ++schmale;
            EXPECT_LT(zeichnungen.letzte.width(), 40);
        } else {
            ++geschobene;
            EXPECT_LT(zeichnungen.letzte.width(), bild.width());
            EXPECT_GT(zeichnungen.letzte.width(), bild.width() / 2);
        }
    }
    EXPECT_GT(schmale, 5);
    EXPECT_GT(geschobene, 2);
    const int bisher = zeichnungen.anzahl;
    Erneuere();
    QApplication::processEvents();
    EXPECT_EQ(zeichnungen.anzahl, bisher) << "nothing has grown";
}

TEST_F(VerlaufsbildTest, What_is_new_is_exact_as_soon_as_it_is_drawn) {
    FuelleSekunden(anbieter.quelle, 100, 20);
    anbieter.quelle.Nimm(PaketMit(seconds(100), 1, milliseconds(100), 20));
    Zeige();
    bild.SetzeBreite(seconds(10));
    Erledige();
    anbieter.quelle.Nimm(PaketMit(milliseconds(100'500), 1, milliseconds(100), 90));
    bild.Erneuere();
    const QImage aufnahme = Aufnahme();
    EXPECT_TRUE(HatKurve(aufnahme, milliseconds(100'500), 60));
    EXPECT_TRUE(HatKurve(aufnahme, milliseconds(100'200), 20));
    EXPECT_FALSE(HatKurve(aufnahme, milliseconds(100'200), 60));
}

TEST_F(VerlaufsbildTest, A_silence_that_becomes_a_gap_is_drawn_although_the_source_does_not_grow) {
    FuelleSekunden(anbieter.quelle, 100);
    Zeige();
    Aufnahme();
    anbieter.jetzt = seconds(130);
    Erneuere();
    const QImage aufnahme = Aufnahme();
    int gefaerbte = 0;
    for (int x = Ort(seconds(105)).x(); x < Ort(seconds(125)).x(); ++x)
        for (int y = Ort(seconds(0), 40).y(); y < Ort(seconds(0), 30).y(); ++y)
            gefaerbte += aufnahme.pixel(x, y) == KurvenfarbenAus(bild.palette()).achsen.rgb() ? 1 : 0;
    EXPECT_GT(gefaerbte, 20);
}

TEST_F(VerlaufsbildTest, The_wheel_zooms_time_around_the_mouse_and_with_ctrl_the_values) {
    FuelleSekunden(anbieter.quelle, 1000);
    Zeige();
    bild.Folge(false);
    const Zeit mitte = seconds(850);
    Drehe(bild.Stelle(mitte, 50), 3);
    EXPECT_LT(bild.Blick().Breite(), seconds(160));
    EXPECT_LE(bild.Spanne().von, mitte);
    EXPECT_GE(bild.Spanne().bis, mitte);
    EXPECT_TRUE(bild.Blick().ZeigtAlleWerte());
    Drehe(bild.Stelle(mitte, 20), 3, Qt::ControlModifier);
    EXPECT_FALSE(bild.Blick().ZeigtAlleWerte());
    EXPECT_LT(bild.Blick().Werte().oben, 100);
}

TEST_F(VerlaufsbildTest, Dragging_moves_the_picture_and_a_double_click_shows_all) {
    FuelleSekunden(anbieter.quelle, 1000);
    Zeige();
    const Zeit vorher = bild.Spanne().bis;
    const QPoint von = Ort(seconds(850));
    QTest::mousePress(&bild, Qt::LeftButton, {}, von);
    QTest::mouseMove(&bild, von + QPoint(60, 0));
    QTest::mouseMove(&bild, von + QPoint(200, 0));
    QTest::mouseRelease(&bild, Qt::LeftButton, {}, von + QPoint(200, 0));
    EXPECT_LT(bild.Spanne().bis, vorher - seconds(30));
    EXPECT_FALSE(bild.Blick().Folgt());
    QTest::mouseDClick(&bild, Qt::LeftButton, {}, von);
    EXPECT_TRUE(bild.Blick().ZeigtAlles());
    EXPECT_LE(bild.Spanne().von, seconds(0));
}

TEST_F(VerlaufsbildTest, The_cursor_tells_the_values_of_the_nearest_pass_to_everyone) {
    for (int i = 0; i < 100; ++i)
        anbieter.quelle.Nimm(PaketMit(seconds(i), 1, seconds(1), static_cast<std::uint16_t>(i)));
    Zeige();
    const QSignalSpy angesehen(&bild, &Verlaufsbild::Angesehen);
    QTest::mouseMove(&bild, Ort(milliseconds(42'100)));
    EXPECT_EQ(bild.Zeiger(), std::optional<Zeit>(seconds(42)));
    EXPECT_TRUE(bild.Zeigerworte().contains("K1 TU 42")) << bild.Zeigerworte().toStdString();
    EXPECT_EQ(bild.accessibleDescription(), bild.Zeigerworte());
    EXPECT_FALSE(angesehen.isEmpty());
}

TEST_F(VerlaufsbildTest, Keys_lead_from_pass_to_pass_and_set_marks) {
    for (int i = 0; i < 100; ++i)
        anbieter.quelle.Nimm(PaketMit(seconds(i), 1, seconds(1), static_cast<std::uint16_t>(i)));
    Zeige();
    bild.SetzeZeiger(seconds(50));
    QTest::keyClick(&bild, Qt::Key_A);
    QTest::keyClick(&bild, Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(&bild, Qt::Key_Right);
    QTest::keyClick(&bild, Qt::Key_B);
    EXPECT_EQ(bild.Zeiger(), std::optional<Zeit>(seconds(52)));
    EXPECT_TRUE(bild.Markenworte().contains("Abstand 2,000 s · K1 TU +2"))
        << bild.Markenworte().toStdString();
    QTest::keyClick(&bild, Qt::Key_Left);
    EXPECT_EQ(bild.Zeiger(), std::optional<Zeit>(seconds(51)));
    QTest::keyClick(&bild, Qt::Key_Delete);
    EXPECT_TRUE(bild.Markenworte().isEmpty());
}

TEST_F(VerlaufsbildTest, A_key_moves_the_cursor_at_least_by_what_can_be_seen) {
    FuelleSekunden(anbieter.quelle, 3000);
    Zeige();
    bild.ZeigeAlles();
    bild.SetzeZeiger(seconds(1000));
    QTest::keyClick(&bild, Qt::Key_Right);
    EXPECT_GT(*bild.Zeiger(), milliseconds(1002'000));
    EXPECT_LT(*bild.Zeiger(), seconds(1010));
    bild.SetzeZeiger(seconds(1000));
    QTest::keyClick(&bild, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(bild.Zeiger(), std::optional<Zeit>(milliseconds(1000'100)));
}

TEST_F(VerlaufsbildTest, Keys_zoom_and_move_the_view_and_lead_back) {
    FuelleSekunden(anbieter.quelle, 1000);
    Zeige();
    QTest::keyClick(&bild, Qt::Key_Plus);
    EXPECT_EQ(bild.Blick().Breite(), seconds(200));
    QTest::keyClick(&bild, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_FALSE(bild.Blick().Folgt());
    QTest::keyClick(&bild, Qt::Key_End);
    EXPECT_TRUE(bild.Blick().Folgt());
    QTest::keyClick(&bild, Qt::Key_Home);
    EXPECT_LE(bild.Spanne().von, seconds(1));
    QTest::keyClick(&bild, Qt::Key_0);
    EXPECT_TRUE(bild.Blick().ZeigtAlles());
}

TEST_F(VerlaufsbildTest, Notes_stand_as_flags_at_their_time) {
    FuelleSekunden(anbieter.quelle, 100);
    Zeige();
    const QImage ohne = Aufnahme();
    anbieter.quelle.pakete.at(60).ereignisse = {
        {.art = Messereignisart::Notiz, .laufzeit = seconds(60), .text = "Bahn gewechselt"}};
    bild.SiehNotizNach(seconds(60));
    const QImage mit = Aufnahme();
    const int x = Ort(seconds(60)).x();
    const int oben = Ort(seconds(60), bild.Blick().Werte().oben).y();
    const auto unterschiede = [&](QRect wo) {
        int anzahl = 0;
        for (int i = wo.left(); i <= wo.right(); ++i)
            for (int j = wo.top(); j <= wo.bottom(); ++j)
                anzahl += ohne.pixel(i, j) != mit.pixel(i, j) ? 1 : 0;
        return anzahl;
    };
    EXPECT_GT(unterschiede(QRect(x, oben - 18, 60, 14)), 100);
    EXPECT_EQ(unterschiede(QRect(x - 40, oben - 18, 38, 14)), 0);
}

TEST_F(VerlaufsbildTest, A_click_tells_the_time_and_dragging_does_not) {
    FuelleSekunden(anbieter.quelle, 1000);
    Zeige();
    QList<qint64> geklickt;
    QObject::connect(&bild, &Verlaufsbild::Angeklickt, [&](qint64 zeit) { geklickt.append(zeit); });
    QTest::mouseClick(&bild, Qt::LeftButton, {}, Ort(seconds(900)));
    ASSERT_EQ(geklickt.size(), 1);
    EXPECT_NEAR(static_cast<double>(geklickt[0]) / 1e6, 900, 1);
    QTest::mousePress(&bild, Qt::LeftButton, {}, Ort(seconds(900)));
    QTest::mouseMove(&bild, Ort(seconds(800)));
    QTest::mouseRelease(&bild, Qt::LeftButton, {}, Ort(seconds(800)));
    EXPECT_EQ(geklickt.size(), 1);
}

TEST_F(VerlaufsbildTest, Another_source_leaves_nothing_of_the_old_one) {
    FuelleSekunden(anbieter.quelle, 100);
    Zeige();
    bild.SetzeZeiger(seconds(50));
    bild.SetzeMarke(false);
    PruefMessanbieter leerer;
    bild.SetzeAnbieter(leerer);
    Erledige();
    EXPECT_FALSE(bild.Zeiger());
    EXPECT_TRUE(bild.Markenworte().isEmpty());
    EXPECT_FALSE(HatKurve(Aufnahme(), seconds(0), 20));
}

TEST_F(VerlaufsbildTest, What_takes_long_is_done_in_pieces_and_the_overview_is_shown_meanwhile) {
    for (int i = 0; i < 600; ++i)
        anbieter.quelle.Nimm(PaketMit(milliseconds(500 * i), 5, milliseconds(100), 20));
    bild.SetzeAnbieter(anbieter);
    EXPECT_FALSE(bild.IstFertig());
    EXPECT_LE(anbieter.quelle.gelesen, 5);
    EXPECT_TRUE(HatKurve(Aufnahme(), seconds(150), 20));
    Erledige();
    EXPECT_TRUE(bild.IstFertig());
}

TEST_F(VerlaufsbildTest, The_axis_reaches_over_all_beams_of_the_parts_that_are_shown) {
    FuelleSekunden(anbieter.quelle, 10);
    Zeige();
    EXPECT_NEAR(bild.Blick().Werte().oben, 128, 5);
    EXPECT_GE(bild.Blick().Werte().oben, 128);
}

TEST_F(VerlaufsbildTest, A_key_that_does_nothing_here_is_left_to_the_window) {
    Zeige();
    QKeyEvent ereignis(QEvent::KeyPress, Qt::Key_F9, Qt::NoModifier);
    QApplication::sendEvent(&bild, &ereignis);
    EXPECT_FALSE(ereignis.isAccepted());
}

TEST_F(VerlaufsbildTest, Axes_stand_at_the_left_of_the_curves_and_below_them) {
    FuelleSekunden(anbieter.quelle, 400, 20);
    Zeige();
    const QImage aufnahme = Aufnahme();
    const QRgb achse = KurvenfarbenAus(bild.palette()).achsen.rgb();
    const Wertebereich werte = bild.Blick().Werte();
    const QPoint unten = bild.Stelle(bild.Spanne().von, werte.unten).toPoint();
    const QPoint oben = bild.Stelle(bild.Spanne().von, werte.oben).toPoint();
    EXPECT_EQ(aufnahme.pixel(unten.x() - 1, (unten.y() + oben.y()) / 2), achse);
    EXPECT_EQ(aufnahme.pixel(unten.x() + 100, unten.y()), achse);
}

TEST_F(VerlaufsbildTest, The_legend_names_each_curve_above_the_picture) {
    FuelleSekunden(anbieter.quelle, 400, 20);
    Zeige();
    const QImage aufnahme = Aufnahme();
    const QPoint oben = bild.Stelle(bild.Spanne().von, bild.Blick().Werte().oben).toPoint();
    const QColor schrift = KurvenfarbenAus(bild.palette()).schrift;
    const auto istSchrift = [&](const QColor& farbe) { // smooth letters have few pixels of their very colour
        return farbe.saturation() < 40 && std::abs(farbe.value() - schrift.value()) < 80;
    };
    int beschriebene = 0;
    for (int y = 0; y < oben.y() - 2 * bild.fontMetrics().height(); ++y)
        for (int x = oben.x(); x < aufnahme.width(); ++x)
            beschriebene += istSchrift(aufnahme.pixelColor(x, y)) ? 1 : 0;
    EXPECT_GT(beschriebene, 0);
}

TEST_F(VerlaufsbildTest, Where_rows_are_low_each_part_has_its_name_in_the_middle_of_its_own) {
    FuelleSekunden(anbieter.quelle, 10);
    Verlaufswahl wahl = bild.Wahl();
    wahl.Setze({1, 0}, true);
    bild.SetzeWahl(wahl);
    bild.resize(Groesse.width(), static_cast<int>(18 * QFontMetricsF(bild.font()).height()));
    Zeige();
    const QImage aufnahme = Aufnahme();
    const QPoint ecke = bild.Stelle(bild.Spanne().von, bild.Blick().Werte().unten).toPoint();
    const double schrifthoehe = QFontMetricsF(bild.font()).height();
    const double oben = ecke.y() + 6;
    const double unten = bild.height() - 2 * schrifthoehe - 12;
    const auto zeilen = static_cast<double>(Zustandszeilen(wahl).size());
    const double zeilenhoehe = (unten - oben) / zeilen;
    const double jeTeil = (zeilen - 1) / 2;
    ASSERT_LT(zeilenhoehe, 0.8 * schrifthoehe);
    ASSERT_GT(jeTeil * zeilenhoehe, schrifthoehe + 4);
    const auto istBeschrieben = [&](double mitte) {
        const QRgb grund = aufnahme.pixel(0, aufnahme.height() - 1);
        for (int y = static_cast<int>(mitte) - 1; y <= static_cast<int>(mitte) + 1; ++y)
            for (int x = 1; x < ecke.x() - 4; ++x)
                if (aufnahme.pixel(x, y) != grund)
                    return true;
        return false;
    };
    for (const int teil : {0, 1})
        EXPECT_TRUE(istBeschrieben(oben + (1 + (teil + 0.5) * jeTeil) * zeilenhoehe)) << teil;
    EXPECT_FALSE(istBeschrieben(oben + (1 + jeTeil) * zeilenhoehe)) << "between the parts";
}

TEST(Verlaufsfeldtest, Rows_take_no_more_than_two_fifths_of_the_height_and_are_no_higher_than_letters) {
    const QFontMetricsF masse{QFont()};
    const Verlaufsfeld viele = FeldFuer({.groesse = {900, 400}, .zeilen = 20}, masse);
    EXPECT_LE(viele.zeilen.height(), 0.4 * 400);
    EXPECT_GT(viele.zeilen.height(), 0.2 * 400);
    const Verlaufsfeld eine = FeldFuer({.groesse = {900, 400}, .zeilen = 1}, masse);
    EXPECT_EQ(eine.zeilenhoehe, masse.height() + 1);
}

TEST_F(VerlaufsbildTest, The_times_stand_below_the_curves_with_a_gap_between) {
    FuelleSekunden(anbieter.quelle, 400, 20);
    Verlaufswahl wahl = bild.Wahl();
    wahl.zustaende = false;
    bild.SetzeWahl(wahl);
    Zeige();
    const QImage aufnahme = Aufnahme();
    const QPoint ecke = bild.Stelle(bild.Spanne().von, bild.Blick().Werte().unten).toPoint();
    const auto istLeer = [&](int y) {
        const QRgb grund = aufnahme.pixel(aufnahme.width() - 1, ecke.y() + 3);
        for (int x = ecke.x() + 1; x < aufnahme.width(); ++x)
            if (aufnahme.pixel(x, y) != grund)
                return false;
        return true;
    };
    EXPECT_TRUE(istLeer(ecke.y() + 3));
    EXPECT_TRUE(istLeer(ecke.y() + 5));
    int beschriebene = 0;
    for (int y = ecke.y() + 6; y < aufnahme.height(); ++y)
        beschriebene += istLeer(y) ? 0 : 1;
    EXPECT_GT(beschriebene, bild.fontMetrics().capHeight());
}

} // namespace varnoth
