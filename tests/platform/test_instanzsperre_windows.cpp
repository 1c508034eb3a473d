#include "instanzsperre.h"

#include "eigenerordner.h"
#include "kindprogramm.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <windows.h>

#include <cstdio>

namespace varnoth {

namespace {

const QString Name = QStringLiteral("varnoth");
constexpr const char* WoDasKindSperrt = "VARNOTH_TEST_LOCK";

} // namespace

class SperreUnterWindows : public testing::Test {
protected:
    QTemporaryDir ordner;
};

TEST(DISABLED_Sperrkind, Holds_the_lock_until_it_is_killed) {
    Instanzsperre sperre(Name, qEnvironmentVariable(WoDasKindSperrt));
    std::fputs(sperre.Belege() ? "held" : "refused", stderr);
    std::fflush(stderr);
    ::Sleep(INFINITE);
}

TEST_F(SperreUnterWindows, A_lock_goes_with_the_program_that_was_killed) {
    qputenv(WoDasKindSperrt, ordner.path().toUtf8());
    pruefung::Kindprogramm erste(QStringLiteral("DISABLED_Sperrkind.*"));
    erste.WarteAufWort();
    Instanzsperre zweite(Name, ordner.path());
    EXPECT_FALSE(zweite.Belege());
    erste.Toete();
    EXPECT_TRUE(zweite.Belege());
}

TEST_F(SperreUnterWindows, A_program_that_only_looks_at_the_lock_does_not_hold_it) {
    ASSERT_TRUE(Instanzsperre(Name, ordner.path()).Belege());
    const QFileInfo datei = QDir(ordner.path()).entryInfoList({"*.lock"}, QDir::Files).value(0);
    QFile fremder(datei.filePath());
    ASSERT_TRUE(fremder.open(QIODevice::ReadOnly));
    EXPECT_TRUE(Instanzsperre(Name, ordner.path()).Belege());
}

TEST_F(SperreUnterWindows, A_folder_in_its_place_does_not_keep_the_program_from_starting) {
    ASSERT_TRUE(Instanzsperre(Name, ordner.path()).Belege());
    const QString datei = QDir(ordner.path()).entryInfoList({"*.lock"}, QDir::Files).value(0).filePath();
    ASSERT_TRUE(QFile::remove(datei));
    ASSERT_TRUE(QDir().mkdir(datei));
    EXPECT_TRUE(Instanzsperre(Name, ordner.path()).Belege());
}

TEST_F(SperreUnterWindows, It_lies_in_a_folder_of_this_user_alone) {
    const QString laufzeit = LaufzeitOrdner();
    ASSERT_FALSE(laufzeit.isEmpty());
    EXPECT_TRUE(GehoertNurMir(laufzeit));
    EXPECT_EQ(QFileInfo(laufzeit).fileName(), "varnoth");
    const Instanzsperre sperre(Name);
    EXPECT_EQ(QFileInfo(sperre.Briefkasten()).path(), laufzeit);
}

TEST_F(SperreUnterWindows, A_file_in_the_place_of_its_folder_sends_it_elsewhere) {
    ASSERT_TRUE(QFile(ordner.filePath("file")).open(QIODevice::WriteOnly));
    EXPECT_EQ(ErsterEigenerOrdner({QString(), "relative", ordner.filePath("file"),
                                   ordner.filePath("missing/folder"), ordner.filePath("mine")}),
              ordner.filePath("mine"));
    EXPECT_EQ(ErsterEigenerOrdner({ordner.filePath("file")}), QString());
}

} // namespace varnoth
