#include "gruppenzaehler.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Gruppenzaehler, Bit_15_joins_by_OR) {
    EXPECT_TRUE(GruppenzaehlerOder(0x8001));
    EXPECT_FALSE(GruppenzaehlerOder(0x7FFF));
}

TEST(Gruppenzaehler, The_register_is_the_count_and_bit_15) {
    EXPECT_EQ(Gruppenzaehlerwert(127, true), 0x807F);
    EXPECT_EQ(Gruppenzaehlerwert(127, false), 127);
    EXPECT_EQ(Gruppenzaehlerwert(0, true), 0x8000);
}

} // namespace varnoth
