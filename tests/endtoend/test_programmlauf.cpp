// The executable itself, watched from outside: what it prints and how it ends when it runs without a user.

#include "dateien.h"
#include "fenstertest.h"
#include "initext.h"
#include "konfigurationsdatei.h"
#include "programmprozess.h"
#include "simulatorprozess.h"
#include "standardkonfiguration.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <unistd.h>

#include <memory>

namespace varnoth::pruefung {

using testing::AllOf;
using testing::HasSubstr;

class Programmlauf : public testing::Test {
protected:
    QString Pfad(const QString& name) const { return ordner.filePath(name); }
    QString Selbsttest() const { return "/Selbsttest=" + Pfad("bild"); }
    static void Schreibe(const QString& pfad, const QByteArray& inhalt) {
        QFile datei(pfad);
        ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write(inhalt);
    }
    /// A configuration file that has all default values.
    std::string LegeKonfiguration(const QString& name) const {
        modDaten::LadeStandardkonfiguration();
        EXPECT_EQ(ErsetzeDatei(Pfad(name).toStdString(), modDaten::SpeichereKonfigurationsdatei()), "");
        return Pfad(name).toStdString();
    }
    /// A file that the settings of the program remember as opened last.
    std::string Zuletzt(int platz) const {
        const auto datei = LiesDatei(Pfad("varnoth.ini").toStdString(), 10000);
        return Initext(datei.bytes).Lies("LetzteDateien", "Datei" + std::to_string(platz)).value_or("");
    }
    /// Starts a first instance, and gives what a second one prints as its error.
    std::string FehlerDerZweitenInstanz() {
        Programmprozess erste(ordner.path(), {"/Simulator"});
        EXPECT_TRUE(WarteBis([this] {
            QDirIterator gefunden(ordner.path(), {"*.lock"}, QDir::Files, QDirIterator::Subdirectories);
            return gefunden.hasNext();
        }));
        Programmprozess zweite(ordner.path(), {"/Simulator", Selbsttest()});
        EXPECT_EQ(zweite.WarteAufEnde(), 1);
        return zweite.Fehlerausgabe();
    }

