#include "wasserfallplan.h"

#include "wasserfalllegende.h"

#include <QFontMetrics>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

constexpr QSize Groesse(700, 400);

Wasserfallplan Plan(int strahlen, int abstandMm) {
    return TeileAuf({.groesse = Groesse, .schrift = {}, .strahlen = strahlen, .abstandMm = abstandMm});
}

} // namespace

TEST(Wasserfallplan, The_scale_has_room_for_its_greatest_number) {
    const QFontMetrics masse{QFont()};
    const int einheit = masse.horizontalAdvance(" mm");
    EXPECT_EQ(Plan(40, 10).skalaRechts, masse.horizontalAdvance("000") + einheit);
    EXPECT_EQ(Plan(512, 10).skalaRechts, masse.horizontalAdvance("0000") + einheit);
    EXPECT_EQ(Plan(40, 0).skalaRechts, 0);
}

TEST(Wasserfallplan, Cells_and_scale_lie_beside_each_other_within_the_picture) {
    for (const int abstand : {0, 10}) {
        const Wasserfallplan plan = Plan(40, abstand);
        EXPECT_GT(plan.flaeche.left(), plan.nummernLinks) << abstand;
        EXPECT_LT(plan.flaeche.right() + plan.skalaRechts, Groesse.width()) << abstand;
        EXPECT_GT(plan.flaeche.width(), Groesse.width() / 2) << abstand;
    }
}

TEST(Wasserfallplan, Below_the_cells_lie_gaps_and_times) {
    const Wasserfallplan plan = Plan(40, 10);
    EXPECT_GT(plan.luecken.top(), plan.flaeche.bottom());
    EXPECT_EQ(plan.luecken.left(), plan.flaeche.left());
    EXPECT_EQ(plan.luecken.width(), plan.flaeche.width());
    EXPECT_GT(plan.zeiten.top(), plan.luecken.bottom());
    EXPECT_LE(plan.zeiten.bottom(), Groesse.height());
    EXPECT_GE(plan.zeiten.height(), QFontMetrics(QFont()).height());
}

TEST(Wasserfalllegende, Has_a_row_as_high_as_its_words_and_more_rows_where_it_is_narrow) {
    const Wasserfalllegende legende;
    const int eine = legende.heightForWidth(5000);
    EXPECT_GE(eine, legende.fontMetrics().height());
    EXPECT_LT(eine, 2 * legende.fontMetrics().height());
    EXPECT_EQ(legende.heightForWidth(1), 6 * eine) << "one below the other";
}

} // namespace varnoth
