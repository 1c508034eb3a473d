#include "autosendbudget.h"

#include <gtest/gtest.h>

#include <utility>

namespace varnoth {

TEST(AutosendBaudrate, Follows_the_code_in_the_low_byte) {
    const std::pair<int, int> baudraten[] = {{10, 1200},  {11, 2400},  {12, 4800}, {13, 9600},
                                             {14, 19200}, {15, 38400}, {16, 57600}};
    for (const auto& [code, baudrate] : baudraten)
        EXPECT_EQ(AutosendBaudrate(code), baudrate) << code;
}

TEST(AutosendBaudrate, Is_0_for_other_codes) {
    for (const int code : {0, 9, 17, 255})
        EXPECT_EQ(AutosendBaudrate(code), 0) << code;
}

TEST(AutosendBaudrate, Leaves_the_high_byte_out) {
    EXPECT_EQ(AutosendBaudrate(0x030F), 38400);
    EXPECT_EQ(AutosendBaudrate(0x0F00), 0);
}

TEST(UebertragbareBytes, In_10_ms_at_38400_are_32) {
    EXPECT_EQ(UebertragbareBytes(10, 38400), 32);
}

TEST(UebertragbareBytes, In_2_ms_at_4800_are_minus_1) {
    EXPECT_EQ(UebertragbareBytes(2, AutosendBaudrate(12)), -1);
}

TEST(UebertragbareBytes, In_the_longest_cycle_at_57600_are_133) {
    EXPECT_EQ(UebertragbareBytes(26.2, 57600), 133);
}

TEST(UebertragbareBytes, Without_a_cycle_time_are_rounded_down_below_0) {
    EXPECT_EQ(UebertragbareBytes(0, 38400), -3);
}

TEST(UebertragbareBytes, Without_a_baud_rate_are_minus_1) {
    EXPECT_EQ(UebertragbareBytes(10, 0), -1);
}

} // namespace varnoth
