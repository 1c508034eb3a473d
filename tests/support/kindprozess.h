#pragma once

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/mount.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <string>

namespace varnoth::pruefung {

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
inline std::string AlsNutzer(const std::function<std::string()>& tat) {
    constexpr uid_t niemand = 65534;
    return Kind([&](int) {
               const bool bereit = geteuid() != 0 || (setgid(niemand) == 0 && setuid(niemand) == 0);
               return bereit ? tat() : std::string("could not become another user");
           })
        .Ende()
        .text;
}

/// No file of the calling process grows beyond so many bytes; no dump when that kills it.
inline void BegrenzeDateigroesse(rlim_t bytes) {
    const rlimit groesse{bytes, bytes};
    const rlimit keinAbbild{0, 0};
    setrlimit(RLIMIT_FSIZE, &groesse);
    setrlimit(RLIMIT_CORE, &keinAbbild);
}

/// A file system of two pages, seen by the calling process alone; only root may.
inline bool HaengeKleinenDatentraegerEin(const std::string& ordner) {
    return unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("tmpfs", ordner.c_str(), "tmpfs", 0, "size=8k") == 0;
}

/// A child process that is stopped before and after every system call it makes.
class Schrittkind {
public:
    explicit Schrittkind(const std::function<void()>& tat) {
        pid = fork();
        if (pid == 0) {
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            raise(SIGSTOP);
            tat();
            _exit(0);
        }
        int zustand = 0;
        waitpid(pid, &zustand, 0);
        laeuft = WIFSTOPPED(zustand) && ptrace(PTRACE_SETOPTIONS, pid, nullptr, PTRACE_O_EXITKILL) == 0;
        verfolgbar = laeuft;
    }
    Schrittkind(const Schrittkind&) = delete;
    Schrittkind& operator=(const Schrittkind&) = delete;
    ~Schrittkind() {
        if (!laeuft)
            return;
        kill(pid, SIGKILL);
        waitpid(pid, nullptr, 0);
    }

    /// Whether this system lets a process follow its child at all.
    bool Verfolgbar() const { return verfolgbar; }

    /// Lets it go on to its next stop; false when it has ended instead.
    bool Schritt() {
        int zustand = 0;
        ptrace(PTRACE_SYSCALL, pid, nullptr, nullptr);
        waitpid(pid, &zustand, 0);
        laeuft = WIFSTOPPED(zustand);
        return laeuft;
    }

private:
    pid_t pid = -1;
    bool laeuft = false;
    bool verfolgbar = false;
};

/// Lets a deed be killed at its first stop, then, anew, at its second and so on, until it gets to its end.
/// Before each a new state is made; after each it is looked at.
/// @return how often it was killed; -1 where a process may not follow its child
inline int ToeteAnJederStelle(const std::function<void()>& vorher, const std::function<void()>& tat,
                              const std::function<void(int stelle)>& nachher) {
    for (int stelle = 0;; ++stelle) {
        vorher();
        bool lebtNoch = true;
        {
            Schrittkind kind(tat);
            if (!kind.Verfolgbar())
                return -1;
            for (int schritt = 0; schritt <= stelle && lebtNoch; ++schritt)
                lebtNoch = kind.Schritt();
        }
        nachher(stelle);
        if (!lebtNoch || testing::Test::HasFailure())
            return stelle;
    }
}

} // namespace varnoth::pruefung
