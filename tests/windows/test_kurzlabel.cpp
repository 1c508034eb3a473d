#include "kurzlabel.h"

#include <QImage>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

/// Where the label's letters are.
QRect Tinte(Kurzlabel& label) {
    const QImage bild = label.grab().toImage();
    const QRgb grund = bild.pixel(bild.width() - 1, 0);
    QRect tinte;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            if (bild.pixel(x, y) != grund)
                tinte |= QRect(x, y, 1, 1);
    return tinte;
}

} // namespace

TEST(Kurzlabel, Its_text_stands_at_the_left_and_in_the_middle_of_its_height) {
    Kurzlabel label(nullptr);
    label.setText("HHH");
    label.resize(300, 100);
    const QRect tinte = Tinte(label);
    ASSERT_FALSE(tinte.isEmpty());
    EXPECT_LE(tinte.left(), 4);
    EXPECT_NEAR((tinte.top() + tinte.bottom()) / 2.0, 50, 5);
}

TEST(Kurzlabel, A_text_that_is_too_long_for_it_ends_before_its_edge) {
    Kurzlabel label(nullptr);
    label.setText(QString(100, 'H'));
    label.resize(100, 20);
    EXPECT_LT(Tinte(label).right(), 100 - label.fontMetrics().horizontalAdvance("...") / 4);
    EXPECT_LE(label.minimumSizeHint().width(), 4 * label.fontMetrics().averageCharWidth());
}

} // namespace varnoth
