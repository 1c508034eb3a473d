#include "csvzeile.h"

#include "texte.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Csvzeile, A_field_with_a_separator_a_quote_or_a_line_end_stands_in_quotes) {
    EXPECT_EQ(CsvFeld("a b"), "a b");
    EXPECT_EQ(CsvFeld(""), "");
    EXPECT_EQ(CsvFeld("a;b"), "\"a;b\"");
    EXPECT_EQ(CsvFeld("a,b"), "\"a,b\"");
    EXPECT_EQ(CsvFeld("a\nb"), "\"a\nb\"");
    EXPECT_EQ(CsvFeld("\"a\"\""), "\"\"\"a\"\"\"\"\"");
}

TEST(Csvzeile, A_field_that_a_spreadsheet_would_reckon_is_kept_from_it) {
    for (const char* feld : {"=1+1", "+1", "-1", "@SUM(A1)"})
        EXPECT_EQ(CsvFeld(feld), std::string("'") + feld);
    EXPECT_EQ(CsvFeld("=HYPERLINK(\"http://x\")"), "\"'=HYPERLINK(\"\"http://x\"\")\"");
}

TEST(Csvzeile, Fields_are_parted_as_spreadsheets_of_the_language_expect) {
    EXPECT_EQ(Csvzeile({"a", "b;c", ""}), "a;\"b;c\";\r\n");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Csvzeile({"a", "b;c", ""}), "a,\"b;c\",\r\n");
}

} // namespace varnoth
