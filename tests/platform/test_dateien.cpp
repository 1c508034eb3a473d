#include "dateien.h"

#include "inieinstellungen.h"
#include "kindprozess.h"
#include "systemfehler.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cerrno>
#include <csignal>

namespace varnoth {

namespace {

using namespace pruefung;

constexpr std::size_t Laenge = 10262;

} // namespace

class Dateien : public testing::Test {
protected:
    Dateien() { chmod(ordner.path().toUtf8().constData(), 0777); }

    std::string Pfad(const char* name) const {
        return ordner.filePath(QString::fromUtf8(name)).toStdString();
    }
    static std::string Inhalt(const std::string& pfad) { return LiesDatei(pfad, 1 << 20).bytes; }
    QStringList Namen() const {
        return QDir(ordner.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir ordner;
    const std::string alt = std::string(Laenge, 'a');
    const std::string neu = std::string(Laenge, 'n');
};

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

TEST_F(Dateien, A_device_or_pipe_is_neither_waited_for_nor_replaced) {
    const std::string rohr = Pfad("rohr");
    ASSERT_EQ(mkfifo(rohr.c_str(), 0600), 0);
    for (const std::string& pfad : {rohr, std::string("/dev/full")}) {
        EXPECT_EQ(LiesDatei(pfad, 100).fehlertext, KeineGewoehnlicheDatei());
        EXPECT_EQ(ErsetzeDatei(pfad, neu), KeineGewoehnlicheDatei());
        EXPECT_TRUE(GibtEsDatei(pfad));
    }
}

TEST_F(Dateien, An_unreadable_file_is_said) {
    ErsetzeDatei(Pfad("a.con"), alt);
    chmod(Pfad("a.con").c_str(), 0);
    EXPECT_EQ(AlsNutzer([&] { return LiesDatei(Pfad("a.con"), 100).fehlertext; }), Systemfehler(EACCES));
}

TEST_F(Dateien, A_read_only_folder_is_said_and_keeps_the_file) {
    ErsetzeDatei(Pfad("a.con"), alt);
    chmod(Pfad("a.con").c_str(), 0666);
    chmod(ordner.path().toUtf8().constData(), 0555);
    EXPECT_EQ(AlsNutzer([&] { return ErsetzeDatei(Pfad("neu.con"), neu); }), Systemfehler(EACCES));
    EXPECT_EQ(AlsNutzer([&] { return ErsetzeDatei(Pfad("a.con"), neu); }), Systemfehler(EACCES));
    chmod(ordner.path().toUtf8().constData(), 0777);
    EXPECT_EQ(Inhalt(Pfad("a.con")), alt);
    EXPECT_EQ(Namen(), QStringList{"a.con"});
}

TEST_F(Dateien, A_write_protected_file_is_kept) {
    ErsetzeDatei(Pfad("a.con"), alt);
    chmod(Pfad("a.con").c_str(), 0444);
    EXPECT_NE(AlsNutzer([&] { return ErsetzeDatei(Pfad("a.con"), neu); }), "");
    EXPECT_EQ(Inhalt(Pfad("a.con")), alt);
}

TEST_F(Dateien, A_folder_that_is_not_there_is_said) {
    EXPECT_EQ(ErsetzeDatei(Pfad("weg/a.con"), neu), Systemfehler(ENOENT));
}

TEST_F(Dateien, A_full_disk_is_said_and_keeps_the_old_file) {
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

TEST_F(Dateien, A_write_that_stops_half_way_keeps_the_old_file_and_leaves_nothing_beside_it) {
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

TEST_F(Dateien, A_program_that_dies_at_any_byte_of_a_save_leaves_the_old_file) {
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

TEST_F(Dateien, A_link_stays_a_link_and_the_file_it_leads_to_is_replaced) {
    ErsetzeDatei(Pfad("a.con"), alt);
    ASSERT_TRUE(QFile::link(ordner.filePath("a.con"), ordner.filePath("link.con")));
    EXPECT_EQ(ErsetzeDatei(Pfad("link.con"), neu), "");
    EXPECT_TRUE(QFileInfo(ordner.filePath("link.con")).isSymLink());
    EXPECT_EQ(Inhalt(Pfad("a.con")), neu);
}

TEST_F(Dateien, A_replaced_file_keeps_its_permissions) {
    ErsetzeDatei(Pfad("a.con"), alt);
    chmod(Pfad("a.con").c_str(), 0640);
    ErsetzeDatei(Pfad("a.con"), neu);
    struct stat stand {};
    ASSERT_EQ(stat(Pfad("a.con").c_str(), &stand), 0);
    EXPECT_EQ(stand.st_mode & 0777U, 0640U);
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

TEST_F(Dateien, Appending_is_said_where_it_cannot_be_and_waits_for_no_pipe) {
    const std::string rohr = Pfad("rohr");
    ASSERT_EQ(mkfifo(rohr.c_str(), 0600), 0);
    EXPECT_EQ(HaengeAnDatei(rohr, "x", 10).fehlertext, KeineGewoehnlicheDatei());
    EXPECT_EQ(HaengeAnDatei(Pfad("weg/a.txt"), "x", 10).fehlertext, Systemfehler(ENOENT));
    chmod(ordner.path().toUtf8().constData(), 0555);
    EXPECT_EQ(AlsNutzer([&] { return HaengeAnDatei(Pfad("a.txt"), "x", 10).fehlertext; }),
              Systemfehler(EACCES));
}

TEST_F(Dateien, An_append_that_stops_half_way_leaves_the_file_as_it_was) {
    HaengeAnDatei(Pfad("a.txt"), "alt", 1000);
    const auto kind = Kind([&](int) {
                          signal(SIGXFSZ, SIG_IGN);
                          BegrenzeDateigroesse(10);
                          return HaengeAnDatei(Pfad("a.txt"), std::string(100, 'x'), 1000).fehlertext;
                      }).Ende();
    EXPECT_EQ(kind.text, Systemfehler(EFBIG));
    EXPECT_EQ(Inhalt(Pfad("a.txt")), "alt");
}

TEST_F(Dateien, Unreadable_settings_give_defaults_and_are_left_alone) {
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

TEST_F(Dateien, Settings_in_a_pipe_or_device_are_neither_waited_for_nor_replaced) {
    const std::string rohr = Pfad("varnoth.ini");
    ASSERT_EQ(mkfifo(rohr.c_str(), 0600), 0);
    for (const std::string& pfad : {rohr, std::string("/dev/zero")}) {
        IniEinstellungen einstellungen(QString::fromStdString(pfad));
        EXPECT_EQ(einstellungen.LiesZahl("Settings", "Sprache", 7), 7);
        EXPECT_FALSE(einstellungen.SchreibText("Settings", "ComPort", "2"));
        EXPECT_TRUE(GibtEsDatei(pfad));
    }
}

TEST_F(Dateien, Settings_on_a_full_disk_stay_as_they_were_and_a_change_lasts_for_this_run) {
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
