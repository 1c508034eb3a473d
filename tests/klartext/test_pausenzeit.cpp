#include "pausenzeit.h"

#include <gtest/gtest.h>

#include <limits>

namespace varnoth {

TEST(Pausenzeit, A_typed_70000_becomes_65535_on_leaving_the_field) {
    EXPECT_EQ(PausenzeitBeimVerlassen("70000"), "65535");
    EXPECT_EQ(PausenzeitBeimVerlassen("65536 us"), "65535");
    EXPECT_EQ(PausenzeitBeimVerlassen("1e9"), "65535");
}

TEST(Pausenzeit, A_typed_minus_5_is_kept) {
    EXPECT_EQ(PausenzeitBeimVerlassen("-5"), "-5");
    EXPECT_EQ(Pausenzeitwert("-5"), -5);
}

TEST(Pausenzeit, Everything_up_to_65535_stays_as_typed) {
    for (const char* text : {"", "0", "65535", "007", "12abc", "abc"})
        EXPECT_EQ(PausenzeitBeimVerlassen(text), text);
}

TEST(Pausenzeit, The_value_is_the_number_the_text_begins_with) {
    EXPECT_EQ(Pausenzeitwert("65535"), 65535);
    EXPECT_EQ(Pausenzeitwert(" 12 us"), 12);
    EXPECT_EQ(Pausenzeitwert(""), 0);
    EXPECT_EQ(Pausenzeitwert("abc"), 0);
    EXPECT_EQ(Pausenzeitwert("2.7"), 3);
}

TEST(Pausenzeit, A_number_beyond_32_bits_gives_the_nearest_one) {
    EXPECT_EQ(Pausenzeitwert("1e300"), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(Pausenzeitwert("-1e300"), std::numeric_limits<std::int32_t>::min());
}

} // namespace varnoth
