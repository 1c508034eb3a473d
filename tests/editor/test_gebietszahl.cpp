#include "gebietszahl.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Gebietszahl, Has_the_decimal_separator_of_the_system) {
    EXPECT_EQ(Gebietszahl(1.5, QLocale(QLocale::German)), "1,5");
    EXPECT_EQ(Gebietszahl(1.5, QLocale(QLocale::English)), "1.5");
}

TEST(Gebietszahl, Has_no_more_digits_than_the_number_needs) {
    const QLocale deutsch(QLocale::German);
    EXPECT_EQ(Gebietszahl(3, deutsch), "3");
    EXPECT_EQ(Gebietszahl(0, deutsch), "0");
    EXPECT_EQ(Gebietszahl(0.1 + 0.2, deutsch), "0,3");
    EXPECT_EQ(Gebietszahl(1.0 / 3, deutsch), "0,333333333333333");
    EXPECT_EQ(Gebietszahl(-4.25, deutsch), "-4,25");
}

TEST(Gebietszahl, Groups_no_digits) {
    EXPECT_EQ(Gebietszahl(1234567.5, QLocale(QLocale::German)), "1234567,5");
    EXPECT_EQ(Gebietszahl(1234567, QLocale(QLocale::English)), "1234567");
}

} // namespace varnoth
