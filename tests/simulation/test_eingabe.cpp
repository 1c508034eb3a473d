#include "eingabe.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {
const QLocale Deutschland(QLocale::German, QLocale::Germany);
const QLocale Grundgebiet = QLocale::c();
constexpr auto Nichts = std::nullopt;

std::optional<double> Lies(const char* text, const QLocale& gebiet) {
    return LiesEingabe(QString::fromUtf8(text), gebiet);
}
} // namespace

TEST(LiesEingabe, Reads_the_decimal_separator_of_the_system) {
    EXPECT_EQ(Lies("1,5", Deutschland), 1.5);
    EXPECT_EQ(Lies("1.5", Grundgebiet), 1.5);
}

TEST(LiesEingabe, Takes_the_other_separator_neither_as_decimal_nor_as_grouping) {
    EXPECT_EQ(Lies("1.5", Deutschland), Nichts);
    EXPECT_EQ(Lies("1,5", Grundgebiet), Nichts);
    EXPECT_EQ(Lies("1.500", Deutschland), Nichts);
    EXPECT_EQ(Lies("1,500", Grundgebiet), Nichts);
}

TEST(LiesEingabe, Reads_whole_and_negative_numbers_and_exponents) {
    EXPECT_EQ(Lies("25", Deutschland), 25);
    EXPECT_EQ(Lies("-3,25", Deutschland), -3.25);
    EXPECT_EQ(Lies("2e3", Grundgebiet), 2000);
}

TEST(LiesEingabe, Reads_a_number_whose_decimals_are_still_to_be_typed) {
    EXPECT_EQ(Lies("12,", Deutschland), 12);
}

TEST(LiesEingabe, Allows_blanks_around_the_number) {
    EXPECT_EQ(Lies(" 25 ", Grundgebiet), 25);
}

TEST(LiesEingabe, Finds_no_number_in_other_texts) {
    for (const char* text : {"", " ", "x", "3x", "1 2", "1..5", "-", "e5", "0x10", "٣x"})
        EXPECT_EQ(Lies(text, Grundgebiet), Nichts) << text;
}

TEST(LiesEingabe, Finds_no_number_beyond_all_numbers) {
    for (const char* text : {"inf", "-inf", "nan", "1e999"})
        EXPECT_EQ(Lies(text, Grundgebiet), Nichts) << text;
}

TEST(LiesEingabe, Reads_eight_digits) {
    EXPECT_EQ(Lies("12345678", Grundgebiet), 12345678);
}

TEST(LiesEingabe, Reads_nothing_from_nine_digits) {
    EXPECT_EQ(Lies("123456789", Grundgebiet), Nichts);
    EXPECT_EQ(Lies("000000001", Grundgebiet), Nichts);
}

TEST(LiesEingabe, Counts_blanks_as_characters) {
    EXPECT_EQ(Lies("1        ", Grundgebiet), Nichts);
}

} // namespace varnoth
