#include "instanzsperre.h"

#include "eigenerordner.h"
#include "kindprozess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace varnoth {

using pruefung::AlsNutzer;
using pruefung::Kind;

namespace {

const QString Name = QStringLiteral("varnoth");

/// Puts a variable of the environment back at the end.
class Umgebungsvariable {
public:
    Umgebungsvariable(const char* welche, const QString& wert) : name(welche), vorher(qgetenv(welche)) {
        qputenv(name, wert.toUtf8());
    }
    Umgebungsvariable(const Umgebungsvariable&) = delete;
    Umgebungsvariable& operator=(const Umgebungsvariable&) = delete;
    ~Umgebungsvariable() { qputenv(name, vorher); }

private:
    const char* name;
    QByteArray vorher;
};

mode_t Rechte(const QString& pfad) {
    struct stat stand {};
    return lstat(QFile::encodeName(pfad).constData(), &stand) == 0 ? stand.st_mode & 07777 : 0;
}

} // namespace

class SperreUnterLinux : public testing::Test {
protected:
    QString Pfad(const char* name) const { return ordner.filePath(QLatin1String(name)); }
    QString Lege(const char* name, mode_t rechte) const {
        const QByteArray pfad = QFile::encodeName(Pfad(name));
        EXPECT_EQ(mkdir(pfad.constData(), rechte), 0);
        EXPECT_EQ(chmod(pfad.constData(), rechte), 0);
        return Pfad(name);
    }

    QTemporaryDir ordner;
};

TEST_F(SperreUnterLinux, A_lock_goes_with_the_program_that_was_killed) {
    const Kind erste([&](int rohr) {
        Instanzsperre sperre(Name, ordner.path());
        const bool belegt = sperre.Belege();
        if (write(rohr, belegt ? "j" : "n", 1) == 1)
            pause();
        return std::string();
    });
    erste.WarteAufWort();
    Instanzsperre zweite(Name, ordner.path());
    EXPECT_FALSE(zweite.Belege());
    erste.Toete();
    erste.Ende();
    EXPECT_TRUE(zweite.Belege());
}

TEST_F(SperreUnterLinux, What_others_have_put_in_its_place_does_not_keep_the_program_from_starting) {
    EXPECT_TRUE(Instanzsperre(Name, Pfad("not/there")).Belege());
    EXPECT_TRUE(Instanzsperre(Name, ordner.path()).Belege());
    const QString datei = QDir(ordner.path()).entryInfoList({"*.lock"}, QDir::Files).value(0).filePath();
    ASSERT_TRUE(QFile::remove(datei));
    ASSERT_TRUE(QDir().mkdir(datei));
    EXPECT_TRUE(Instanzsperre(Name, ordner.path()).Belege());
    ASSERT_TRUE(QDir().rmdir(datei));
    ASSERT_TRUE(QFile::link(Pfad("fremd"), datei));
    EXPECT_TRUE(Instanzsperre(Name, ordner.path()).Belege());
    EXPECT_FALSE(QFile::exists(Pfad("fremd")));
    ASSERT_TRUE(QFile::remove(datei));
    ASSERT_EQ(mkfifo(QFile::encodeName(datei).constData(), 0600), 0);
    EXPECT_TRUE(Instanzsperre(Name, ordner.path()).Belege());
}

TEST_F(SperreUnterLinux, It_lies_in_the_folder_of_the_session) {
    const Umgebungsvariable sitzung("XDG_RUNTIME_DIR", Lege("session", 0700));
    Instanzsperre sperre(Name);
    EXPECT_TRUE(sperre.Belege());
    EXPECT_EQ(QDir(Pfad("session")).entryList({"varnoth-*.lock"}, QDir::Files).size(), 1);
}

TEST_F(SperreUnterLinux, A_folder_that_others_can_enter_is_not_used) {
    const Umgebungsvariable sitzung("XDG_RUNTIME_DIR", Lege("session", 0755));
    const Umgebungsvariable temporaer("TMPDIR", ordner.path());
    const QString eigener = Pfad(("varnoth-" + std::to_string(geteuid())).c_str());
    EXPECT_EQ(LaufzeitOrdner(), eigener);
    EXPECT_EQ(Rechte(eigener), 0700U);
}

TEST_F(SperreUnterLinux, A_folder_file_or_link_of_others_under_its_name_sends_it_elsewhere) {
    Lege("open", 0777);
    ASSERT_TRUE(QFile::link(Lege("target", 0700), Pfad("link")));
    QFile(Pfad("file")).open(QIODevice::WriteOnly);
    EXPECT_EQ(ErsterEigenerOrdner({QString(), "relative", Pfad("open"), Pfad("link"), Pfad("file"),
                                   Pfad("missing/folder"), Pfad("mine")}),
              Pfad("mine"));
    EXPECT_EQ(ErsterEigenerOrdner({Pfad("open"), Pfad("link")}), QString());
    EXPECT_EQ(Rechte(Pfad("open")), 0777U);
}

TEST_F(SperreUnterLinux, A_folder_of_another_user_is_not_used) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may give a folder to another user";
    const QString fremd = Lege("foreign", 0700);
    chmod(QFile::encodeName(ordner.path()).constData(), 0777);
    EXPECT_EQ(AlsNutzer([&] { return std::string(GehoertNurMir(fremd) ? "mine" : "not mine"); }), "not mine");
}

TEST_F(SperreUnterLinux, Files_are_taken_beside_the_lock_and_nowhere_when_there_is_no_folder_for_it) {
    const Instanzsperre sperre(Name, ordner.path());
    EXPECT_EQ(QFileInfo(sperre.Briefkasten()).path(), ordner.path());
    EXPECT_TRUE(sperre.Briefkasten().endsWith(QStringLiteral(".socket")));
    const Umgebungsvariable sitzung("XDG_RUNTIME_DIR", Lege("session", 0755));
    const Umgebungsvariable temporaer("TMPDIR", ordner.path());
    const Umgebungsvariable cache("XDG_CACHE_HOME", ordner.path());
    Lege(("varnoth-" + std::to_string(geteuid())).c_str(), 0755);
    Instanzsperre ohneOrdner(Name);
    EXPECT_EQ(ohneOrdner.Briefkasten(), QString());
    EXPECT_TRUE(ohneOrdner.Belege());
}

} // namespace varnoth
