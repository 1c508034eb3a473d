#include "crc.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(CrcTest, The_table_begins_with_the_standard_entries) {
    // CrcUpdate of 0 and a byte is the byte's table entry.
    EXPECT_EQ(CrcUpdate(0, 0), 0x0000);
    EXPECT_EQ(CrcUpdate(0, 1), 0xC0C1);
    EXPECT_EQ(CrcUpdate(0, 2), 0xC181);
    EXPECT_EQ(CrcUpdate(0, 3), 0x0140);
    EXPECT_EQ(CrcUpdate(0, 255), 0x4040);
}

TEST(CrcTest, The_check_string_gives_the_known_value) {
    EXPECT_EQ(CrcVon("123456789"), 0x4B37);
}

TEST(CrcTest, An_empty_string_gives_the_start_value) {
    EXPECT_EQ(CrcVon(""), 0xFFFF);
    EXPECT_EQ(CrcInit(), 0xFFFF);
}

TEST(CrcTest, High_and_low_byte_are_taken_from_the_low_16_bits) {
    EXPECT_EQ(HiByte(0x12345), 0x23);
    EXPECT_EQ(LoByte(0x12345), 0x45);
    EXPECT_EQ(LoByte(-1), 0xFF);
}

} // namespace varnoth
