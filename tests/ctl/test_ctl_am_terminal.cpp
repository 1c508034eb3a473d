// The program where a person sits at it, and the script of the documents at ten controllers.

#include "ctlprozess.h"

#include <QDir>

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <memory>
#include <vector>

namespace varnoth::pruefung {

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr int Frist = 20000; // milliseconds

/// The program at a terminal of its own.
class Terminallauf {
public:
    Terminallauf(const std::string& programm, const std::vector<std::string>& worte, const std::string& daten,
                 unsigned short breite) {
        std::vector<std::string> alle = worte;
        alle.insert(alle.begin(), programm);
        const winsize groesse{.ws_row = 24, .ws_col = breite, .ws_xpixel = 0, .ws_ypixel = 0};
        kind = ::forkpty(&ende, nullptr, nullptr, &groesse);
        if (kind != 0)
            return;
        std::vector<char*> zeiger;
        for (std::string& wort : alle)
            zeiger.push_back(wort.data());
        zeiger.push_back(nullptr);
        ::setenv("LANG", "C.UTF-8", 1);
        ::unsetenv("LC_ALL");
        ::setenv("XDG_DATA_HOME", daten.c_str(), 1);
        ::execv(programm.c_str(), zeiger.data());
        ::_exit(127);
    }
    Terminallauf(const Terminallauf&) = delete;
    Terminallauf& operator=(const Terminallauf&) = delete;
    ~Terminallauf() {
        if (kind > 0)
            ::kill(kind, SIGKILL);
        Ende();
        ::close(ende);
    }

