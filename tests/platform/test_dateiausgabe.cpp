#include "dateiausgabe.h"

#include "dateien.h"
#include "kindprozess.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>

namespace varnoth {

class DateiausgabeTest : public testing::Test {
protected:
    std::string Pfad(const char* name) const { return ordner.filePath(QLatin1String(name)).toStdString(); }
    static std::string Inhalt(const std::string& pfad) { return LiesDatei(pfad, 1 << 20).bytes; }
    static void Lege(const std::string& pfad, const std::string& inhalt) { std::ofstream(pfad) << inhalt; }

    QTemporaryDir ordner;
    Dateiausgabe ablage;
};

TEST_F(DateiausgabeTest, What_was_appended_is_in_the_file_at_once) {
    const auto angelegt = ablage.LegeAn(Pfad("a"));
    ASSERT_EQ(angelegt.fehler, 0);
    EXPECT_EQ(angelegt.datei->HaengeAn("one "), 0);
    EXPECT_EQ(angelegt.datei->HaengeAn("two"), 0);
    EXPECT_EQ(Inhalt(Pfad("a")), "one two");
    EXPECT_EQ(angelegt.datei->Sichere(), 0);
}

TEST_F(DateiausgabeTest, Nothing_that_is_there_is_replaced_or_followed) {
    Lege(Pfad("a"), "old");
    EXPECT_EQ(ablage.LegeAn(Pfad("a")).fehler, EEXIST);
    EXPECT_EQ(Inhalt(Pfad("a")), "old");
    std::filesystem::create_symlink(Pfad("elsewhere"), Pfad("link"));
    EXPECT_EQ(ablage.LegeAn(Pfad("link")).fehler, EEXIST);
    EXPECT_FALSE(GibtEsDatei(Pfad("elsewhere")));
}

TEST_F(DateiausgabeTest, Its_folder_is_made) {
    EXPECT_EQ(ablage.LegeAn(Pfad("b/c/a")).fehler, 0);
    EXPECT_TRUE(GibtEsDatei(Pfad("b/c/a")));
}

TEST_F(DateiausgabeTest, A_file_has_the_rights_of_other_documents) {
    const auto maske = ::umask(0022);
    const auto angelegt = ablage.LegeAn(Pfad("a"));
    ::umask(maske);
    struct ::stat stand {};
    ASSERT_EQ(::stat(Pfad("a").c_str(), &stand), 0);
    EXPECT_EQ(stand.st_mode & 0777U, 0644U);
}

TEST_F(DateiausgabeTest, Of_bytes_that_do_not_fit_none_stays) {
    const std::string pfad = Pfad("a");
    const std::string gesagt = pruefung::Kind([&](int) {
                                   pruefung::BegrenzeDateigroesse(1000);
                                   std::signal(SIGXFSZ, SIG_IGN);
                                   const auto datei = ablage.LegeAn(pfad).datei;
                                   const int erster = datei->HaengeAn(std::string(600, 'a'));
                                   const int zweiter = datei->HaengeAn(std::string(600, 'b'));
                                   return std::to_string(erster) + " " + std::to_string(zweiter);
                               })
                                   .Ende()
                                   .text;
    EXPECT_EQ(gesagt, "0 " + std::to_string(EFBIG));
    EXPECT_EQ(Inhalt(pfad), std::string(600, 'a'));
}

TEST_F(DateiausgabeTest, A_file_that_was_taken_away_is_noticed_at_the_sync) {
    const auto datei = ablage.LegeAn(Pfad("a")).datei;
    datei->HaengeAn("a");
    std::filesystem::rename(Pfad("a"), Pfad("b"));
    EXPECT_EQ(datei->Sichere(), ENOENT);
    Lege(Pfad("a"), "another's");
    EXPECT_EQ(datei->Sichere(), ENOENT);
}

TEST_F(DateiausgabeTest, It_removes_its_own_file_and_no_other_of_that_name) {
    const auto eine = ablage.LegeAn(Pfad("a")).datei;
    eine->Schliesse();
    eine->Entferne();
    EXPECT_FALSE(GibtEsDatei(Pfad("a")));
    const auto andere = ablage.LegeAn(Pfad("b")).datei;
    std::filesystem::rename(Pfad("b"), Pfad("c"));
    Lege(Pfad("b"), "another's");
    andere->Entferne();
    EXPECT_EQ(Inhalt(Pfad("b")), "another's");
}

TEST_F(DateiausgabeTest, A_folder_that_nobody_may_write_gives_the_systems_error) {
    ASSERT_EQ(::chmod(ordner.path().toUtf8().constData(), 0555), 0);
    const std::string pfad = Pfad("a");
    const std::string gesagt =
        pruefung::AlsNutzer([&] { return std::to_string(ablage.LegeAn(pfad).fehler); });
    ::chmod(ordner.path().toUtf8().constData(), 0755);
    EXPECT_EQ(gesagt, std::to_string(EACCES));
}

TEST_F(DateiausgabeTest, The_room_of_a_folder_is_told_where_there_is_one) {
    EXPECT_GT(ablage.FreierPlatz(ordner.path().toStdString()).value_or(0), 0U);
    EXPECT_EQ(ablage.FreierPlatz(Pfad("nowhere")), std::nullopt);
}

} // namespace varnoth
