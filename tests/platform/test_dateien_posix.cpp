// Where files lie on Linux: rights, links, pipes, full disks, and programs that die while they write.

#include "dateieingabe.h"
#include "dateien.h"
#include "dateiprobe.h"
#include "inieinstellungen.h"
#include "kindprozess.h"
#include "systemfehler.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cerrno>
#include <csignal>

namespace varnoth {

namespace {

using namespace pruefung;

} // namespace

class DateienUnterLinux : public Dateiprobe {
protected:
    DateienUnterLinux() { chmod(ordner.path().toUtf8().constData(), 0777); }
};

TEST_F(DateienUnterLinux, A_device_or_pipe_is_neither_waited_for_nor_replaced) {
    const std::string rohr = Pfad("rohr");
    ASSERT_EQ(mkfifo(rohr.c_str(), 0600), 0);
    for (const std::string& pfad : {rohr, std::string("/dev/full")}) {
        EXPECT_EQ(LiesDatei(pfad, 100).fehlertext, KeineGewoehnlicheDatei());
        EXPECT_EQ(ErsetzeDatei(pfad, neu), KeineGewoehnlicheDatei());
        EXPECT_EQ(OeffneEingabe(pfad).fehlertext, KeineGewoehnlicheDatei());
        EXPECT_TRUE(GibtEsDatei(pfad));
    }
}

TEST_F(DateienUnterLinux, An_unreadable_file_is_said) {
    ErsetzeDatei(Pfad("a.con"), alt);
    chmod(Pfad("a.con").c_str(), 0);
    EXPECT_EQ(AlsNutzer([&] { return LiesDatei(Pfad("a.con"), 100).fehlertext; }), Systemfehler(EACCES));
}

TEST_F(DateienUnterLinux, A_read_only_folder_is_said_and_keeps_the_file) {
    ErsetzeDatei(Pfad("a.con"), alt);
    chmod(Pfad("a.con").c_str(), 0666);
    chmod(ordner.path().toUtf8().constData(), 0555);
    EXPECT_EQ(AlsNutzer([&] { return ErsetzeDatei(Pfad("neu.con"), neu); }), Systemfehler(EACCES));
    EXPECT_EQ(AlsNutzer([&] { return ErsetzeDatei(Pfad("a.con"), neu); }), Systemfehler(EACCES));
    chmod(ordner.path().toUtf8().constData(), 0777);
    EXPECT_EQ(Inhalt(Pfad("a.con")), alt);
    EXPECT_EQ(Namen(), QStringList{"a.con"});
}

TEST_F(DateienUnterLinux, A_write_protected_file_is_kept) {
    ErsetzeDatei(Pfad("a.con"), alt);
    chmod(Pfad("a.con").c_str(), 0444);
    EXPECT_NE(AlsNutzer([&] { return ErsetzeDatei(Pfad("a.con"), neu); }), "");
    EXPECT_EQ(Inhalt(Pfad("a.con")), alt);
}

TEST_F(DateienUnterLinux, A_full_disk_is_said_and_keeps_the_old_file) {
    const std::string text =
        Kind([&](int) -> std::string {
            if (!HaengeKleinenDatentraegerEin(ordner.path().toStdString()))
                return "not allowed";
            ErsetzeDatei(Pfad("a.con"), "alt");
            const std::string fehler = ErsetzeDatei(Pfad("a.con"), neu);
            return fehler + ": " + Inhalt(Pfad("a.con")) + ": " + Namen().join(' ').toStdString();
        })
            .Ende()
            .text;
    if (text == "not allowed")
        GTEST_SKIP() << "only root may mount a small disk";
    EXPECT_EQ(text, Systemfehler(ENOSPC) + ": alt: a.con");
}

TEST_F(DateienUnterLinux, A_write_that_stops_half_way_keeps_the_old_file_and_leaves_nothing_beside_it) {
    ErsetzeDatei(Pfad("a.con"), alt);
    const auto kind = Kind([&](int) {
                          signal(SIGXFSZ, SIG_IGN);
                          BegrenzeDateigroesse(Laenge / 2);
                          return ErsetzeDatei(Pfad("a.con"), neu);
                      }).Ende();
    EXPECT_EQ(kind.text, Systemfehler(EFBIG));
    EXPECT_TRUE(Inhalt(Pfad("a.con")) == alt) << Inhalt(Pfad("a.con")).size();
    EXPECT_EQ(Namen(), QStringList{"a.con"});
}

TEST_F(DateienUnterLinux, A_program_that_dies_at_any_byte_of_a_save_leaves_the_old_file) {
    ErsetzeDatei(Pfad("a.con"), alt);
    for (const std::size_t stelle : {std::size_t{0}, std::size_t{1}, std::size_t{4096}, Laenge - 1}) {
        const auto kind = Kind([&](int) {
                              signal(SIGXFSZ, SIG_DFL);
                              BegrenzeDateigroesse(stelle);
                              return ErsetzeDatei(Pfad("a.con"), neu);
                          }).Ende();
        EXPECT_TRUE(WIFSIGNALED(kind.zustand)) << stelle;
        EXPECT_EQ(Inhalt(Pfad("a.con")), alt) << stelle;
    }
}

TEST_F(DateienUnterLinux, A_link_stays_a_link_and_the_file_it_leads_to_is_replaced) {
    ErsetzeDatei(Pfad("a.con"), alt);
    ASSERT_TRUE(QFile::link(ordner.filePath("a.con"), ordner.filePath("link.con")));
    EXPECT_EQ(ErsetzeDatei(Pfad("link.con"), neu), "");
    EXPECT_TRUE(QFileInfo(ordner.filePath("link.con")).isSymLink());
    EXPECT_EQ(Inhalt(Pfad("a.con")), neu);
}

TEST_F(DateienUnterLinux, A_replaced_file_keeps_its_permissions) {
    ErsetzeDatei(Pfad("a.con"), alt);
    chmod(Pfad("a.con").c_str(), 0640);
    ErsetzeDatei(Pfad("a.con"), neu);
    struct stat stand {};
    ASSERT_EQ(stat(Pfad("a.con").c_str(), &stand), 0);
    EXPECT_EQ(stand.st_mode & 0777U, 0640U);
}

TEST_F(DateienUnterLinux, Appending_is_said_where_it_cannot_be_and_waits_for_no_pipe) {
    const std::string rohr = Pfad("rohr");
    ASSERT_EQ(mkfifo(rohr.c_str(), 0600), 0);
    EXPECT_EQ(HaengeAnDatei(rohr, "x", 10).fehlertext, KeineGewoehnlicheDatei());
    EXPECT_EQ(HaengeAnDatei(Pfad("weg/a.txt"), "x", 10).fehlertext, Systemfehler(ENOENT));
    chmod(ordner.path().toUtf8().constData(), 0555);
    EXPECT_EQ(AlsNutzer([&] { return HaengeAnDatei(Pfad("a.txt"), "x", 10).fehlertext; }),
              Systemfehler(EACCES));
}

TEST_F(DateienUnterLinux, An_append_that_stops_half_way_leaves_the_file_as_it_was) {
    HaengeAnDatei(Pfad("a.txt"), "alt", 1000);
    const auto kind = Kind([&](int) {
                          signal(SIGXFSZ, SIG_IGN);
                          BegrenzeDateigroesse(10);
                          return HaengeAnDatei(Pfad("a.txt"), std::string(100, 'x'), 1000).fehlertext;
                      }).Ende();
    EXPECT_EQ(kind.text, Systemfehler(EFBIG));
    EXPECT_EQ(Inhalt(Pfad("a.txt")), "alt");
}

TEST_F(DateienUnterLinux, Unreadable_settings_give_defaults_and_are_left_alone) {
    ErsetzeDatei(Pfad("varnoth.ini"), "[Settings]\nSprache=10000\n");
    chmod(Pfad("varnoth.ini").c_str(), 0);
    const std::string gelesen = AlsNutzer([&] {
        IniEinstellungen einstellungen(ordner.filePath("varnoth.ini"));
        const int sprache = einstellungen.LiesZahl("Settings", "Sprache", 0);
        const bool gespeichert = einstellungen.SchreibText("Settings", "ComPort", "2");
        return std::to_string(sprache) + (gespeichert ? " stored" : " not stored");
    });
    EXPECT_EQ(gelesen, "0 not stored");
    chmod(Pfad("varnoth.ini").c_str(), 0666);
    EXPECT_EQ(Inhalt(Pfad("varnoth.ini")), "[Settings]\nSprache=10000\n");
    EXPECT_EQ(Namen(), QStringList{"varnoth.ini"});
}

TEST_F(DateienUnterLinux, Settings_in_a_pipe_or_device_are_neither_waited_for_nor_replaced) {
    const std::string rohr = Pfad("varnoth.ini");
    ASSERT_EQ(mkfifo(rohr.c_str(), 0600), 0);
    for (const std::string& pfad : {rohr, std::string("/dev/zero")}) {
        IniEinstellungen einstellungen(QString::fromStdString(pfad));
        EXPECT_EQ(einstellungen.LiesZahl("Settings", "Sprache", 7), 7);
        EXPECT_FALSE(einstellungen.SchreibText("Settings", "ComPort", "2"));
        EXPECT_TRUE(GibtEsDatei(pfad));
    }
}

TEST_F(DateienUnterLinux, Settings_on_a_full_disk_stay_as_they_were_and_a_change_lasts_for_this_run) {
    const std::string text = Kind([&](int) -> std::string {
                                 if (!HaengeKleinenDatentraegerEin(ordner.path().toStdString()))
                                     return "not allowed";
                                 ErsetzeDatei(Pfad("varnoth.ini"), "[S]\na=1\n");
                                 QFile fueller(ordner.filePath("fueller"));
                                 if (!fueller.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
                                     return "no filler";
                                 fueller.write(QByteArray(8192, 'x'));
                                 IniEinstellungen einstellungen(ordner.filePath("varnoth.ini"));
                                 const bool gespeichert = einstellungen.SchreibText("S", "a", "2");
                                 return einstellungen.LiesText("S", "a", "") +
                                        (gespeichert ? " stored " : " not stored ") +
                                        Inhalt(Pfad("varnoth.ini"));
                             })
                                 .Ende()
                                 .text;
    if (text == "not allowed")
        GTEST_SKIP() << "only root may mount a small disk";
    EXPECT_EQ(text, "2 not stored [S]\na=1\n");
}

} // namespace varnoth
