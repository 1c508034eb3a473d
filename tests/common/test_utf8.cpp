#include "utf8.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Utf8, Characters_of_one_to_four_bytes_are_text) {
    for (const char* text :
         {"", "a", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
          "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF", "a\xC3\xA4 \xE2\x82\xAC b"})
        EXPECT_TRUE(IstUtf8(text)) << text;
}

TEST(Utf8, A_character_that_ends_too_early_is_none) {
    for (const char* text : {"\xC3", "\xE2\x82", "\xF0\x90\x80", "a\xC3", "\xC3 a", "\xE2\x82z"})
        EXPECT_FALSE(IstUtf8(text)) << text;
}

TEST(Utf8, A_following_byte_alone_and_bytes_that_begin_nothing_are_none) {
    for (const char* text : {"\x80", "\xBF", "\xF8\x88\x80\x80\x80", "\xFE", "\xFF", "Gr\xF6\xDFte"})
        EXPECT_FALSE(IstUtf8(text)) << text;
}

TEST(Utf8, Longer_forms_than_needed_surrogates_and_codes_beyond_the_last_are_none) {
    for (const char* text : {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80",
                             "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF7\xBF\xBF\xBF"})
        EXPECT_FALSE(IstUtf8(text)) << text;
}

} // namespace varnoth
