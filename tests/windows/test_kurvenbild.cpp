#include "kurvenbild.h"

#include "fenstertest.h"
#include "kurvenfarben.h"
#include "kurvenzeichner.h"
#include "strahlfarben.h"
#include "texte.h"

#include <QFontMetricsF>
#include <QImage>
#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace varnoth {

namespace {

const QLocale Gebiet = QLocale::c();
constexpr QSize Groesse(500, 300);

Diagramm Mit(const std::vector<Marke>& marken, double tz = 2) {
    return DiagrammFuer(tz, 10, marken);
}

QPalette Dunkel() {
    QPalette palette(QColor(40, 40, 40));
    palette.setColor(QPalette::Base, QColor(25, 25, 25));
    palette.setColor(QPalette::Text, Qt::white);
    return palette;
}

QPalette Hell() {
    QPalette palette(QColor(240, 240, 240));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

QImage Aufnahme(Kurvenbild& bild) {
    bild.resize(Groesse);
    return bild.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// Whether two colours look alike: where a line lies between pixels, none has its colour quite.
bool Gleichen(const QColor& eine, const QColor& andere) {
    constexpr int abweichung = 50;
    return std::abs(eine.red() - andere.red()) < abweichung &&
           std::abs(eine.green() - andere.green()) < abweichung &&
           std::abs(eine.blue() - andere.blue()) < abweichung;
}

/// Whether a colour is found at a place or in a pixel beside it.
bool HatFarbeBei(const QImage& aufnahme, const QPoint& stelle, const QColor& farbe) {
    for (const QPoint& neben : {QPoint(0, 0), QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)})
        if (Gleichen(aufnahme.pixelColor(stelle + neben), farbe))
            return true;
    return false;
}

/// Whether the outermost rows and columns show nothing but the ground.
bool IstRandFrei(const QImage& aufnahme) {
    const QRgb grund = aufnahme.pixel(0, 0);
    for (int x = 0; x < aufnahme.width(); ++x)
        if (aufnahme.pixel(x, 0) != grund || aufnahme.pixel(x, aufnahme.height() - 1) != grund)
            return false;
    for (int y = 0; y < aufnahme.height(); ++y)
        if (aufnahme.pixel(0, y) != grund || aufnahme.pixel(aufnahme.width() - 1, y) != grund)
            return false;
    return true;
}

} // namespace

TEST(Kurvenbild, Marks_a_point_in_the_colour_of_its_curve) {
    for (const Kurvenart art : {Kurvenart::Objekt, Kurvenart::Loch}) {
        Kurvenbild bild;
        bild.setPalette(Hell());
        bild.Zeige(Mit({{art, {30, 20}}}));
        const QImage aufnahme = Aufnahme(bild);
        const Kurvenfarben farben = KurvenfarbenAus(Hell());
        EXPECT_TRUE(HatFarbeBei(aufnahme, bild.Stelle({30, 20}).toPoint(),
                                art == Kurvenart::Objekt ? farben.objekt : farben.loch));
    }
}

TEST(Kurvenbild, Draws_the_curve_of_objects_where_its_speeds_lie) {
    Kurvenbild bild;
    bild.setPalette(Hell());
    bild.Zeige(Mit({}));
    const QImage aufnahme = Aufnahme(bild);
    const QColor farbe = KurvenfarbenAus(Hell()).objekt;
    for (const double groesse : {12.0, 27.0, 44.0})
        EXPECT_TRUE(HatFarbeBei(aufnahme, bild.Stelle({groesse, (groesse - 5) / 2}).toPoint(), farbe))
            << groesse;
}

TEST(Kurvenbild, Draws_no_curve_without_a_cycle_time) {
    Kurvenbild bild;
    bild.setPalette(Hell());
    bild.Zeige(Mit({}, 0));
    const QImage aufnahme = Aufnahme(bild);
    const QRgb farbe = KurvenfarbenAus(Hell()).objekt.rgb();
    for (int y = 0; y < aufnahme.height(); ++y)
        for (int x = 0; x < aufnahme.width(); ++x)
            ASSERT_NE(aufnahme.pixel(x, y), farbe);
}

TEST(Kurvenbild, Cuts_nothing_off_even_with_enormous_numbers) {
    for (const double groesse : {30.0, 9999.0, 12345678.0, 9e8}) {
        Kurvenbild bild;
        bild.Zeige(Mit({{Kurvenart::Objekt, {groesse, groesse / 2}}}));
        EXPECT_TRUE(IstRandFrei(Aufnahme(bild))) << groesse;
    }
}

TEST(Kurvenbild, Survives_sizes_without_room) {
    Kurvenbild bild;
    bild.Zeige(Mit({{Kurvenart::Objekt, {30, 20}}}));
    for (const int seite : {1, 10, 40}) {
        bild.resize(seite, seite);
        EXPECT_EQ(bild.grab().toImage().width(), seite);
    }
}

TEST(Kurvenbild, Has_room_for_the_legend_between_the_units_in_both_languages) {
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        Kurvenbild bild;
        const auto diagramm = Mit({{Kurvenart::Objekt, {12345678, 6172836}}});
        const auto feld = FeldFuer(diagramm, bild.minimumSizeHint(), QFontMetricsF(bild.font()), Gebiet);
        EXPECT_LT(Legendenbreite(QFontMetricsF(bild.font())), feld.breite) << sprache;
    }
    SetzeSprachoffset(Deutsch);
}

