#include "dateien.h"

#include "dateiprobe.h"
#include "systemfehler.h"

#include <QDir>
#include <gtest/gtest.h>

#include <cerrno>

namespace varnoth {

class Dateien : public pruefung::Dateiprobe {};

TEST_F(Dateien, What_was_written_is_read_back) {
    const std::string bytes("\0\xFF\r\n\x1A", 5);
    EXPECT_EQ(ErsetzeDatei(Pfad("a.con"), bytes), "");
    const auto gelesen = LiesDatei(Pfad("a.con"), 100);
    EXPECT_TRUE(gelesen.gelungen);
    EXPECT_EQ(gelesen.bytes, bytes);
    EXPECT_EQ(gelesen.fehlertext, "");
}

TEST_F(Dateien, An_empty_file_is_read_as_nothing) {
    EXPECT_EQ(ErsetzeDatei(Pfad("a.con"), ""), "");
    EXPECT_TRUE(LiesDatei(Pfad("a.con"), 100).gelungen);
    EXPECT_EQ(Inhalt(Pfad("a.con")), "");
}

TEST_F(Dateien, Of_a_longer_file_only_the_beginning_is_read) {
    ErsetzeDatei(Pfad("a.con"), "0123456789");
    EXPECT_EQ(LiesDatei(Pfad("a.con"), 4).bytes, "0123");
}

TEST_F(Dateien, Replacing_leaves_one_file_with_the_new_bytes) {
    ErsetzeDatei(Pfad("a.con"), alt);
    EXPECT_EQ(ErsetzeDatei(Pfad("a.con"), "neu"), "");
    EXPECT_EQ(Inhalt(Pfad("a.con")), "neu");
    EXPECT_EQ(Namen(), QStringList{"a.con"});
}

TEST_F(Dateien, Umlauts_blanks_and_200_characters_work) {
    const std::string umlaute = Pfad("Prüf stand Größe 1.con");
    const std::string lang = Pfad((std::string(196, 'x') + ".con").c_str());
    for (const auto& pfad : {umlaute, lang}) {
        EXPECT_FALSE(GibtEsDatei(pfad));
        EXPECT_EQ(ErsetzeDatei(pfad, neu), "") << pfad;
        EXPECT_TRUE(GibtEsDatei(pfad));
        EXPECT_EQ(Inhalt(pfad), neu);
    }
}

TEST_F(Dateien, A_file_that_is_not_there_is_said) {
    const auto gelesen = LiesDatei(Pfad("fehlt.con"), 100);
    EXPECT_FALSE(gelesen.gelungen);
    EXPECT_EQ(gelesen.fehlertext, Systemfehler(ENOENT));
    EXPECT_EQ(LiesDatei("", 100).fehlertext, Systemfehler(ENOENT));
}

TEST_F(Dateien, A_folder_is_neither_read_nor_replaced) {
    const std::string pfad = Pfad("Ordner");
    ASSERT_TRUE(QDir().mkdir(QString::fromStdString(pfad)));
    EXPECT_TRUE(GibtEsDatei(pfad));
    EXPECT_EQ(LiesDatei(pfad, 100).fehlertext, Systemfehler(EISDIR));
    EXPECT_EQ(ErsetzeDatei(pfad, neu), Systemfehler(EISDIR));
    EXPECT_TRUE(QDir(QString::fromStdString(pfad)).exists());
}

TEST_F(Dateien, A_folder_that_is_not_there_is_said) {
    EXPECT_EQ(ErsetzeDatei(Pfad("weg/a.con"), neu), Systemfehler(ENOENT));
}

TEST_F(Dateien, A_name_as_long_as_the_file_system_takes_works) {
    const std::string pfad = Pfad((std::string(251, 'x') + ".con").c_str());
    EXPECT_EQ(ErsetzeDatei(pfad, neu), "");
    EXPECT_EQ(Inhalt(pfad), neu);
}

TEST_F(Dateien, Appending_makes_the_file_and_goes_on_behind_what_is_there) {
    EXPECT_EQ(HaengeAnDatei(Pfad("a.txt"), "ab\n", 100).fehlertext, "");
    EXPECT_EQ(HaengeAnDatei(Pfad("a.txt"), "c\n", 100).fehlertext, "");
    EXPECT_EQ(Inhalt(Pfad("a.txt")), "ab\nc\n");
}

TEST_F(Dateien, Appending_stops_before_the_file_becomes_too_long) {
    EXPECT_FALSE(HaengeAnDatei(Pfad("a.txt"), "12345", 10).voll);
    EXPECT_FALSE(HaengeAnDatei(Pfad("a.txt"), "67890", 10).voll);
    EXPECT_TRUE(HaengeAnDatei(Pfad("a.txt"), "x", 10).voll);
    EXPECT_EQ(Inhalt(Pfad("a.txt")), "1234567890");
}

TEST_F(Dateien, A_file_that_is_removed_is_gone_and_one_that_is_not_there_is_none_to_remove) {
    ErsetzeDatei(Pfad("a.con"), neu);
    EXPECT_EQ(EntferneDatei(Pfad("a.con")), "");
    EXPECT_FALSE(GibtEsDatei(Pfad("a.con")));
    EXPECT_EQ(EntferneDatei(Pfad("a.con")), "");
}

TEST_F(Dateien, A_file_is_the_same_under_another_spelling_and_none_that_is_not_there_is) {
    ErsetzeDatei(Pfad("a.con"), neu);
    ErsetzeDatei(Pfad("b.con"), neu);
    ASSERT_TRUE(QDir().mkdir(QString::fromStdString(Pfad("Ordner"))));
    EXPECT_TRUE(IstDieselbeDatei(Pfad("a.con"), Pfad("Ordner/../a.con")));
    EXPECT_FALSE(IstDieselbeDatei(Pfad("a.con"), Pfad("b.con")));
    EXPECT_FALSE(IstDieselbeDatei(Pfad("c.con"), Pfad("d.con")));
    EXPECT_TRUE(IstGewoehnlicheDatei(Pfad("a.con")));
    EXPECT_FALSE(IstGewoehnlicheDatei(Pfad("Ordner")));
    EXPECT_FALSE(IstGewoehnlicheDatei(Pfad("c.con")));
}

} // namespace varnoth
