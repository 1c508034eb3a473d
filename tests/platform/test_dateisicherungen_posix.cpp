#include "kindprozess.h"
#include "sicherungsprobe.h"
#include "systemfehler.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace varnoth {

using namespace pruefung;

class SicherungenUnterLinux : public Sicherungsprobe {};

TEST_F(SicherungenUnterLinux, A_link_among_them_is_neither_listed_nor_removed) {
    Schreibe("fremd.con", "x");
    Schreibe("sicherungen/A/my own.con", "x");
    ASSERT_TRUE(QFile::link(Pfad("fremd.con"), Pfad("sicherungen/A/2026-11-22_00-00-00-000Z.con")));
    EXPECT_TRUE(sicherungen.Alle().empty());
    for (int i = 0; i <= Dateisicherungen::Hoechstens; ++i)
        Schreibe(QString::fromStdString("sicherungen/B/" + Sicherungsname(Zeit(i)) + ".con"), "x");
    EXPECT_EQ(sicherungen.Lege({}, Angaben(1000)), "");
    EXPECT_TRUE(QFile::exists(Pfad("sicherungen/A/2026-11-22_00-00-00-000Z.con")));
}

TEST_F(SicherungenUnterLinux, A_full_disk_is_said_and_leaves_nothing_behind) {
    const std::string text =
        pruefung::Kind([&](int) -> std::string {
            if (!pruefung::HaengeKleinenDatentraegerEin(ordner.path().toStdString()))
                return "not allowed";
            const std::string fehler = sicherungen.Lege({}, Angaben(1));
            return fehler.substr(0, fehler.find('\n')) + ": " + Namen("SIM-0001").join(' ').toStdString();
        })
            .Ende()
            .text;
    if (text == "not allowed")
        GTEST_SKIP() << "only root may mount a small disk";
    EXPECT_EQ(text, Systemfehler(ENOSPC) + ": ");
}

TEST_F(SicherungenUnterLinux, A_limit_on_the_size_of_files_is_said_and_leaves_nothing_behind) {
    const std::string text =
        pruefung::Kind([&](int) -> std::string {
            const rlimit grenze{.rlim_cur = 4096, .rlim_max = 4096};
            if (std::signal(SIGXFSZ, SIG_IGN) == SIG_ERR || setrlimit(RLIMIT_FSIZE, &grenze) != 0)
                return "no limit";
            const std::string fehler = sicherungen.Lege({}, Angaben(1));
            return fehler.substr(0, fehler.find('\n')) + ": " + Namen("SIM-0001").join(' ').toStdString();
        })
            .Ende()
            .text;
    EXPECT_EQ(text, Systemfehler(EFBIG) + ": ");
}

TEST_F(SicherungenUnterLinux, A_folder_that_is_read_only_is_said_and_what_lies_in_it_stays) {
    ASSERT_EQ(sicherungen.Lege({}, Angaben(1)), "");
    const std::string fach = Pfad("sicherungen/SIM-0001").toStdString();
    ASSERT_EQ(chmod(ordner.path().toStdString().c_str(), 0755), 0);
    ASSERT_EQ(chmod(fach.c_str(), 0555), 0);
    const std::string text = pruefung::Kind([&](int) -> std::string {
                                 constexpr uid_t Niemand = 65534; // to root no folder is read only
                                 if (geteuid() == 0 && setuid(Niemand) != 0)
                                     return "no rights to give up";
                                 const std::string fehler = sicherungen.Lege({}, Angaben(2));
                                 return fehler.substr(0, fehler.find('\n'));
                             })
                                 .Ende()
                                 .text;
    ASSERT_EQ(chmod(fach.c_str(), 0755), 0);
    EXPECT_EQ(text, Systemfehler(EACCES));
    EXPECT_EQ(Zeiten(), std::vector{Zeit(1)});
}

} // namespace varnoth
