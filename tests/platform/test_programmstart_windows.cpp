#include "programmstart.h"
#include "programmumgebung.h"
#include "terminal.h"

#include "fenstertest.h"
#include "kindprogramm.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <windows.h>

namespace varnoth {

namespace {

constexpr const char* WohinDasKindSchreibt = "VARNOTH_TEST_WORDS";

QByteArray Worte() {
    QByteArray worte;
    for (const std::string& wort : Programmworte(0, nullptr))
        worte += QByteArray::fromStdString(wort) + "\n";
    return worte;
}

} // namespace

TEST(DISABLED_Wortkind, Says_its_words) {
    SchreibeInStrom(Strom::Fehler, Worte().toStdString());
}

TEST(DISABLED_Startkind, Writes_its_words_into_a_file) {
    const QString ziel = qEnvironmentVariable(WohinDasKindSchreibt);
    QFile datei(ziel + ".neu");
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(Worte());
    datei.close();
    ASSERT_TRUE(datei.rename(ziel));
}

TEST(StartUnterWindows, A_program_gets_its_words_as_they_were_typed_whatever_characters_they_hold) {
    pruefung::Kindprogramm kind(QStringLiteral("DISABLED_Wortkind.*"),
                                {QStringLiteral("Prüf Größe №1 Ж.con"), QStringLiteral("--json")});
    EXPECT_TRUE(kind.Ende().ends_with("\nPrüf Größe №1 Ж.con\n--json\n"));
}

TEST(StartUnterWindows, A_started_program_gets_its_arguments_and_no_shell_interprets_them) {
    const QTemporaryDir ordner;
    const QString ziel = ordner.filePath(QStringLiteral("worte.txt"));
    qputenv(WohinDasKindSchreibt, ziel.toUtf8());
    EXPECT_EQ(
        StarteProgramm(QCoreApplication::applicationFilePath(),
                       QStringLiteral("--gtest_also_run_disabled_tests --gtest_filter=DISABLED_Startkind.* "
                                      "COM1 \"new firmware.bin\" /v %TEMP% & dir")),
        "");
    ASSERT_TRUE(pruefung::WarteBis([&] { return QFile::exists(ziel); }, 60000));
    QFile datei(ziel);
    ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
    EXPECT_TRUE(datei.readAll().endsWith("\nCOM1\nnew firmware.bin\n/v\n%TEMP%\n&\ndir\n"));
}

TEST(Umgebungswert, Gives_the_language_of_windows_where_no_variable_names_one) {
    const QByteArray vorher = qgetenv("LANG");
    qputenv("LANG", "de_AT.UTF-8");
    EXPECT_EQ(Umgebungswert("LANG"), "de_AT.UTF-8");
    qunsetenv("LANG");
    const bool deutsch = PRIMARYLANGID(::GetUserDefaultUILanguage()) == LANG_GERMAN;
    EXPECT_EQ(Umgebungswert("LANG"), deutsch ? "de" : "en");
    EXPECT_EQ(Umgebungswert("VARNOTH_IS_NOT_SET"), "");
    if (!vorher.isNull())
        qputenv("LANG", vorher);
}

} // namespace varnoth
