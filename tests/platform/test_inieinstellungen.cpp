#include "inieinstellungen.h"

#include "systemfehler.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <utility>
#include <vector>

namespace varnoth {

class IniEinstellungenTest : public testing::Test {
protected:
    QString Pfad() const { return ordner.filePath(QStringLiteral("varnoth.ini")); }
    void Schreibe(const QByteArray& inhalt) const { SchreibeNach(Pfad(), inhalt); }
    static void SchreibeNach(const QString& pfad, const QByteArray& inhalt) {
        QFile datei(pfad);
        ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write(inhalt);
    }
    QByteArray Inhalt(const QString& pfad) const {
        QFile datei(pfad);
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("missing");
    }

    QTemporaryDir ordner;
};

TEST_F(IniEinstellungenTest, A_missing_file_gives_the_defaults) {
    IniEinstellungen einstellungen(Pfad());
    EXPECT_EQ(einstellungen.LiesZahl("Settings", "Sprache", 0), 0);
    EXPECT_EQ(einstellungen.LiesText("Settings", "ComSettings", "38400,n,8,2"), "38400,n,8,2");
}

TEST_F(IniEinstellungenTest, Values_are_read_unquoted_and_with_commas) {
    Schreibe("[Settings]\r\nSprache=10000\r\nComSettings=9600,e,8,1\r\n");
    IniEinstellungen einstellungen(Pfad());
    EXPECT_EQ(einstellungen.LiesZahl("Settings", "Sprache", 0), 10000);
    EXPECT_EQ(einstellungen.LiesText("Settings", "ComSettings", ""), "9600,e,8,1");
}

TEST_F(IniEinstellungenTest, Sections_and_keys_are_found_in_any_case) {
    Schreibe("[settings]\ncomport=3\n");
    IniEinstellungen einstellungen(Pfad());
    EXPECT_EQ(einstellungen.LiesZahl("Settings", "ComPort", 1), 3);
}

TEST_F(IniEinstellungenTest, A_text_that_is_no_number_gives_the_number_it_begins_with) {
    Schreibe("[S]\na=12abc\nb=abc\nc=-7\nd=99999999999999\ne=\n");
    IniEinstellungen einstellungen(Pfad());
    EXPECT_EQ(einstellungen.LiesZahl("S", "a", 5), 12);
    EXPECT_EQ(einstellungen.LiesZahl("S", "b", 5), 0);
    EXPECT_EQ(einstellungen.LiesZahl("S", "c", 5), -7);
    EXPECT_EQ(einstellungen.LiesZahl("S", "d", 5), 2147483647);
    EXPECT_EQ(einstellungen.LiesZahl("S", "e", 5), 0);
}

TEST_F(IniEinstellungenTest, A_change_keeps_comments_order_and_the_values_of_others) {
    Schreibe(
        "; my machine\n[Zeta]\nb=2\na=1\n\n[Settings]\n; the line\nComSettings=38400,n,8,2\nSprache=0\n");
    IniEinstellungen einstellungen(Pfad());
    EXPECT_TRUE(einstellungen.SchreibText("Settings", "Sprache", "10000"));
    const QByteArray inhalt = Inhalt(Pfad());
    EXPECT_TRUE(inhalt.contains("; my machine"));
    EXPECT_TRUE(inhalt.contains("; the line"));
    EXPECT_TRUE(inhalt.contains("ComSettings=38400,n,8,2"));
    EXPECT_TRUE(inhalt.contains("Sprache=10000"));
    EXPECT_LT(inhalt.indexOf("[Zeta]"), inhalt.indexOf("[Settings]"));
    EXPECT_LT(inhalt.indexOf("b=2"), inhalt.indexOf("a=1"));
}

TEST_F(IniEinstellungenTest, A_change_lasts_over_a_restart) {
    { IniEinstellungen(Pfad()).SchreibText("frmMain", "mnuSpeichernUnter", "/tmp/ä b.con"); }
    EXPECT_EQ(IniEinstellungen(Pfad()).LiesText("frmMain", "mnuSpeichernUnter", ""), "/tmp/ä b.con");
}

TEST_F(IniEinstellungenTest, An_unchanged_value_does_not_touch_the_file) {
    const QByteArray eigenwillig = "[Settings]\nSprache = 0\n\n\n; end";
    Schreibe(eigenwillig);
    IniEinstellungen einstellungen(Pfad());
    EXPECT_TRUE(einstellungen.SchreibText("Settings", "Sprache", "0"));
    EXPECT_EQ(Inhalt(Pfad()), eigenwillig);
}

TEST_F(IniEinstellungenTest, A_broken_file_gives_defaults_and_is_set_aside_not_lost) {
    const QByteArray kaputt("[Settings\0\nSprache=10000\n", 25);
    Schreibe(kaputt);
    IniEinstellungen einstellungen(Pfad());
    EXPECT_EQ(einstellungen.LiesZahl("Settings", "Sprache", 0), 0);
    EXPECT_EQ(Inhalt(Pfad()), kaputt);
    EXPECT_TRUE(einstellungen.SchreibText("Settings", "ComPort", "2"));
    EXPECT_EQ(Inhalt(Pfad() + ".defekt"), kaputt);
    EXPECT_EQ(IniEinstellungen(Pfad()).LiesZahl("Settings", "ComPort", 1), 2);
}

TEST_F(IniEinstellungenTest, A_file_of_ten_megabytes_gives_defaults) {
    Schreibe("[Settings]\nSprache=10000\n" + QByteArray(10 << 20, 'x'));
    EXPECT_EQ(IniEinstellungen(Pfad()).LiesZahl("Settings", "Sprache", 0), 0);
}

TEST_F(IniEinstellungenTest, A_file_of_ten_megabytes_is_set_aside_before_the_first_change) {
    const QByteArray riesig = "[Settings]\nSprache=10000\n" + QByteArray(10 << 20, 'x');
    Schreibe(riesig);
    EXPECT_TRUE(IniEinstellungen(Pfad()).SchreibText("Settings", "ComPort", "2"));
    EXPECT_EQ(Inhalt(Pfad()), "[Settings]\nComPort=2\n");
    EXPECT_TRUE(Inhalt(Pfad() + ".defekt") == riesig);
}

TEST_F(IniEinstellungenTest, A_second_broken_file_does_not_take_the_place_of_the_first) {
    const QByteArray kaputt("\0", 1);
    for (const char* zusatz : {"", ".defekt", ".defekt2"})
        SchreibeNach(Pfad() + zusatz, kaputt + zusatz);
    EXPECT_TRUE(IniEinstellungen(Pfad()).SchreibText("Settings", "ComPort", "2"));
    EXPECT_EQ(Inhalt(Pfad() + ".defekt"), kaputt + ".defekt");
    EXPECT_EQ(Inhalt(Pfad() + ".defekt2"), kaputt + ".defekt2");
    EXPECT_EQ(Inhalt(Pfad() + ".defekt3"), kaputt);
}

TEST_F(IniEinstellungenTest, A_text_in_two_bytes_a_character_gives_defaults_and_is_set_aside) {
    const QString text = QStringLiteral("[Settings]\r\nSprache=10000\r\n");
    const QByteArray breit("\xFF\xFE" +
                           QByteArray(reinterpret_cast<const char*>(text.utf16()), 2 * text.size()));
    Schreibe(breit);
    IniEinstellungen einstellungen(Pfad());
    EXPECT_EQ(einstellungen.LiesZahl("Settings", "Sprache", 0), 0);
    EXPECT_TRUE(einstellungen.SchreibText("Settings", "Sprache", "10000"));
    EXPECT_EQ(Inhalt(Pfad() + ".defekt"), breit);
}

TEST_F(IniEinstellungenTest, Bytes_of_another_encoding_stay_as_they_are) {
    Schreibe("; Gr\xF6\xDF"
             "e\n[Settings]\nName=M\xFCller\nSprache=0\n");
    EXPECT_TRUE(IniEinstellungen(Pfad()).SchreibText("Settings", "Sprache", "10000"));
    EXPECT_EQ(Inhalt(Pfad()), "; Gr\xF6\xDF"
                              "e\n[Settings]\nName=M\xFCller\nSprache=10000\n");
}

TEST_F(IniEinstellungenTest, Lines_without_sense_give_defaults_and_stay_as_they_are) {
    const QByteArray wirr = "Settings]\nSprache=10000\n[Settings\nComPort=4\n]]==[[\n\n\xFF\x01\n=\n";
    Schreibe(wirr);
    IniEinstellungen einstellungen(Pfad());
    EXPECT_EQ(einstellungen.LiesZahl("Settings", "Sprache", 0), 0);
    EXPECT_EQ(einstellungen.LiesZahl("Settings", "ComPort", 1), 1);
    EXPECT_TRUE(einstellungen.SchreibText("Settings", "ComPort", "2"));
    EXPECT_EQ(Inhalt(Pfad()), wirr + "\n[Settings]\nComPort=2\n");
}

TEST_F(IniEinstellungenTest, A_folder_in_its_place_gives_defaults_is_kept_and_changes_last_for_this_run) {
    ASSERT_TRUE(QDir().mkdir(Pfad()));
    IniEinstellungen einstellungen(Pfad());
    EXPECT_EQ(einstellungen.LiesZahl("Settings", "Sprache", 0), 0);
    EXPECT_FALSE(einstellungen.SchreibText("Settings", "Sprache", "10000"));
    EXPECT_EQ(einstellungen.LiesZahl("Settings", "Sprache", 0), 10000);
    EXPECT_TRUE(QFileInfo(Pfad()).isDir());
}

TEST_F(IniEinstellungenTest, What_others_change_while_the_program_runs_is_kept) {
    Schreibe("[Settings]\nSprache=0\n");
    IniEinstellungen einstellungen(Pfad());
    Schreibe("; by hand\n[Settings]\nSprache=0\nComSettings=9600,e,8,1\n");
    EXPECT_TRUE(einstellungen.SchreibText("Settings", "Sprache", "10000"));
    EXPECT_EQ(Inhalt(Pfad()), "; by hand\n[Settings]\nSprache=10000\nComSettings=9600,e,8,1\n");
}

TEST_F(IniEinstellungenTest, A_file_that_breaks_while_the_program_runs_is_set_aside_and_all_values_are_kept) {
    Schreibe("[Settings]\nComPort=3\nSprache=0\n");
    IniEinstellungen einstellungen(Pfad());
    Schreibe(QByteArray(1000, '\0'));
    EXPECT_TRUE(einstellungen.SchreibText("Settings", "Sprache", "10000"));
    EXPECT_EQ(Inhalt(Pfad()), "[Settings]\nComPort=3\nSprache=10000\n");
    EXPECT_EQ(Inhalt(Pfad() + ".defekt"), QByteArray(1000, '\0'));
}

TEST_F(IniEinstellungenTest, A_value_that_does_not_fit_in_a_line_is_refused) {
    Schreibe("[Settings]\nSprache=0\n");
    EXPECT_FALSE(IniEinstellungen(Pfad()).SchreibText("frmMain", "mnuSpeichernUnter", "/a\nSprache=10000"));
    EXPECT_EQ(Inhalt(Pfad()), "[Settings]\nSprache=0\n");
}

TEST_F(IniEinstellungenTest, A_file_that_cannot_be_written_is_reported_and_the_value_lasts_for_this_run) {
    IniEinstellungen einstellungen(ordner.filePath(QStringLiteral("missing/varnoth.ini")));
    EXPECT_FALSE(einstellungen.SchreibText("Settings", "Sprache", "10000"));
    EXPECT_EQ(einstellungen.LiesZahl("Settings", "Sprache", 0), 10000);
}

TEST_F(IniEinstellungenTest, A_file_that_a_change_would_make_too_large_keeps_its_bytes) {
    constexpr int grenze = 1 << 20;
    const QByteArray randvoll = "[S]\na=1\n;" + QByteArray(grenze - 10, 'x') + "\n";
    ASSERT_EQ(randvoll.size(), grenze);
    Schreibe(randvoll);
    IniEinstellungen einstellungen(Pfad());
    for (int i = 0; i < 20; ++i)
        EXPECT_FALSE(einstellungen.SchreibText("S", "b" + std::to_string(i), "2"));
    EXPECT_EQ(einstellungen.LiesText("S", "b7", ""), "2");
    EXPECT_TRUE(Inhalt(Pfad()) == randvoll);
    EXPECT_EQ(QDir(ordner.path()).entryList(QDir::Files).size(), 1);
    EXPECT_TRUE(einstellungen.SchreibText("S", "a", "7"));
    EXPECT_EQ(Inhalt(Pfad()).left(8), "[S]\na=7\n");
}

TEST_F(IniEinstellungenTest, At_most_five_broken_files_are_set_aside) {
    const QByteArray kaputt("\0", 1);
    for (int i = 0; i < 8; ++i) {
        Schreibe(kaputt);
        EXPECT_EQ(IniEinstellungen(Pfad()).SchreibText("S", "a", "1"), i < 5);
    }
    EXPECT_EQ(QDir(ordner.path()).entryList({"*.defekt*"}, QDir::Files).size(), 5);
    EXPECT_EQ(Inhalt(Pfad()), kaputt);
}

TEST_F(IniEinstellungenTest, Settings_that_cannot_be_stored_are_said_once_with_the_reason) {
    ASSERT_TRUE(QDir().mkdir(Pfad()));
    std::vector<std::string> gesagt;
    IniEinstellungen einstellungen(Pfad());
    einstellungen.SchreibText("S", "a", "1");
    einstellungen.SetzeFehlermeldung([&](const std::string& text) { gesagt.push_back(text); });
    einstellungen.SchreibText("S", "a", "2");
    einstellungen.SchreibText("S", "b", "3");
    EXPECT_EQ(gesagt, std::vector{Pfad().toStdString() + ": " + Systemfehler(EISDIR)});
}

TEST_F(IniEinstellungenTest, Settings_that_are_stored_are_not_spoken_of) {
    std::vector<std::string> gesagt;
    IniEinstellungen einstellungen(Pfad());
    einstellungen.SetzeFehlermeldung([&](const std::string& text) { gesagt.push_back(text); });
    EXPECT_TRUE(einstellungen.SchreibText("S", "a", "2"));
    EXPECT_TRUE(gesagt.empty());
}

TEST_F(IniEinstellungenTest, The_file_lies_beside_the_program_where_that_can_be_written) {
    EXPECT_EQ(Einstellungspfad(ordner.path(), QStringLiteral("varnoth")), Pfad());
}

class Einstellungsort : public testing::Test {
protected:
    Einstellungsort() {
        for (const auto& [name, wert] : vorher)
            qputenv(name, Pfad("config").toUtf8());
    }
    ~Einstellungsort() override {
        for (const auto& [name, wert] : vorher)
            qputenv(name, wert);
    }
    QString Pfad(const char* name) const { return ordner.filePath(QLatin1String(name)); }
    static void Lege(const QString& pfad) {
        QDir().mkpath(QFileInfo(pfad).path());
        EXPECT_TRUE(QFile(pfad).open(QIODevice::WriteOnly));
    }
    /// A program with the data of an installation beside its folder.
    QString Installiertes() const {
        QDir().mkpath(Pfad("bin"));
        QDir().mkpath(Pfad("share/varnoth"));
        return Pfad("bin");
    }
    static QString Ort(const QString& programmordner) {
        return Einstellungspfad(programmordner, QStringLiteral("varnoth"));
    }

