#include "dateideskriptor.h"
#include "simulatorprobe.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <termios.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>

namespace varnoth::simulator {

namespace {

namespace fs = std::filesystem;

constexpr int Frist = 5000; // milliseconds

/// Reads until so many bytes are there, the line is hung up, or the time is over.
std::string LiesVon(int nummer, std::size_t anzahl) {
    std::string gelesen;
    for (pollfd eines{nummer, POLLIN, 0}; gelesen.size() < anzahl && ::poll(&eines, 1, Frist) > 0;) {
        char puffer[512];
        const ssize_t stueck = ::read(nummer, puffer, std::min(sizeof puffer, anzahl - gelesen.size()));
        if (stueck <= 0)
            break;
        gelesen.append(puffer, static_cast<std::size_t>(stueck));
    }
    return gelesen;
}

std::string LiesZeileVon(int nummer) {
    std::string zeile;
    while (!zeile.ends_with('\n')) {
        const std::string zeichen = LiesVon(nummer, 1);
        if (zeichen.empty())
            break;
        zeile += zeichen;
    }
    return zeile;
}

/// The program, started in a folder of its own and ended with the test.
class Simulatorprogramm : public testing::Test {
protected:
    Simulatorprogramm() {
        fs::remove_all(ordner);
        fs::create_directory(ordner);
        Starte();
        ersteZeile = LiesZeileVon(ausgabe.Nummer());
    }
    ~Simulatorprogramm() override {
        if (kind > 0)
            ::kill(kind, SIGKILL);
        Warte();
        fs::remove_all(ordner);
    }

    void Starte(std::vector<std::string> weitere = {}) {
        int rohr[2];
        ASSERT_EQ(::pipe2(rohr, O_CLOEXEC), 0);
        ausgabe = Dateideskriptor(rohr[0]);
        const Dateideskriptor ende(rohr[1]);
        std::vector<std::string> optionen = {
            SIMULATORPROGRAMM, "--link", link, "--control", kanal, "--unpaced", "--exit-with-parent"};
        optionen.insert(optionen.end(), weitere.begin(), weitere.end());
        std::vector<char*> worte;
        for (std::string& wort : optionen)
            worte.push_back(wort.data());
        worte.push_back(nullptr);
        kind = ::fork();
        if (kind == 0) {
            ::dup2(ende.Nummer(), STDOUT_FILENO);
            ::execv(SIMULATORPROGRAMM, worte.data());
            ::_exit(127);
        }
    }

    void StarteNeu(std::vector<std::string> weitere) {
        ::kill(kind, SIGTERM);
        Warte();
        Starte(std::move(weitere));
        ersteZeile = LiesZeileVon(ausgabe.Nummer());
    }

    int Warte() {
        int stand = -1;
        if (kind > 0)
            ::waitpid(std::exchange(kind, -1), &stand, 0);
        return stand;
    }

    Dateideskriptor OeffneLeitung() const { return Dateideskriptor(::open(link.c_str(), O_RDWR | O_NOCTTY)); }

    static Bytes Frage(int leitung, const Bytes& anfrage, std::size_t erwartet) {
        EXPECT_EQ(::write(leitung, anfrage.data(), anfrage.size()), static_cast<ssize_t>(anfrage.size()));
        const std::string antwort = LiesVon(leitung, erwartet);
        return {antwort.begin(), antwort.end()};
    }

    std::string Befehl(const std::string& zeile) const {
        const Dateideskriptor leitung(::socket(AF_UNIX, SOCK_STREAM, 0));
        sockaddr_un adresse{};
        adresse.sun_family = AF_UNIX;
        std::ranges::copy(kanal, adresse.sun_path);
        if (::connect(leitung.Nummer(), reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse) != 0)
            return "no connection";
        const std::string text = zeile + '\n';
        EXPECT_EQ(::send(leitung.Nummer(), text.data(), text.size(), 0), static_cast<ssize_t>(text.size()));
        return LiesZeileVon(leitung.Nummer());
    }

