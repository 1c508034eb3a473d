// Programs that die while they write: at every system call of a save, at any byte, at any moment.

#include "dateidialog.h"
#include "dateien.h"
#include "inieinstellungen.h"
#include "kindprozess.h"
#include "konfigurationsbefehle.h"
#include "konfigurationsdatei.h"
#include "pruefumgebung.h"
#include "registerabbild.h"
#include "standardkonfiguration.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <set>
#include <thread>

namespace varnoth {

namespace {

using namespace pruefung;

/// In memory where the system has such a place: hundreds of saves would wait for a disk each time.
QString OrtDerProben() {
    const QFileInfo speicher(QStringLiteral("/dev/shm"));
    return QDir(speicher.isWritable() ? speicher.filePath() : QDir::tempPath()).filePath("varnoth-XXXXXX");
}

constexpr const char* NichtVerfolgbar = "a process may not follow its child here";
constexpr const char* Resteverzeichnis = ".varnoth-*.neu";

} // namespace

class Toedliches : public testing::Test {
protected:
    std::string Pfad(const char* name) const { return ordner.filePath(name).toStdString(); }
    static std::string Inhalt(const std::string& pfad) { return LiesDatei(pfad, 1 << 20).bytes; }
    QStringList Reste() const {
        return QDir(ordner.path()).entryList({Resteverzeichnis}, QDir::Files | QDir::Hidden);
    }
    QStringList Namen() const {
        return QDir(ordner.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    /// As if what was left behind had been lying there for a while.
    void LassAltern() const {
        for (const QString& rest : Reste()) {
            QFile datei(ordner.filePath(rest));
            ASSERT_TRUE(datei.open(QIODevice::ReadWrite));
            datei.setFileTime(QDateTime::currentDateTime().addSecs(-3600), QFileDevice::FileModificationTime);
        }
    }
    void Raeume() const {
        for (const QString& name : Namen())
            QFile::remove(ordner.filePath(name));
    }

    QTemporaryDir ordner{OrtDerProben()};
};

/// Saves with the menu's own command what the image holds.
class ToedlichesSpeichern : public Toedliches {
protected:
    ToedlichesSpeichern() {
        modDaten::LadeStandardkonfiguration();
        alt = modDaten::SpeichereKonfigurationsdatei();
        modDaten::SetzeKommunikationsdaten(126, 1, {0x1234});
        neu = modDaten::SpeichereKonfigurationsdatei();
        SetzeDateiantwort([this](const Dateifrage&) { return Pfad("a.con"); });
    }
    void SchreibAlte() const {
        Raeume();
        ErsetzeDatei(Pfad("a.con"), alt);
    }

    PruefUmgebung umgebung;
    PruefEinstellungen einstellungen;
    std::string alt;
    std::string neu;
};

TEST_F(ToedlichesSpeichern, Killed_at_every_system_call_the_configuration_is_the_old_one_or_the_new_one) {
    std::set<std::string> gesehen;
    const int stellen = ToeteAnJederStelle([this] { SchreibAlte(); }, [] { KonfigurationSpeichernUnter(); },
                                           [&](int stelle) {
                                               const std::string inhalt = Inhalt(Pfad("a.con"));
                                               gesehen.insert(inhalt);
                                               EXPECT_TRUE(inhalt == alt || inhalt == neu) << stelle;
                                           });
    if (stellen < 0)
        GTEST_SKIP() << NichtVerfolgbar;
    EXPECT_GT(stellen, 20);
    EXPECT_EQ(gesehen, (std::set<std::string>{alt, neu}));
}

TEST_F(ToedlichesSpeichern, Killed_at_every_system_call_of_a_first_save_there_is_no_file_or_a_whole_one) {
    const int stellen = ToeteAnJederStelle([this] { Raeume(); }, [] { KonfigurationSpeichernUnter(); },
                                           [&](int stelle) {
                                               const bool da = GibtEsDatei(Pfad("a.con"));
                                               EXPECT_TRUE(!da || Inhalt(Pfad("a.con")) == neu) << stelle;
                                           });
    if (stellen < 0)
        GTEST_SKIP() << NichtVerfolgbar;
    EXPECT_GT(stellen, 20);
}

TEST_F(ToedlichesSpeichern, What_a_killed_save_leaves_is_hidden_and_goes_with_a_later_save) {
    const int stellen = ToeteAnJederStelle([this] { SchreibAlte(); }, [] { KonfigurationSpeichernUnter(); },
                                           [&](int stelle) {
                                               EXPECT_LE(Reste().size(), 1) << stelle;
                                               EXPECT_EQ(Namen().size(), 1 + Reste().size()) << stelle;
                                               LassAltern();
                                               EXPECT_EQ(ErsetzeDatei(Pfad("b.con"), neu), "") << stelle;
                                               EXPECT_TRUE(Reste().isEmpty()) << stelle;
                                           });
    if (stellen < 0)
        GTEST_SKIP() << NichtVerfolgbar;
}

TEST_F(ToedlichesSpeichern, Killed_at_any_moment_the_configuration_is_the_old_one_or_the_new_one) {
    std::mt19937 zufall(1);
    std::uniform_int_distribution<int> mikrosekunden(0, 3000);
    for (int runde = 0; runde < 40; ++runde) {
        const Kind kind([&](int rohr) {
            for (bool erster = true;; erster = false) {
                ErsetzeDatei(Pfad("a.con"), alt);
                ErsetzeDatei(Pfad("a.con"), neu);
                if (erster && write(rohr, "x", 1) != 1)
                    return std::string();
            }
        });
        kind.WarteAufWort();
        std::this_thread::sleep_for(std::chrono::microseconds(mikrosekunden(zufall)));
        kind.Toete();
        kind.Ende();
        const std::string inhalt = Inhalt(Pfad("a.con"));
        ASSERT_TRUE(inhalt == alt || inhalt == neu) << inhalt.size();
    }
}

class ToedlicheEinstellungen : public Toedliches {
protected:
    static constexpr int AnzahlSchluessel = 8;

    QString Inidatei() const { return ordner.filePath("varnoth.ini"); }
    static std::string Schluessel(int nummer) { return "Key" + std::to_string(nummer); }
    /// One change after the other, as when a window's place is stored.
    void SchreibAlle(const std::string& wert) const {
        IniEinstellungen einstellungen(Inidatei());
        for (int i = 0; i < AnzahlSchluessel; ++i)
            einstellungen.SchreibText("MDIForm", Schluessel(i), wert);
    }
    /// The file after so many of these changes.
    static std::string Nach(int aenderungen) {
        std::string text = Anfang;
        for (int i = 0; i < AnzahlSchluessel; ++i)
            text += Schluessel(i) + (i < aenderungen ? "=neu\n" : "=alt\n");
        return text;
    }

    static constexpr const char* Anfang = "; mine\n[Settings]\nComSettings=38400,n,8,2\n\n[MDIForm]\n";
};

TEST_F(ToedlicheEinstellungen, Killed_at_every_system_call_the_file_is_one_of_its_whole_states) {
    std::set<std::string> zustaende;
    for (int i = 0; i <= AnzahlSchluessel; ++i)
        zustaende.insert(Nach(i));
    std::set<std::string> gesehen;
    const int stellen = ToeteAnJederStelle(
        [&] {
            Raeume();
            ErsetzeDatei(Inidatei().toStdString(), Nach(0));
        },
        [&] { SchreibAlle("neu"); }, [&](int) { gesehen.insert(Inhalt(Inidatei().toStdString())); });
    if (stellen < 0)
        GTEST_SKIP() << NichtVerfolgbar;
    EXPECT_GT(stellen, 200);
    EXPECT_EQ(gesehen, zustaende);
}

TEST_F(ToedlicheEinstellungen, Killed_at_every_system_call_a_file_that_is_no_text_is_not_lost) {
    const std::string kaputt("[Settings\0]", 11);
    const std::string pfad = Inidatei().toStdString();
    const int stellen = ToeteAnJederStelle(
        [&] {
            Raeume();
            ErsetzeDatei(pfad, kaputt);
        },
        [&] { IniEinstellungen(Inidatei()).SchreibText("Settings", "ComPort", "2"); },
        [&](int stelle) {
            EXPECT_TRUE(Inhalt(pfad) == kaputt || Inhalt(pfad + ".defekt") == kaputt) << stelle;
        });
    if (stellen < 0)
        GTEST_SKIP() << NichtVerfolgbar;
    EXPECT_EQ(Inhalt(pfad), "[Settings]\nComPort=2\n");
}

TEST_F(Toedliches, What_another_program_writes_just_now_is_left_alone) {
    const QString fremde = ordner.filePath(".varnoth-0123456789abcdef.neu");
    ErsetzeDatei(fremde.toStdString(), "x");
    EXPECT_EQ(ErsetzeDatei(Pfad("a.con"), "x"), "");
    EXPECT_TRUE(QFile::exists(fremde));
}

TEST_F(Toedliches, Files_of_similar_names_are_left_alone_however_old) {
    const QStringList namen{".varnoth-0123.neu", ".varnoth-alt.neu", "a.con.backup",
                            "varnoth-0123456789abcdef.neu"};
    for (const QString& name : namen) {
        ErsetzeDatei(ordner.filePath(name).toStdString(), "x");
        QFile datei(ordner.filePath(name));
        ASSERT_TRUE(datei.open(QIODevice::ReadWrite));
        datei.setFileTime(QDateTime::currentDateTime().addYears(-1), QFileDevice::FileModificationTime);
    }
    EXPECT_EQ(ErsetzeDatei(Pfad("neu.con"), "x"), "");
    for (const QString& name : namen)
        EXPECT_TRUE(QFile::exists(ordner.filePath(name))) << name.toStdString();
}

} // namespace varnoth
