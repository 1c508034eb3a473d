#include "ausgabeprobe.h"
#include "kindprozess.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <string>

namespace varnoth {

class AusgabeUnterLinux : public pruefung::Ausgabeprobe {};

TEST_F(AusgabeUnterLinux, A_link_is_not_followed) {
    std::filesystem::create_symlink(Pfad("elsewhere"), Pfad("link"));
    EXPECT_EQ(ablage.LegeAn(Pfad("link")).fehler, EEXIST);
    EXPECT_FALSE(GibtEsDatei(Pfad("elsewhere")));
}

TEST_F(AusgabeUnterLinux, A_file_has_the_rights_of_other_documents) {
    const auto maske = ::umask(0022);
    const auto angelegt = ablage.LegeAn(Pfad("a"));
    ::umask(maske);
    struct ::stat stand {};
    ASSERT_EQ(::stat(Pfad("a").c_str(), &stand), 0);
    EXPECT_EQ(stand.st_mode & 0777U, 0644U);
}

TEST_F(AusgabeUnterLinux, Of_bytes_that_do_not_fit_none_stays) {
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

TEST_F(AusgabeUnterLinux, A_file_that_was_taken_away_is_noticed_at_the_sync) {
    const auto datei = ablage.LegeAn(Pfad("a")).datei;
    datei->HaengeAn("a");
    std::filesystem::rename(Pfad("a"), Pfad("b"));
    EXPECT_EQ(datei->Sichere(), ENOENT);
    Lege(Pfad("a"), "another's");
    EXPECT_EQ(datei->Sichere(), ENOENT);
}

TEST_F(AusgabeUnterLinux, It_removes_its_own_file_and_no_other_of_that_name) {
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

TEST_F(AusgabeUnterLinux, A_folder_that_nobody_may_write_gives_the_systems_error) {
    ASSERT_EQ(::chmod(ordner.path().toUtf8().constData(), 0555), 0);
    const std::string pfad = Pfad("a");
    const std::string gesagt =
        pruefung::AlsNutzer([&] { return std::to_string(ablage.LegeAn(pfad).fehler); });
    ::chmod(ordner.path().toUtf8().constData(), 0755);
    EXPECT_EQ(gesagt, std::to_string(EACCES));
}

} // namespace varnoth