    /// Reads until the text has come, or nothing comes any more.
    bool WarteAuf(const std::string& text) {
        while (gelesenes.find(text) == std::string::npos)
            if (!Lies())
                return false;
        return true;
    }
    void Tippe(const std::string& text) const {
        EXPECT_EQ(::write(ende, text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }
    /// Reads all that comes and gives the exit code.
    int Ende() {
        while (kind > 0 && Lies()) {
        }
        int stand = -1;
        if (kind > 0)
            ::waitpid(std::exchange(kind, -1), &stand, 0);
        return WIFEXITED(stand) ? WEXITSTATUS(stand) : -1;
    }
    const std::string& Gelesenes() const { return gelesenes; }

private:
    bool Lies() {
        pollfd eines{ende, POLLIN, 0};
        char puffer[512];
        const ssize_t anzahl = ::poll(&eines, 1, Frist) > 0 ? ::read(ende, puffer, sizeof puffer) : -1;
        if (anzahl > 0)
            gelesenes.append(puffer, static_cast<std::size_t>(anzahl));
        return anzahl > 0;
    }

    int ende = -1;
    pid_t kind = -1;
    std::string gelesenes;
};

class AmTerminal : public CtlProgrammTest {
protected:
    std::unique_ptr<Terminallauf> Laufe(std::vector<std::string> worte, unsigned short breite = 80) const {
        worte.insert(worte.begin(), {"--port", Pfad("line").toStdString()});
        return std::make_unique<Terminallauf>(programm.toStdString(), worte, Pfad("data").toStdString(),
                                              breite);
    }
};

/// Ten simulated controllers, each in a folder of its own.
class ZehnGeraete : public CtlProgrammTest {
protected:
    ZehnGeraete() {
        for (int i = 0; i < 10; ++i) {
            const QString name = QString("p%1").arg(i);
            QDir(ordner.path()).mkdir(name);
            alle.push_back(std::make_unique<Simulatorprozess>(Pfad(name), QStringList{"--unpaced"}));
            ports += " " + Pfad(name + "/line");
        }
    }
    Laufergebnis Skript(const QString& tat) {
        return InSchale("sh " EXAMPLES "/controllers.sh " + tat + " saved" + ports);
    }

    std::vector<std::unique_ptr<Simulatorprozess>> alle;
    QString ports;
};

} // namespace

TEST_F(AmTerminal, Asks_before_it_writes_and_writes_after_a_yes) {
    SchliesseGeraetAn();
    const auto lauf = Laufe({"set", "1/Resolution", "40mm"});
    ASSERT_TRUE(lauf->WarteAuf("Set Optical part 1 / Resolution from 5mm to 40mm? [y/N] "));
    EXPECT_EQ(geraet->Register("specific 0 13"), 5);
    lauf->Tippe("y\n");
    EXPECT_EQ(lauf->Ende(), 0) << lauf->Gelesenes();
    EXPECT_EQ(geraet->Register("specific 0 13"), 40);
}

TEST_F(AmTerminal, Takes_any_other_answer_for_a_no) {
    SchliesseGeraetAn();
    for (const char* const antwort : {"\n", "n\n", "yess\n", "\x04"}) {
        const auto lauf = Laufe({"set", "1/Resolution", "40mm"});
        ASSERT_TRUE(lauf->WarteAuf("[y/N] "));
        lauf->Tippe(antwort);
        EXPECT_EQ(lauf->Ende(), 130);
        EXPECT_THAT(lauf->Gelesenes(), HasSubstr("Nothing was done."));
    }
    EXPECT_EQ(geraet->Register("specific 0 13"), 5);
}

TEST_F(AmTerminal, Ctrl_C_at_a_question_is_a_no) {
    SchliesseGeraetAn();
    const auto lauf = Laufe({"reset"});
    ASSERT_TRUE(lauf->WarteAuf("[y/N] "));
    lauf->Tippe("\x03");
    EXPECT_EQ(lauf->Ende(), 130);
}

TEST_F(AmTerminal, Shows_how_far_it_is_without_control_sequences) {
    SchliesseGeraetAn();
    const auto lauf = Laufe({"read", "-o", Pfad("a.con").toStdString()});
    EXPECT_EQ(lauf->Ende(), 0);
    EXPECT_THAT(lauf->Gelesenes(), HasSubstr("\rReading 50 %"));
    EXPECT_THAT(lauf->Gelesenes(), Not(HasSubstr("\x1b")));
    const auto stilles = Laufe({"read", "-q", "-y", "-o", Pfad("a.con").toStdString()});
    EXPECT_EQ(stilles->Ende(), 0);
    EXPECT_EQ(stilles->Gelesenes(), "");
}

TEST_F(AmTerminal, Keeps_what_it_shows_of_its_progress_in_one_line) {
    SchliesseGeraetAn();
    const auto lauf = Laufe({"find", "--format", "38400,n,8,2"}, 12);
    EXPECT_EQ(lauf->Ende(), 0);
    EXPECT_THAT(lauf->Gelesenes(), StartsWith("\r1/1 " + Pfad("line").toStdString().substr(0, 7) + "\r"));
}

TEST_F(ZehnGeraete, Are_backed_up_compared_and_restored_by_the_script) {
    EXPECT_EQ(Skript("backup").code, 0);
    EXPECT_EQ(Skript("compare").code, 0);
    for (const std::size_t anderes : {2U, 5U, 9U})
        alle[anderes]->Befehl("set specific 0 26 77");
    const auto verglichen = Skript("compare");
    EXPECT_EQ(verglichen.code, 1);
    for (int i = 0; i < 10; ++i)
        EXPECT_THAT(verglichen.daten, HasSubstr(QString("compare %1: %2\n")
                                                    .arg(Pfad(QString("p%1/line").arg(i)))
                                                    .arg(i == 2 || i == 5 || i == 9 ? 1 : 0)
                                                    .toStdString()));
    EXPECT_EQ(Skript("restore").code, 0);
    for (const auto& eines : alle) {
        eines->Befehl("restart");
        EXPECT_EQ(eines->Register("specific 0 26"), 1);
    }
    EXPECT_EQ(Skript("compare").code, 0);
}

TEST_F(ZehnGeraete, One_that_fails_does_not_keep_the_others_from_their_turn) {
    alle[0]->Befehl("unplug");
    const auto ergebnis = Skript("backup");
    EXPECT_EQ(ergebnis.code, 3);
    EXPECT_EQ(QDir(Pfad("saved")).entryList({"*.con"}).size(), 9);
}

TEST_F(ZehnGeraete, The_script_tells_how_it_is_used) {
    EXPECT_EQ(InSchale("sh " EXAMPLES "/controllers.sh").code, 2);
    EXPECT_THAT(InSchale("sh " EXAMPLES "/controllers.sh").meldungen,
                HasSubstr("controllers.sh backup  FOLDER PORT..."));
    EXPECT_EQ(Skript("explode").code, 2);
}

} // namespace varnoth::pruefung