    const fs::path ordner = fs::path(testing::TempDir()) / ("simulator-" + std::to_string(::getpid()));
    std::string link = (ordner / "line").string();
    std::string kanal = (ordner / "control").string();
    Dateideskriptor ausgabe{};
    std::string ersteZeile{};
    pid_t kind = -1;
};

} // namespace

TEST_F(Simulatorprogramm, Says_first_what_it_serves) {
    EXPECT_EQ(ersteZeile, "serving " + fs::canonical(link).string() + " as " + link + "\n");
}

TEST_F(Simulatorprogramm, Answers_over_the_terminal_to_one_client_after_the_other) {
    for (int gast = 0; gast < 2; ++gast) {
        const Dateideskriptor leitung = OeffneLeitung();
        const Bytes kennung = Frage(leitung.Nummer(), Kennungsanfrage(), 45);
        ASSERT_EQ(kennung.size(), 45U);
        EXPECT_EQ(Crc(kennung), 0);
        EXPECT_EQ(Frage(leitung.Nummer(), Leseanfrage(0, 1), 7), MitCrc({1, 3, 2, 0, 50}));
    }
}

TEST_F(Simulatorprogramm, Answers_in_its_own_format_alone) {
    StarteNeu({"--format", "9600,e,8,1", "--echo"});
    const Dateideskriptor leitung = OeffneLeitung();
    const Bytes frage = Leseanfrage(0, 1);
    const auto FrageMit = [&](speed_t baud, tcflag_t pruefung, tcflag_t paritaet) {
        termios einstellung{};
        ::tcgetattr(leitung.Nummer(), &einstellung);
        ::cfmakeraw(&einstellung);
        einstellung.c_iflag = pruefung;
        einstellung.c_cflag = CS8 | CREAD | paritaet;
        ::cfsetspeed(&einstellung, baud);
        EXPECT_EQ(::tcsetattr(leitung.Nummer(), TCSANOW, &einstellung), 0);
        return Frage(leitung.Nummer(), frage, frage.size());
    };
    EXPECT_EQ(FrageMit(B9600, 0, CSTOPB), frage);
    EXPECT_EQ(FrageMit(B9600, INPCK, PARENB | PARODD), frage);
    EXPECT_EQ(FrageMit(B19200, INPCK, PARENB), frage);
    EXPECT_TRUE(Befehl("stats").starts_with("ok 03=0 ")) << Befehl("stats");
    EXPECT_EQ(FrageMit(B9600, INPCK, PARENB), frage);
    const std::string antwort = LiesVon(leitung.Nummer(), 7);
    EXPECT_EQ(Bytes(antwort.begin(), antwort.end()), MitCrc({1, 3, 2, 0, 50}));
    EXPECT_EQ(Befehl("get communication 2"), "ok " + std::to_string(13 + 0x100 + 0x800) + "\n");
}

TEST_F(Simulatorprogramm, Sends_back_what_comes_when_told_to_echo) {
    StarteNeu({"--echo"});
    const Dateideskriptor leitung = OeffneLeitung();
    Bytes erwartet = Leseanfrage(0, 1);
    std::ranges::copy(MitCrc({1, 3, 2, 0, 50}), std::back_inserter(erwartet));
    EXPECT_EQ(Frage(leitung.Nummer(), Leseanfrage(0, 1), erwartet.size()), erwartet);
}

TEST_F(Simulatorprogramm, Takes_commands_at_its_control_channel) {
    EXPECT_EQ(Befehl("get global 0"), "ok 50\n");
    EXPECT_TRUE(Befehl("bogus").starts_with("error "));
}

TEST_F(Simulatorprogramm, Hangs_the_client_up_when_unplugged_and_serves_again_when_plugged_in) {
    {
        const Dateideskriptor leitung = OeffneLeitung();
        EXPECT_EQ(Befehl("unplug"), "ok\n");
        EXPECT_EQ(LiesVon(leitung.Nummer(), 1), "");
        EXPECT_FALSE(fs::exists(fs::symlink_status(link)));
    }
    const std::string antwort = Befehl("plug");
    EXPECT_EQ(antwort, "ok " + fs::canonical(link).string() + "\n");
    const Dateideskriptor leitung = OeffneLeitung();
    EXPECT_EQ(Frage(leitung.Nummer(), Leseanfrage(0, 1), 7), MitCrc({1, 3, 2, 0, 50}));
}

TEST_F(Simulatorprogramm, Cleans_up_when_it_is_asked_to_end) {
    ::kill(kind, SIGTERM);
    EXPECT_EQ(Warte(), 0);
    EXPECT_TRUE(fs::is_empty(ordner));
}

TEST_F(Simulatorprogramm, Takes_over_the_link_that_a_killed_one_has_left) {
    ::kill(kind, SIGKILL);
    Warte();
    const fs::path liegengebliebene = fs::read_symlink(link);
    fs::create_symlink(liegengebliebene, link + ".new");
    Starte();
    EXPECT_TRUE(LiesZeileVon(ausgabe.Nummer()).starts_with("serving "));
    EXPECT_FALSE(fs::exists(fs::symlink_status(link + ".new")));
    const Dateideskriptor leitung = OeffneLeitung();
    EXPECT_EQ(Frage(leitung.Nummer(), Leseanfrage(0, 1), 7), MitCrc({1, 3, 2, 0, 50}));
}

TEST_F(Simulatorprogramm, Replaces_neither_a_file_nor_a_foreign_link_with_its_own) {
    ::kill(kind, SIGTERM);
    Warte();
    std::ofstream(ordner / "precious") << "precious";
    const std::vector<std::function<void()>> hindernisse = {
        [this] { fs::copy(ordner / "precious", link); },
        [this] { fs::create_symlink(ordner / "precious", link); },
        [this] { fs::create_symlink(ordner / "missing", link); },
        [this] { fs::create_symlink("/dev/pts/0", link); },
    };
    for (std::size_t i = 0; i < hindernisse.size(); ++i) {
        hindernisse[i]();
        const fs::file_status vorher = fs::symlink_status(link);
        const auto ziel = fs::is_symlink(vorher) ? fs::read_symlink(link) : fs::path();
        Starte();
        EXPECT_EQ(Warte(), 256) << i;
        EXPECT_EQ(fs::symlink_status(link).type(), vorher.type()) << i;
        EXPECT_EQ(fs::is_symlink(vorher) ? fs::read_symlink(link) : fs::path(), ziel) << i;
        fs::remove(link);
    }
}

TEST_F(Simulatorprogramm, Overwrites_nothing_beside_its_link) {
    ::kill(kind, SIGKILL);
    Warte();
    std::ofstream(link + ".new") << "precious";
    Starte();
    EXPECT_EQ(Warte(), 256);
    EXPECT_EQ(fs::file_size(link + ".new"), 8U);
}

TEST_F(Simulatorprogramm, Writes_no_log_through_a_link) {
    std::ofstream(ordner / "precious") << "precious";
    fs::create_symlink(ordner / "precious", ordner / "log");
    link = (ordner / "other").string();
    kanal = (ordner / "other control").string();
    const pid_t erster = std::exchange(kind, -1);
    Starte({"--log", (ordner / "log").string()});
    EXPECT_EQ(Warte(), 256);
    EXPECT_EQ(fs::file_size(ordner / "precious"), 8U);
    kind = erster;
}

TEST_F(Simulatorprogramm, Writes_its_log_to_a_file_for_the_user_alone) {
    ::kill(kind, SIGTERM);
    Warte();
    const fs::path log = ordner / "log";
    Starte({"--log", log.string()});
    LiesZeileVon(ausgabe.Nummer());
    const Dateideskriptor leitung = OeffneLeitung();
    Frage(leitung.Nummer(), Leseanfrage(0, 1), 7);
    std::string zeile;
    std::ifstream strom(log);
    std::getline(strom, zeile);
    EXPECT_TRUE(zeile.ends_with("read global 0 = 50")) << zeile;
    EXPECT_EQ(fs::status(log).permissions(), static_cast<fs::perms>(0600));
}

TEST_F(Simulatorprogramm, Lets_only_its_user_at_the_control_channel_whatever_the_umask) {
    for (const mode_t maske : {0000U, 0022U, 0777U}) {
        ::kill(kind, SIGTERM);
        Warte();
        const mode_t vorher = ::umask(maske);
        Starte();
        ::umask(vorher);
        LiesZeileVon(ausgabe.Nummer());
        EXPECT_EQ(fs::status(kanal).permissions(), static_cast<fs::perms>(0600)) << maske;
    }
}

} // namespace varnoth::simulator
