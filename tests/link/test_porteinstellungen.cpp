#include "porteinstellungen.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Porteinstellungen, The_standard_string_is_read) {
    EXPECT_EQ(LiesPorteinstellungen("38400,n,8,2"),
              (Porteinstellungen{38400, Paritaet::Keine, 8, Stoppbits::Zwei}));
}

TEST(Porteinstellungen, Every_parity_letter_is_known_in_either_case) {
    const std::pair<const char*, Paritaet> faelle[] = {
        {"9600,n,8,1", Paritaet::Keine}, {"9600,E,8,1", Paritaet::Gerade}, {"9600,o,8,1", Paritaet::Ungerade},
        {"9600,M,8,1", Paritaet::Eins},  {"9600,s,8,1", Paritaet::Null},
    };
    for (const auto& [text, paritaet] : faelle)
        EXPECT_EQ(LiesPorteinstellungen(text).value().paritaet, paritaet) << text;
}

TEST(Porteinstellungen, One_and_a_half_stop_bits_are_written_with_a_point) {
    EXPECT_EQ(LiesPorteinstellungen("1200,e,5,1.5").value().stoppbits, Stoppbits::Eineinhalb);
}

TEST(Porteinstellungen, Blanks_around_the_parts_do_not_count) {
    EXPECT_EQ(LiesPorteinstellungen(" 38400 , n , 8 , 2 "), Porteinstellungen{});
}

TEST(Porteinstellungen, Any_other_text_is_refused) {
    for (const char* text : {"", "abc", "38400", "38400,n,8", "38400,n,8,2,1", "38400,x,9,7", "38400,n,9,1",
                             "38400,n,4,1", "0,n,8,1", "-1,n,8,1", "38400,n,8,3", "38400,nn,8,1", ",,,",
                             "99999999999,n,8,1", "38400x,n,8,1", "38400,n,8,2,"})
        EXPECT_FALSE(LiesPorteinstellungen(text).has_value()) << '"' << text << '"';
}

TEST(Porteinstellungen, A_character_takes_its_start_data_parity_and_stop_bits) {
    EXPECT_EQ(Bitzeiten({38400, Paritaet::Keine, 8, Stoppbits::Zwei}), 11);
    EXPECT_EQ(Bitzeiten({38400, Paritaet::Gerade, 8, Stoppbits::Eins}), 11);
    EXPECT_EQ(Bitzeiten({38400, Paritaet::Keine, 8, Stoppbits::Eins}), 10);
    EXPECT_EQ(Bitzeiten({38400, Paritaet::Keine, 5, Stoppbits::Eineinhalb}), 7.5);
    EXPECT_DOUBLE_EQ(Zeichendauer({1000, Paritaet::Keine, 8, Stoppbits::Zwei}), 11'000);
}

} // namespace varnoth
