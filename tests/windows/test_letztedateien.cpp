#include "letztedateien.h"

#include "pruefumgebung.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

using Pfade = std::vector<std::string>;

} // namespace

class LetzteDateienTest : public testing::Test {
protected:
    pruefung::PruefEinstellungen einstellungen;
};

TEST_F(LetzteDateienTest, At_first_there_is_none) {
    EXPECT_TRUE(LetzteDateien().empty());
}

TEST_F(LetzteDateienTest, The_newest_stands_first_and_the_settings_keep_them) {
    MerkeDatei("/a.con");
    MerkeDatei("/Größe & Ärger.con");
    EXPECT_EQ(LetzteDateien(), (Pfade{"/Größe & Ärger.con", "/a.con"}));
    EXPECT_EQ((einstellungen.texte[{"LetzteDateien", "Datei1"}]), "/Größe & Ärger.con");
    EXPECT_EQ((einstellungen.texte[{"LetzteDateien", "Datei2"}]), "/a.con");
}

TEST_F(LetzteDateienTest, A_file_used_again_moves_to_the_front) {
    for (const char* pfad : {"/a.con", "/b.con", "/c.con", "/a.con"})
        MerkeDatei(pfad);
    EXPECT_EQ(LetzteDateien(), (Pfade{"/a.con", "/c.con", "/b.con"}));
}

TEST_F(LetzteDateienTest, A_ninth_file_pushes_the_oldest_out) {
    for (int i = 1; i <= 9; ++i)
        MerkeDatei("/" + std::to_string(i) + ".con");
    EXPECT_EQ(LetzteDateien().size(), 8U);
    EXPECT_EQ(LetzteDateien().front(), "/9.con");
    EXPECT_EQ(LetzteDateien().back(), "/2.con");
    EXPECT_FALSE(einstellungen.texte.contains({"LetzteDateien", "Datei9"}));
}

TEST_F(LetzteDateienTest, Gaps_and_repeats_in_the_settings_are_passed_over) {
    einstellungen.texte[{"LetzteDateien", "Datei2"}] = "/b.con";
    einstellungen.texte[{"LetzteDateien", "Datei5"}] = "/b.con";
    einstellungen.texte[{"LetzteDateien", "Datei8"}] = "/c.con";
    einstellungen.texte[{"LetzteDateien", "Datei9"}] = "/d.con";
    EXPECT_EQ(LetzteDateien(), (Pfade{"/b.con", "/c.con"}));
}

TEST_F(LetzteDateienTest, The_same_file_again_writes_nothing) {
    MerkeDatei("/a.con");
    const int vorher = einstellungen.geschrieben;
    MerkeDatei("/a.con");
    EXPECT_EQ(einstellungen.geschrieben, vorher);
}

TEST_F(LetzteDateienTest, A_path_that_a_settings_line_cannot_hold_is_not_remembered) {
    MerkeDatei("/zwei\nZeilen.con");
    MerkeDatei("");
    EXPECT_TRUE(LetzteDateien().empty());
}

} // namespace varnoth
