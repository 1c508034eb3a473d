#include "fensteranordnung.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Fensteranordnung, Side_by_side_windows_stand_in_one_row_where_they_fit) {
    EXPECT_EQ(
        OrdneAn(Anordnung::Nebeneinander, 4, {1200, 600}, {227, 230}),
        (std::vector<QRect>{{0, 0, 300, 600}, {300, 0, 300, 600}, {600, 0, 300, 600}, {900, 0, 300, 600}}));
}

TEST(Fensteranordnung, Stacked_windows_stand_in_one_column_where_they_fit) {
    EXPECT_EQ(OrdneAn(Anordnung::Untereinander, 2, {600, 600}, {227, 230}),
              (std::vector<QRect>{{0, 0, 600, 300}, {0, 300, 600, 300}}));
}

TEST(Fensteranordnung, A_narrow_area_gets_more_rows) {
    EXPECT_EQ(OrdneAn(Anordnung::Nebeneinander, 3, {500, 600}, {227, 230}),
              (std::vector<QRect>{{0, 0, 250, 300}, {250, 0, 250, 300}, {0, 300, 250, 300}}));
}

TEST(Fensteranordnung, Rows_are_as_even_as_the_number_allows) {
    EXPECT_EQ(
        OrdneAn(Anordnung::Nebeneinander, 4, {800, 600}, {227, 230}),
        (std::vector<QRect>{{0, 0, 400, 300}, {400, 0, 400, 300}, {0, 300, 400, 300}, {400, 300, 400, 300}}));
}

TEST(Fensteranordnung, A_low_area_gets_more_columns) {
    EXPECT_EQ(OrdneAn(Anordnung::Untereinander, 2, {600, 300}, {227, 230}),
              (std::vector<QRect>{{0, 0, 300, 300}, {300, 0, 300, 300}}));
}

TEST(Fensteranordnung, Windows_that_do_not_fit_keep_their_least_size_and_go_beyond_the_area) {
    EXPECT_EQ(OrdneAn(Anordnung::Nebeneinander, 2, {100, 100}, {227, 230}),
              (std::vector<QRect>{{0, 0, 227, 230}, {0, 230, 227, 230}}));
}

TEST(Fensteranordnung, No_window_needs_no_place) {
    EXPECT_TRUE(OrdneAn(Anordnung::Nebeneinander, 0, {600, 300}, {227, 230}).empty());
}

TEST(Fensteranordnung, A_window_that_does_not_fit_its_screen_is_moved_and_made_smaller) {
    const QRect breit(67, 67, 1240, 640);
    const QRect normal(67, 67, 433, 433);
    for (const QSize schirm : {QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080)})
        for (const double massstab : {1.0, 1.5, 2.0})
            for (const QRect& fenster : {breit, normal}) {
                const QRect flaeche(QPoint(0, 24), schirm / massstab - QSize(0, 64));
                const QRect platz = Hineingerueckt(fenster, flaeche);
                EXPECT_TRUE(flaeche.contains(platz)) << schirm.width() << " at " << massstab;
                EXPECT_EQ(platz.size(), fenster.size().boundedTo(flaeche.size()));
            }
}

TEST(Fensteranordnung, A_window_that_fits_its_screen_stays_where_it_is) {
    EXPECT_EQ(Hineingerueckt({67, 67, 433, 433}, {0, 24, 1280, 656}), QRect(67, 67, 433, 433));
}

TEST(Fensteranordnung, The_windows_fill_an_area_that_does_not_divide_evenly) {
    const auto plaetze = OrdneAn(Anordnung::Nebeneinander, 3, {1000, 500}, {227, 230});
    EXPECT_EQ(plaetze.back().right(), 999);
}

} // namespace varnoth