TEST(Kurvenbild, Grid_lines_are_whole_pixels_also_on_fine_screens) {
    for (const double dichte : {1.0, 1.5, 2.0}) {
        QImage ziel((QSizeF(Groesse) * dichte).toSize(), QImage::Format_RGB32);
        ziel.setDevicePixelRatio(dichte);
        Kurvenbild bild;
        bild.setPalette(Hell());
        bild.resize(Groesse);
        bild.Zeige(Mit({}, 0));
        bild.render(&ziel);
        const Kurvenfarben farben = KurvenfarbenAus(Hell());
        const int y = static_cast<int>(bild.Stelle({0, 0.5}).y() * dichte);
        for (int x = 0; x < ziel.width(); ++x) {
            const QRgb farbe = ziel.pixel(x, y);
            EXPECT_TRUE(farbe == farben.grund.rgb() || farbe == farben.gitter.rgb() ||
                        farbe == farben.achsen.rgb())
                << dichte << ": " << x;
        }
    }
}

TEST(Kurvenbild, Is_painted_once_for_many_diagrams) {
    class Zaehlend : public Kurvenbild {
    public:
        int gemalt = 0;

    protected:
        void paintEvent(QPaintEvent* ereignis) override {
            ++gemalt;
            Kurvenbild::paintEvent(ereignis);
        }
    } bild;
    bild.show();
    ASSERT_TRUE(pruefung::WarteBis([&] { return bild.gemalt > 0; }));
    QCoreApplication::processEvents();
    bild.gemalt = 0;
    for (int mm = 6; mm < 40; ++mm)
        bild.Zeige(Mit({{Kurvenart::Objekt, {static_cast<double>(mm), 1}}}));
    ASSERT_TRUE(pruefung::WarteBis([&] { return bild.gemalt > 0; }));
    EXPECT_EQ(bild.gemalt, 1);
}

TEST(KurvenfarbenAus, Lines_stand_out_on_light_and_dark_grounds) {
    for (const QPalette& palette : {Hell(), Dunkel()}) {
        const Kurvenfarben farben = KurvenfarbenAus(palette);
        EXPECT_GE(Kontrast(farben.objekt, farben.grund), 3.5);
        EXPECT_GE(Kontrast(farben.loch, farben.grund), 3.5);
        EXPECT_GE(Kontrast(farben.schrift, farben.grund), 7);
    }
}

TEST(KurvenfarbenAus, The_two_curves_differ) {
    for (const QPalette& palette : {Hell(), Dunkel()})
        EXPECT_NE(KurvenfarbenAus(palette).objekt, KurvenfarbenAus(palette).loch);
}

} // namespace varnoth
