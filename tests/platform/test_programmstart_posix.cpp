#include "programmstart.h"

#include "fenstertest.h"
#include "systemfehler.h"

#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <cerrno>

namespace varnoth {

using testing::HasSubstr;
using testing::IsEmpty;

class StartUnterLinux : public testing::Test {
protected:
    /// A program that writes down its arguments, one a line.
    QString Mitschreiber() const {
        QString pfad = ordner.filePath("mit blank.exe");
        QFile datei(pfad);
        EXPECT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write(
            "#!/bin/sh\nfor a in \"$@\"; do echo \"$a\"; done > \"$0.neu\"\nmv \"$0.neu\" \"$0.txt\"\n");
        datei.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return pfad;
    }
    QByteArray Argumente(const QString& programm) const {
        EXPECT_TRUE(pruefung::WarteBis([&] { return QFile::exists(programm + ".txt"); }));
        QFile datei(programm + ".txt");
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
    }

    QTemporaryDir ordner;
};

TEST_F(StartUnterLinux, Arguments_are_parted_at_blanks_and_kept_together_by_quotes) {
    const QString programm = Mitschreiber();
    EXPECT_THAT(StarteProgramm(programm, "COM1 \"new firmware.bin\" /v"), IsEmpty());
    EXPECT_EQ(Argumente(programm), "COM1\nnew firmware.bin\n/v\n");
}

TEST_F(StartUnterLinux, No_shell_interprets_the_arguments) {
    const QString programm = Mitschreiber();
    EXPECT_THAT(StarteProgramm(programm, "$HOME ;ls *"), IsEmpty());
    EXPECT_EQ(Argumente(programm), "$HOME\n;ls\n*\n");
}

TEST_F(StartUnterLinux, A_file_that_is_no_program_is_named_with_the_reason) {
    QFile datei(ordner.filePath("Flasher.exe"));
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    EXPECT_THAT(StarteProgramm(datei.fileName(), "COM1"), HasSubstr(Systemfehler(EACCES)));
}

} // namespace varnoth
