#include "kommandozeile.h"

#include "texte.h"

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
    for (int nummer = 1; nummer <= 4; ++nummer)
        EXPECT_EQ(LiesKommandozeile({QStringLiteral("/Com=%1").arg(nummer)}).com, nummer);
    for (const char* wort : {"/Com=0", "/Com=5", "/Com=", "/Com=x", "/Com"})
        EXPECT_EQ(LiesKommandozeile({QString::fromLatin1(wort)}).com, 0) << wort;
}

TEST(Kommandozeile, Simulator_device_and_self_test_are_read_together) {
    const auto zeile = LiesKommandozeile({"/Simulator", "/Geraet=/dev/ttyUSB0", "/Selbsttest=/tmp/bild"});
    EXPECT_TRUE(zeile.simulator);
    EXPECT_EQ(zeile.geraet, "/dev/ttyUSB0");
    EXPECT_EQ(zeile.selbsttest, "/tmp/bild");
}

TEST(Kommandozeile, A_word_without_a_slash_in_front_is_a_file_unless_it_looks_like_an_option) {
    EXPECT_EQ(LiesKommandozeile({"a.con", "/Simulator", "folder/b c.con", "-x", "", "../ü.con"}).dateien,
              QStringList({"a.con", "folder/b c.con", "../ü.con"}));
}

TEST(Kommandozeile, A_path_from_the_root_is_a_file_and_no_unknown_switch) {
    EXPECT_EQ(
        LiesKommandozeile({"/home/user/a.con", "/a.con", "/A.CON", "/nacht.vrec", "/tmp/x", "/unknown", "/"})
            .dateien,
        QStringList({"/home/user/a.con", "/a.con", "/A.CON", "/nacht.vrec", "/tmp/x"}));
}

TEST(Kommandozeile, A_path_that_begins_like_a_switch_is_a_file_where_it_exists_and_that_switch_otherwise) {
    const QStringList worte{"/Plant/a.con", "/Simulator/b.con", "/Tlogfiles/c.con", "/Com=1/d.con"};
    const auto da = LiesKommandozeile(worte, [](const QString&) { return true; });
    EXPECT_EQ(da.dateien, worte);
    EXPECT_FALSE(da.serviceText || da.simulator || da.trace);
    const auto fehlt = LiesKommandozeile(worte, [](const QString&) { return false; });
    EXPECT_TRUE(fehlt.dateien.isEmpty());
    EXPECT_EQ(fehlt.serviceText, "lant/a.con      ");
    EXPECT_TRUE(fehlt.simulator && fehlt.trace);
}

TEST(Kommandozeile, A_switch_without_a_second_slash_is_never_taken_for_a_file) {
    const auto zeile = LiesKommandozeile({"/Pabc", "/Tlogfile", "/Simulator", "/Com=2"},
                                         [](const QString&) { return true; });
    EXPECT_TRUE(zeile.dateien.isEmpty());
    EXPECT_EQ(zeile.serviceText, "abc             ");
}

TEST(Kommandozeile, A_device_or_folder_that_exists_is_not_taken_for_a_file_to_open) {
    const auto zeile = LiesKommandozeile({"/Geraet=/dev/null", "/Selbsttest=/tmp"});
    EXPECT_TRUE(zeile.dateien.isEmpty());
    EXPECT_EQ(zeile.geraet, "/dev/null");
}

TEST(Kommandozeile, Behind_two_dashes_every_word_is_a_file) {
    const auto zeile = LiesKommandozeile({"/Simulator", "--", "/Pabc", "--", "-a.con", "/Tlogfile"});
    EXPECT_EQ(zeile.dateien, QStringList({"/Pabc", "--", "-a.con", "/Tlogfile"}));
    EXPECT_TRUE(zeile.simulator);
    EXPECT_FALSE(zeile.serviceText || zeile.trace);
}

TEST(Aufrufauskunft, The_version_is_told_on_one_line) {
    EXPECT_EQ(Aufrufauskunft({"/Simulator", "--version"}), "varnoth 1.0.0\n");
}

TEST(Aufrufauskunft, The_help_names_every_switch_in_the_chosen_language) {
    SetzeSprachoffset(Englisch);
    const QString text = Aufrufauskunft({"--help"}).value_or(QString());
    for (const char* wort : {"/P...", "/Tlogfile", "/Simulator", "/Geraet=PATH", "/Com=N",
                             "/Selbsttest=FOLDER", "--help", "--version", "Usage: varnoth"})
        EXPECT_TRUE(text.contains(QLatin1String(wort))) << wort;
    SetzeSprachoffset(Deutsch);
    EXPECT_TRUE(Aufrufauskunft({"--help"})->startsWith("Aufruf: varnoth"));
}

TEST(Aufrufauskunft, Without_the_words_or_behind_two_dashes_nothing_is_told) {
    EXPECT_EQ(Aufrufauskunft({"/Simulator", "a.con", "--", "--version", "--help"}), std::nullopt);
}

} // namespace varnoth
