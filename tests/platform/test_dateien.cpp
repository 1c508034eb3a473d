#include "dateien.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <random>
#include <thread>

namespace varnoth {

namespace {

constexpr std::size_t Laenge = 10262;

/// How a child process ended and what it said.
struct Kindergebnis {
    int zustand = 0;
    std::string text;
};

/// A child process that runs a function; what the function gives, and all it says meanwhile, can be read.
class Kind {
public:
    explicit Kind(const std::function<std::string(int rohr)>& tat) {
        int rohr[2] = {-1, -1};
        EXPECT_EQ(pipe(rohr), 0);
        pid = fork();
        if (pid == 0) {
            const std::string text = tat(rohr[1]);
            const bool gesagt = write(rohr[1], text.data(), text.size()) >= 0;
            _exit(gesagt ? 0 : 1);
        }
        close(rohr[1]);
        lesende = rohr[0];
    }
    Kind(const Kind&) = delete;
    Kind& operator=(const Kind&) = delete;
    ~Kind() { close(lesende); }

    /// Waits until the child has said something.
    void WarteAufWort() const {
        char zeichen = 0;
        EXPECT_EQ(read(lesende, &zeichen, 1), 1);
    }
    void Toete() const { kill(pid, SIGKILL); }
    Kindergebnis Ende() const {
        Kindergebnis ergebnis;
        char puffer[4096];
        for (ssize_t n = 0; (n = read(lesende, puffer, sizeof puffer)) > 0;)
            ergebnis.text.append(puffer, static_cast<std::size_t>(n));
        waitpid(pid, &ergebnis.zustand, 0);
        return ergebnis;
    }

private:
    pid_t pid = -1;
    int lesende = -1;
};

/// What the function gives in a process that permissions hold for, whoever runs the tests.
std::string AlsNutzer(const std::function<std::string()>& tat) {
    constexpr uid_t niemand = 65534;
    return Kind([&](int) {
               const bool bereit = geteuid() != 0 || (setgid(niemand) == 0 && setuid(niemand) == 0);
               return bereit ? tat() : std::string("could not become another user");
           })
        .Ende()
        .text;
}

void BegrenzeDateigroesse(rlim_t bytes) {
    const rlimit groesse{bytes, bytes};
    const rlimit keinAbbild{0, 0};
    setrlimit(RLIMIT_FSIZE, &groesse);
    setrlimit(RLIMIT_CORE, &keinAbbild);
}

/// A file system of two pages, seen by the calling process alone; only root may.
bool HaengeKleinenDatentraegerEin(const std::string& ordner) {
    return unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("tmpfs", ordner.c_str(), "tmpfs", 0, "size=8k") == 0;
}

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

TEST_F(Dateien, A_file_that_is_not_there_gives_the_systems_text) {
    const auto gelesen = LiesDatei(Pfad("fehlt.con"), 100);
    EXPECT_FALSE(gelesen.gelungen);
    EXPECT_EQ(gelesen.fehlertext, "No such file or directory");
    EXPECT_EQ(LiesDatei("", 100).fehlertext, "No such file or directory");
}

TEST_F(Dateien, A_folder_is_neither_read_nor_replaced) {
    const std::string pfad = Pfad("Ordner");
    ASSERT_TRUE(QDir().mkdir(QString::fromStdString(pfad)));
    EXPECT_TRUE(GibtEsDatei(pfad));
    EXPECT_EQ(LiesDatei(pfad, 100).fehlertext, "Is a directory");
    EXPECT_EQ(ErsetzeDatei(pfad, neu), "Is a directory");
    EXPECT_TRUE(QDir(QString::fromStdString(pfad)).exists());
}

TEST_F(Dateien, A_device_or_pipe_is_neither_waited_for_nor_replaced) {
    const std::string rohr = Pfad("rohr");
    ASSERT_EQ(mkfifo(rohr.c_str(), 0600), 0);
    for (const std::string& pfad : {rohr, std::string("/dev/full")}) {
        EXPECT_EQ(LiesDatei(pfad, 100).fehlertext, "Operation not supported");
        EXPECT_EQ(ErsetzeDatei(pfad, neu), "Operation not supported");
        EXPECT_TRUE(GibtEsDatei(pfad));
    }
}

TEST_F(Dateien, An_unreadable_file_gives_the_systems_text) {
    ErsetzeDatei(Pfad("a.con"), alt);
    chmod(Pfad("a.con").c_str(), 0);
    EXPECT_EQ(AlsNutzer([&] { return LiesDatei(Pfad("a.con"), 100).fehlertext; }), "Permission denied");
}

TEST_F(Dateien, A_read_only_folder_gives_the_systems_text_and_keeps_the_file) {
    ErsetzeDatei(Pfad("a.con"), alt);
    chmod(Pfad("a.con").c_str(), 0666);
    chmod(ordner.path().toUtf8().constData(), 0555);
    EXPECT_EQ(AlsNutzer([&] { return ErsetzeDatei(Pfad("neu.con"), neu); }), "Permission denied");
    EXPECT_EQ(AlsNutzer([&] { return ErsetzeDatei(Pfad("a.con"), neu); }), "Permission denied");
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

TEST_F(Dateien, A_folder_that_is_not_there_gives_the_systems_text) {
    EXPECT_EQ(ErsetzeDatei(Pfad("weg/a.con"), neu), "No such file or directory");
}

TEST_F(Dateien, A_full_disk_gives_the_systems_text_and_keeps_the_old_file) {
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
    EXPECT_EQ(text, "No space left on device: alt: a.con");
}

TEST_F(Dateien, A_write_that_stops_half_way_keeps_the_old_file_and_leaves_nothing_beside_it) {
    ErsetzeDatei(Pfad("a.con"), alt);
    const auto kind = Kind([&](int) {
                          signal(SIGXFSZ, SIG_IGN);
                          BegrenzeDateigroesse(Laenge / 2);
                          return ErsetzeDatei(Pfad("a.con"), neu);
                      }).Ende();
    EXPECT_EQ(kind.text, "File too large");
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

TEST_F(Dateien, A_program_killed_at_any_moment_leaves_the_old_file_or_the_new_one) {
    std::mt19937 zufall(1);
    std::uniform_int_distribution<int> wartezeit(0, 3000);
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
        std::this_thread::sleep_for(std::chrono::microseconds(wartezeit(zufall)));
        kind.Toete();
        kind.Ende();
        const std::string inhalt = Inhalt(Pfad("a.con"));
        ASSERT_TRUE(inhalt == alt || inhalt == neu) << inhalt.size();
    }
}

} // namespace varnoth
