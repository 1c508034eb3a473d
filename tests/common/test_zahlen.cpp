#include "zahlen.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Val, Reads_the_number_a_text_begins_with) {
    const std::pair<const char*, double> faelle[] = {
        {"12", 12}, {"  12", 12}, {"12 mm", 12}, {"-5", -5},   {"+7", 7},    {"1.5e2x", 150},    {".5", 0.5},
        {"", 0},    {"OK", 0},    {"abc1", 0},   {"&H1F", 31}, {"&h1f", 31}, {"&HFFFFG", 65535}, {"&O17", 15},
        {"&", 0},   {"&H", 0},    {"inf", 0},    {"nan", 0},   {"-x", 0},
    };
    for (const auto& [text, wert] : faelle)
        EXPECT_EQ(Val(text), wert) << '"' << text << '"';
}

TEST(Val, A_second_sign_does_not_belong_to_a_number) {
    for (const char* text : {"+-5", "-+5", "--5", "++5", "+ 5", "-&H5"})
        EXPECT_EQ(Val(text), 0) << '"' << text << '"';
}

TEST(Val, A_number_beyond_all_bounds_is_zero) {
    for (const char* text : {"1e999", "-1e999", "&HFFFFFFFFF", "&O77777777777777"})
        EXPECT_EQ(Val(text), 0) << '"' << text << '"';
}

TEST(AlsHex, Is_upper_case_without_leading_zeros) {
    EXPECT_EQ(AlsHex(0), "0");
    EXPECT_EQ(AlsHex(10), "A");
    EXPECT_EQ(AlsHex(0x1234), "1234");
    EXPECT_EQ(AlsHex(0xbeef), "BEEF");
}

} // namespace varnoth
