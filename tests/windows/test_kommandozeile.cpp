#include "kommandozeile.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Kommandozeile, A_short_password_is_filled_up_with_blanks) {
    EXPECT_EQ(LiesKommandozeile({"/Pabc"}).serviceText, "abc             ");
}

TEST(Kommandozeile, A_long_password_is_cut_to_sixteen_characters) {
    EXPECT_EQ(LiesKommandozeile({"/P0123456789abcdefXYZ"}).serviceText, "0123456789abcdef");
}

TEST(Kommandozeile, A_bare_password_switch_gives_sixteen_blanks) {
    EXPECT_EQ(LiesKommandozeile({"/P"}).serviceText, std::string(16, ' '));
}

TEST(Kommandozeile, The_password_has_one_byte_a_character) {
    EXPECT_EQ(LiesKommandozeile({QStringLiteral("/Pä")}).serviceText, "\xE4               ");
}

TEST(Kommandozeile, Without_switches_nothing_is_set) {
    const auto zeile = LiesKommandozeile({});
    EXPECT_FALSE(zeile.serviceText.has_value());
    EXPECT_FALSE(zeile.trace);
    EXPECT_FALSE(zeile.simulator);
    EXPECT_TRUE(zeile.geraet.isEmpty());
    EXPECT_TRUE(zeile.selbsttest.isEmpty());
}

TEST(Kommandozeile, The_trace_switch_counts_by_its_first_nine_characters) {
    EXPECT_TRUE(LiesKommandozeile({"/Tlogfile"}).trace);
    EXPECT_TRUE(LiesKommandozeile({"/Tlogfile=x"}).trace);
}

TEST(Kommandozeile, A_malformed_switch_is_ignored) {
    const auto zeile =
        LiesKommandozeile({"/Tlog", "/tlogfile", "/p123", "Tlogfile", "-P", "/", "", "/Geraet"});
    EXPECT_FALSE(zeile.serviceText.has_value());
    EXPECT_FALSE(zeile.trace);
    EXPECT_TRUE(zeile.geraet.isEmpty());
}

TEST(Kommandozeile, A_port_number_counts_only_from_one_to_four) {
    EXPECT_EQ(LiesKommandozeile({"/Com=3"}).com, 3);
    for (const char* wort : {"/Com=0", "/Com=5", "/Com=", "/Com=x", "/Com"})
        EXPECT_EQ(LiesKommandozeile({QString::fromLatin1(wort)}).com, 0) << wort;
}

TEST(Kommandozeile, Simulator_device_and_self_test_are_read_together) {
    const auto zeile = LiesKommandozeile({"/Simulator", "/Geraet=/dev/ttyUSB0", "/Selbsttest=/tmp/bild"});
    EXPECT_TRUE(zeile.simulator);
    EXPECT_EQ(zeile.geraet, "/dev/ttyUSB0");
    EXPECT_EQ(zeile.selbsttest, "/tmp/bild");
}

} // namespace varnoth
