#include "leitungsmitschrift.h"

#include <dlfcn.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <atomic>
#include <mutex>
#include <stdexcept>

namespace varnoth::pruefung {

namespace {

using Aufruf = Leitungsmitschrift::Aufruf;
using Uhr = std::chrono::steady_clock;

std::atomic<bool> schreibtMit{false};
dev_t leitung = 0;
std::mutex schloss; // the driver is waited for in a thread of its own
std::vector<Leitungsmitschrift::Eintrag> eintraege;

bool IstDieLeitung(int deskriptor) {
    struct stat zustand {};
    return schreibtMit && ::fstat(deskriptor, &zustand) == 0 && S_ISCHR(zustand.st_mode) &&
           zustand.st_rdev == leitung;
}

/// The system's own function behind the one of this program that takes its name.
template<class Funktion>
Funktion Eigentliche(const char* name) {
    return reinterpret_cast<Funktion>(::dlsym(RTLD_NEXT, name));
}

/// Makes the call, and records it when it is about the line.
template<class Ruf>
auto SchreibMit(Aufruf aufruf, int deskriptor, Ruf ruf) {
    const bool gemeint = IstDieLeitung(deskriptor);
    const auto beginn = Uhr::now();
    const auto ergebnis = ruf();
    if (gemeint) {
        const std::lock_guard sperre(schloss);
        const auto bytes = aufruf == Aufruf::Schreiben && ergebnis > 0 ? ergebnis : 0;
        eintraege.push_back({aufruf, static_cast<std::size_t>(bytes), beginn, Uhr::now()});
    }
    return ergebnis;
}

} // namespace

Leitungsmitschrift::Leitungsmitschrift(const std::string& pfad) {
    struct stat zustand {};
    if (::stat(pfad.c_str(), &zustand) != 0)
        throw std::runtime_error("no line at " + pfad);
    leitung = zustand.st_rdev;
    eintraege.clear();
    schreibtMit = true;
}

Leitungsmitschrift::~Leitungsmitschrift() {
    schreibtMit = false;
}

std::vector<Leitungsmitschrift::Eintrag> Leitungsmitschrift::Eintraege() const {
    const std::lock_guard sperre(schloss);
    return eintraege;
}

std::ostream& operator<<(std::ostream& ziel, const Leitungsmitschrift::Eintrag& eintrag) {
    constexpr const char* namen[] = {"write", "drain", "set", "close"};
    ziel << namen[static_cast<std::size_t>(eintrag.aufruf)];
    return eintrag.bytes > 0 ? ziel << ' ' << eintrag.bytes : ziel;
}

} // namespace varnoth::pruefung

// Shared libraries find these instead of the system's functions of the same names.
extern "C" {

ssize_t write(int deskriptor, const void* bytes, size_t anzahl) {
    using namespace varnoth::pruefung;
    static const auto eigentliche = Eigentliche<ssize_t (*)(int, const void*, size_t)>("write");
    return SchreibMit(Aufruf::Schreiben, deskriptor, [&] { return eigentliche(deskriptor, bytes, anzahl); });
}

int tcdrain(int deskriptor) {
    using namespace varnoth::pruefung;
    static const auto eigentliche = Eigentliche<int (*)(int)>("tcdrain");
    return SchreibMit(Aufruf::Leeren, deskriptor, [&] { return eigentliche(deskriptor); });
}

int tcsetattr(int deskriptor, int wann, const struct termios* einstellung) noexcept {
    using namespace varnoth::pruefung;
    static const auto eigentliche = Eigentliche<int (*)(int, int, const struct termios*)>("tcsetattr");
    return SchreibMit(Aufruf::Einstellen, deskriptor,
                      [&] { return eigentliche(deskriptor, wann, einstellung); });
}

int close(int deskriptor) {
    using namespace varnoth::pruefung;
    static const auto eigentliche = Eigentliche<int (*)(int)>("close");
    return SchreibMit(Aufruf::Schliessen, deskriptor, [&] { return eigentliche(deskriptor); });
}
}
