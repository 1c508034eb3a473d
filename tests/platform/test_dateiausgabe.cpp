#include "ausgabeprobe.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace varnoth {

class DateiausgabeTest : public pruefung::Ausgabeprobe {};

TEST_F(DateiausgabeTest, What_was_appended_is_in_the_file_at_once) {
    const auto angelegt = ablage.LegeAn(Pfad("a"));
    ASSERT_EQ(angelegt.fehler, 0);
    EXPECT_EQ(angelegt.datei->HaengeAn("one "), 0);
    EXPECT_EQ(angelegt.datei->HaengeAn("two"), 0);
    EXPECT_EQ(Inhalt(Pfad("a")), "one two");
    EXPECT_EQ(angelegt.datei->Sichere(), 0);
}

TEST_F(DateiausgabeTest, Nothing_that_is_there_is_replaced) {
    Lege(Pfad("a"), "old");
    EXPECT_EQ(ablage.LegeAn(Pfad("a")).fehler, EEXIST);
    EXPECT_EQ(Inhalt(Pfad("a")), "old");
}

TEST_F(DateiausgabeTest, Its_folder_is_made) {
    EXPECT_EQ(ablage.LegeAn(Pfad("b/c/a")).fehler, 0);
    EXPECT_TRUE(GibtEsDatei(Pfad("b/c/a")));
}

TEST_F(DateiausgabeTest, It_removes_its_file_closed_or_not) {
    const auto geschlossene = ablage.LegeAn(Pfad("a")).datei;
    geschlossene->Schliesse();
    geschlossene->Entferne();
    EXPECT_FALSE(GibtEsDatei(Pfad("a")));
    const auto offene = ablage.LegeAn(Pfad("b")).datei;
    offene->Entferne();
    EXPECT_FALSE(GibtEsDatei(Pfad("b")));
}

TEST_F(DateiausgabeTest, The_room_of_a_folder_is_told_where_there_is_one) {
    EXPECT_GT(ablage.FreierPlatz(ordner.path().toStdString()).value_or(0), 0U);
    EXPECT_EQ(ablage.FreierPlatz(Pfad("nowhere")), std::nullopt);
}

} // namespace varnoth
