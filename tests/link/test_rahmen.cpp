#include "rahmen.h"

#include "pruefgeraet.h"

#include <gtest/gtest.h>

namespace varnoth {

using pruefung::Bytes;
using pruefung::MitPruefsumme;

TEST(RahmenTest, The_identification_request_is_four_known_bytes) {
    EXPECT_EQ(IdentifikationsAnforderung(), Bytes({0x00, 0x11, 0xC1, 0xBC}));
}

TEST(RahmenTest, A_read_of_two_registers_is_eight_known_bytes) {
    EXPECT_EQ(LeseAnforderung(1, 0, 2), Bytes({0x01, 0x03, 0x00, 0x00, 0x00, 0x02, 0xC4, 0x0B}));
}

TEST(RahmenTest, Register_fields_go_high_byte_first) {
    EXPECT_EQ(LeseAnforderung(1, 0x2161, 0x0140), MitPruefsumme(Bytes({0x01, 0x03, 0x21, 0x61, 0x01, 0x40})));
}

TEST(RahmenTest, A_write_carries_count_byte_count_and_values) {
    EXPECT_EQ(SchreibAnforderung(17, 0x4084, 2, {0x0102, 0x0304}),
              MitPruefsumme(Bytes({17, 0x10, 0x40, 0x84, 0, 2, 4, 1, 2, 3, 4})));
}

TEST(RahmenTest, A_write_sends_the_low_16_bits_of_each_value) {
    EXPECT_EQ(SchreibAnforderung(1, 0, 2, {0x12345, -1}),
              MitPruefsumme(Bytes({1, 0x10, 0, 0, 0, 2, 4, 0x23, 0x45, 0xFF, 0xFF})));
}

TEST(RahmenTest, The_byte_count_of_a_write_is_the_low_byte_of_twice_the_count) {
    const auto rahmen = SchreibAnforderung(1, 0, 130, Werte(130));
    EXPECT_EQ(static_cast<std::uint8_t>(rahmen[6]), 4);
    EXPECT_EQ(rahmen.size(), 9U + 2U * 130U);
}

TEST(RahmenTest, An_unknown_slave_is_addressed_as_255) {
    EXPECT_EQ(LeseAnforderung(-1, 0, 1), MitPruefsumme(Bytes({0xFF, 3, 0, 0, 0, 1})));
}

TEST(RahmenTest, The_command_frame_is_bare) {
    EXPECT_EQ(KommandoRahmen(5), MitPruefsumme(Bytes({5, 9})));
}

TEST(RahmenTest, Too_few_values_for_a_write_are_an_error) {
    EXPECT_THROW(SchreibAnforderung(1, 0, 3, {1, 2}), std::out_of_range);
}

} // namespace varnoth