    QTemporaryDir ordner;
    /// What tells the user's folder for settings on one system or the other.
    const std::vector<std::pair<const char*, QByteArray>> vorher{
        {"XDG_CONFIG_HOME", qgetenv("XDG_CONFIG_HOME")}, {"APPDATA", qgetenv("APPDATA")}};
};

TEST_F(Einstellungsort, Of_an_installed_program_it_is_a_folder_of_its_own_among_the_users_settings) {
    EXPECT_EQ(Ort(Installiertes()), Pfad("config/varnoth/varnoth.ini"));
    EXPECT_TRUE(QDir(Pfad("config/varnoth")).exists());
}

TEST_F(Einstellungsort, Of_a_program_in_a_folder_that_cannot_be_written_it_is_the_same) {
    EXPECT_EQ(Ort(Pfad("not-there")), Pfad("config/varnoth/varnoth.ini"));
}

TEST_F(Einstellungsort, Settings_that_lie_beside_an_installed_program_keep_working) {
    Lege(Installiertes() + QStringLiteral("/varnoth.ini"));
    EXPECT_EQ(Ort(Installiertes()), Pfad("bin/varnoth.ini"));
}

TEST_F(Einstellungsort, Settings_where_an_earlier_version_has_left_them_keep_working) {
    Lege(Pfad("config/varnoth.ini"));
    EXPECT_EQ(Ort(Installiertes()), Pfad("config/varnoth.ini"));
    Lege(Pfad("config/varnoth/varnoth.ini"));
    EXPECT_EQ(Ort(Installiertes()), Pfad("config/varnoth/varnoth.ini"));
}

} // namespace varnoth
