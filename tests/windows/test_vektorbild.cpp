#include "vektorbild.h"

#include "svgpfad.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varnoth {

namespace {

QByteArray Bild(const QByteArray& inhalt) {
    return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 10 10">)" + inhalt + "</svg>";
}

QColor FarbeBei(const QByteArray& inhalt, int x, int y) {
    return Vektorbild(Bild(inhalt)).Bild({100, 100}).pixelColor(x, y);
}

void ExpectPunkt(const QPointF& punkt, double x, double y) {
    EXPECT_NEAR(punkt.x(), x, 1e-6);
    EXPECT_NEAR(punkt.y(), y, 1e-6);
}

} // namespace

TEST(Vektorbild, Its_size_is_the_one_the_document_names_or_else_that_of_what_it_shows) {
    EXPECT_EQ(Vektorbild(Bild("")).Groesse(), QSizeF(10, 10));
    EXPECT_EQ(Vektorbild(R"(<svg width="640" height="44" viewBox="0 0 640000 44000"/>)").Groesse(),
              QSizeF(640, 44));
}

TEST(Vektorbild, What_is_no_such_document_is_empty_and_draws_nothing) {
    for (const char* const falsches :
         {"", "no xml", "<html/>", R"(<svg viewBox="0 0 9 9"><rect)", "<svg/>"}) {
        const Vektorbild bild{QByteArray(falsches)};
        EXPECT_TRUE(bild.Groesse().isEmpty()) << falsches;
        EXPECT_EQ(bild.Bild({4, 4}).pixelColor(1, 1).alpha(), 0) << falsches;
    }
}

TEST(Vektorbild, Faces_are_black_unless_they_say_otherwise_and_lines_absent) {
    EXPECT_EQ(FarbeBei(R"(<rect x="2" y="2" width="6" height="6"/>)", 50, 50), QColor(Qt::black));
    EXPECT_EQ(FarbeBei(R"(<rect x="2" y="2" width="6" height="6" fill="none"/>)", 20, 50).alpha(), 0);
}

TEST(Vektorbild, What_a_group_says_holds_inside_it_and_no_further) {
    const QByteArray gruppe = R"(<g fill="#ff0000"><rect x="0" y="0" width="5" height="5"/>
        <rect x="0" y="5" width="5" height="5" fill="#00ff00"/></g><rect x="5" y="0" width="5" height="5"/>)";
    EXPECT_EQ(FarbeBei(gruppe, 20, 20), QColor(255, 0, 0));
    EXPECT_EQ(FarbeBei(gruppe, 20, 70), QColor(0, 255, 0));
    EXPECT_EQ(FarbeBei(gruppe, 70, 20), QColor(Qt::black));
}

TEST(Vektorbild, Words_stand_centred_above_their_line) {
    const QImage bild = Vektorbild(Bild(R"(<text x="5" y="8" font-size="4">H</text>)")).Bild({100, 100});
    const auto dunkel = [&bild](int x, int y) { return bild.pixelColor(x, y).alpha() > 128; };
    int links = 100;
    int rechts = 0;
    for (int x = 0; x < 100; ++x)
        for (int y = 0; y < 100; ++y)
            if (dunkel(x, y)) {
                links = std::min(links, x);
                rechts = std::max(rechts, x);
                EXPECT_GE(y, 35);
                EXPECT_LE(y, 81);
            }
    EXPECT_NEAR((links + rechts) / 2.0, 50, 3);
    EXPECT_GT(rechts - links, 10);
}

TEST(SvgPfad, Numbers_may_touch_each_other_and_repeat_their_command) {
    const QPainterPath pfad = LiesSvgPfad(u"M1 2h3.5.5V4L-1-2 3,4z");
    ASSERT_EQ(pfad.elementCount(), 7);
    ExpectPunkt(pfad.elementAt(1), 4.5, 2);
    ExpectPunkt(pfad.elementAt(2), 5, 2);
    ExpectPunkt(pfad.elementAt(3), 5, 4);
    ExpectPunkt(pfad.elementAt(4), -1, -2);
    ExpectPunkt(pfad.elementAt(5), 3, 4);
    ExpectPunkt(pfad.elementAt(6), 1, 2);
}

TEST(SvgPfad, Points_after_a_move_are_lines) {
    const QPainterPath pfad = LiesSvgPfad(u"m1 1 2 3");
    ASSERT_EQ(pfad.elementCount(), 2);
    EXPECT_TRUE(pfad.elementAt(1).isLineTo());
    ExpectPunkt(pfad.elementAt(1), 3, 4);
}

TEST(SvgPfad, An_arc_goes_the_way_its_two_switches_say) {
    ExpectPunkt(LiesSvgPfad(u"M0 0A5 5 0 0 1 10 0").boundingRect().topLeft(), 0, -5);
    ExpectPunkt(LiesSvgPfad(u"M0 0A5 5 0 0 0 10 0").boundingRect().bottomRight(), 10, 5);
    const QRectF gross = LiesSvgPfad(u"M0 0a5 5 0 1 1 6 0").boundingRect();
    EXPECT_NEAR(gross.top(), -9, 1e-3);
    EXPECT_NEAR(gross.width(), 10, 1e-3);
    const QRectF klein = LiesSvgPfad(u"M0 0a5 5 0 01 6 0").boundingRect();
    EXPECT_NEAR(klein.top(), -1, 1e-3);
}

TEST(SvgPfad, An_arc_whose_radii_are_too_small_grows_and_one_without_a_way_is_nothing) {
    EXPECT_NEAR(LiesSvgPfad(u"M0 0a1 1 0 0 1 10 0").boundingRect().top(), -5, 1e-3);
    EXPECT_EQ(LiesSvgPfad(u"M3 3a1 1 0 0 1 0 0").elementCount(), 1);
}

TEST(SvgPfad, What_follows_an_error_is_left_out_and_no_text_hangs_it) {
    EXPECT_EQ(LiesSvgPfad(u"M1 1L2 x3 4").elementCount(), 1);
    EXPECT_EQ(LiesSvgPfad(u"M1 1z5 5").elementCount(), 1);
    EXPECT_EQ(LiesSvgPfad(u"M1 1H").elementCount(), 1);
    EXPECT_EQ(LiesSvgPfad(u"5 5").elementCount(), 0);
    EXPECT_EQ(LiesSvgPfad(u"").elementCount(), 0);
}

} // namespace varnoth
