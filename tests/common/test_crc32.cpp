#include "crc32.h"

#include <gtest/gtest.h>

#include <string>

namespace varnoth {

TEST(Crc32, Is_the_checksum_that_archives_use) {
    EXPECT_EQ(Crc32(""), 0U);
    EXPECT_EQ(Crc32("123456789"), 0xCBF43926U);
    EXPECT_EQ(Crc32("The quick brown fox jumps over the lazy dog"), 0x414FA339U);
}

TEST(Crc32, Differs_when_any_one_bit_does) {
    std::string bytes(33, '\x5A');
    const std::uint32_t summe = Crc32(bytes);
    for (char& byte : bytes)
        for (int bit = 0; bit < 8; ++bit) {
            byte = static_cast<char>(byte ^ (1 << bit));
            EXPECT_NE(Crc32(bytes), summe);
            byte = static_cast<char>(byte ^ (1 << bit));
        }
}

} // namespace varnoth