    QTemporaryDir ordner;
};

TEST_F(Programmlauf, The_built_in_controller_is_identified_read_and_measured) {
    Programmprozess programm(ordner.path(), {"/Simulator", Selbsttest()});
    ASSERT_EQ(programm.WarteAufEnde(), 0) << programm.Fehlerausgabe();
    EXPECT_THAT(programm.Ausgabe(), AllOf(HasSubstr("identified: slave 1,"), HasSubstr("read: "),
                                          HasSubstr("measured: part 4, 288 beams")));
    EXPECT_FALSE(QImage(Pfad("bild/varnoth.png")).isNull());
}

TEST_F(Programmlauf, A_controller_at_a_given_device_is_identified_read_and_measured) {
    Simulatorprozess geraet(ordner.path(), {"--address", "17", "--beams", "24,40"});
    Programmprozess programm(ordner.path(), {"/Geraet=" + geraet.Geraet(), Selbsttest()});
    ASSERT_EQ(programm.WarteAufEnde(), 0) << programm.Fehlerausgabe();
    EXPECT_THAT(programm.Ausgabe(),
                AllOf(HasSubstr("identified: slave 17,"), HasSubstr("measured: part 2, 40 beams")));
}

TEST_F(Programmlauf, Version_and_switches_are_told_without_a_window) {
    for (const auto& [wort, teil] : {std::pair("--version", "varnoth 1.0.0\n"), {"--help", "/Selbsttest="}}) {
        Programmprozess programm(ordner.path(), {wort});
        EXPECT_EQ(programm.WarteAufEnde(), 0) << wort;
        EXPECT_THAT(programm.Ausgabe(), HasSubstr(teil));
        EXPECT_EQ(programm.Fehlerausgabe(), "");
    }
    EXPECT_FALSE(QFile::exists(Pfad("varnoth.ini")));
}

TEST_F(Programmlauf, The_terminal_is_answered_in_the_language_of_the_account) {
    for (const auto& [sprache, beginn] : {std::pair("de_DE.UTF-8", "Aufruf: "), {"C.UTF-8", "Usage: "}}) {
        Programmprozess programm(ordner.path(), {"--help"}, {{"LC_ALL", sprache}, {"LANGUAGE", ""}});
        EXPECT_EQ(programm.WarteAufEnde(), 0);
        EXPECT_TRUE(programm.Ausgabe().starts_with(beginn)) << sprache;
    }
}

TEST_F(Programmlauf, A_file_named_at_the_start_and_that_of_a_second_start_are_opened_in_the_one_program) {
    const std::string erste = LegeKonfiguration("erste.con");
    const std::string zweite = LegeKonfiguration("zweite ü.con");
    Programmprozess programm(ordner.path(), {"erste.con"});
    EXPECT_TRUE(WarteBis([&] { return Zuletzt(1) == erste; }));
    Programmprozess nachzuegler(ordner.path(), {"zweite ü.con"});
    EXPECT_EQ(nachzuegler.WarteAufEnde(), 0) << nachzuegler.Fehlerausgabe();
    EXPECT_TRUE(WarteBis([&] { return Zuletzt(1) == zweite && Zuletzt(2) == erste; }));
}

TEST_F(Programmlauf, A_second_instance_says_so_and_ends) {
    EXPECT_THAT(FehlerDerZweitenInstanz(), HasSubstr("failed: Das Programm wurde bereits gestartet"));
}

TEST_F(Programmlauf, A_second_instance_speaks_the_language_of_the_settings_file) {
    Schreibe(Pfad("varnoth.ini"), "[Settings]\nSprache=10000\n");
    EXPECT_THAT(FehlerDerZweitenInstanz(), HasSubstr("failed: The programm is already started"));
}

// Nine attempts of a second each: the cases run side by side.
TEST_F(Programmlauf, Settings_that_lead_to_no_controller_end_with_one_clear_sentence) {
    struct Fall {
        const char* was;
        QByteArray einstellungen;
        QStringList schalter{};
        std::unique_ptr<QTemporaryDir> ordner = std::make_unique<QTemporaryDir>();
        std::unique_ptr<Programmprozess> programm{};
    };
    Simulatorprozess geraet(ordner.path(), {"--unpaced"});
    const QByteArray leitung = "ComGeraet1=" + geraet.Geraet().toUtf8() + "\n";
    Fall faelle[] = {
        {"a device that does not exist", "[Settings]\nComGeraet1=" + Pfad("nothing").toUtf8() + "\n"},
        {"a folder", {}, {"/Geraet=" + ordner.path()}},
        {"port settings without sense", "[Settings]\nComSettings=abc\n" + leitung},
        {"port settings out of range", "[Settings]\nComSettings=38400,x,9,7\n" + leitung},
        {"a port without a device", "[Settings]\nComPort=4\nComGeraet4=/dev/null\n" + leitung},
        {"a broken settings file", QByteArray("\0\1[Sett\xFF\n=\n]", 13), {"/Geraet=" + Pfad("nothing")}},
    };
    for (Fall& fall : faelle) {
        Schreibe(fall.ordner->filePath("varnoth.ini"), fall.einstellungen);
        fall.programm =
            std::make_unique<Programmprozess>(fall.ordner->path(), fall.schalter + QStringList{Selbsttest()});
    }
    for (Fall& fall : faelle) {
        EXPECT_EQ(fall.programm->WarteAufEnde(), 1) << fall.was;
        EXPECT_THAT(fall.programm->Fehlerausgabe(),
                    HasSubstr("failed: Es kann keine Verbindung zur Hardware aufgebaut werden."))
            << fall.was;
    }
}

TEST_F(Programmlauf, A_settings_file_of_ten_megabytes_does_not_keep_the_program_from_measuring) {
    const QByteArray riesig(10 << 20, '\0');
    Schreibe(Pfad("varnoth.ini"), riesig);
    Programmprozess programm(ordner.path(), {"/Simulator", Selbsttest()});
    ASSERT_EQ(programm.WarteAufEnde(), 0) << programm.Fehlerausgabe();
    QFile beiseite(Pfad("varnoth.ini.defekt"));
    ASSERT_TRUE(beiseite.open(QIODevice::ReadOnly));
    EXPECT_TRUE(beiseite.readAll() == riesig);
}

TEST_F(Programmlauf, A_port_that_is_not_permitted_ends_with_the_same_sentence) {
    if (::geteuid() == 0)
        GTEST_SKIP() << "everything is permitted to root";
    Schreibe(Pfad("port"), {});
    ASSERT_TRUE(QFile::setPermissions(Pfad("port"), {}));
    Programmprozess programm(ordner.path(), {"/Geraet=" + Pfad("port"), Selbsttest()});
    EXPECT_EQ(programm.WarteAufEnde(), 1);
    EXPECT_THAT(programm.Fehlerausgabe(), HasSubstr("failed: Es kann keine Verbindung"));
}

} // namespace varnoth::pruefung
