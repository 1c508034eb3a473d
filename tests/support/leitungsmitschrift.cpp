#include "leitungsmitschrift.h"

#include <dlfcn.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <mutex>
#include <optional>
#include <stdexcept>

namespace varnoth::pruefung {

namespace {

using Aufruf = Leitungsmitschrift::Aufruf;
using Uhr = std::chrono::steady_clock;

std::atomic<bool> schreibtMit{false};
dev_t leitung = 0;
std::mutex schloss; // the driver is waited for in a thread of its own
std::vector<Leitungsmitschrift::Eintrag> eintraege;
std::optional<termios> einstellung;
int modemleitungen = 0;

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

void MerkeEinstellung(int deskriptor, const termios& neue) {
    const std::lock_guard sperre(schloss);
    if (IstDieLeitung(deskriptor))
        einstellung = neue;
}

/// A pseudo terminal forgets parity and the number of data bits, which a serial line keeps: who sets one
/// after the other would lose what he has set before.
void ErgaenzeWieGesetzt(int deskriptor, termios& stand) {
    const std::lock_guard sperre(schloss);
    if (einstellung && IstDieLeitung(deskriptor))
        stand.c_cflag = einstellung->c_cflag;
}

void MerkeModemleitungen(int deskriptor, unsigned long auftrag, const void* wert) {
    const std::lock_guard sperre(schloss);
    if (!IstDieLeitung(deskriptor))
        return;
    if (auftrag == TIOCMBIS)
        modemleitungen |= *static_cast<const int*>(wert);
    else if (auftrag == TIOCMBIC)
        modemleitungen &= ~*static_cast<const int*>(wert);
    else if (auftrag == TIOCMSET)
        modemleitungen = *static_cast<const int*>(wert);
}

} // namespace

Leitungsmitschrift::Leitungsmitschrift(const std::string& pfad) {
    struct stat zustand {};
    if (::stat(pfad.c_str(), &zustand) != 0)
        throw std::runtime_error("no line at " + pfad);
    leitung = zustand.st_rdev;
    eintraege.clear();
    einstellung.reset();
    modemleitungen = 0;
    schreibtMit = true;
}

Leitungsmitschrift::~Leitungsmitschrift() {
    schreibtMit = false;
}

std::vector<Leitungsmitschrift::Eintrag> Leitungsmitschrift::Eintraege() const {
    const std::lock_guard sperre(schloss);
    return eintraege;
}

termios Leitungsmitschrift::Einstellung() const {
    const std::lock_guard sperre(schloss);
    return einstellung.value_or(termios{});
}

int Leitungsmitschrift::Modemleitungen() const {
    const std::lock_guard sperre(schloss);
    return modemleitungen;
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

int tcsetattr(int deskriptor, int wann, const struct termios* neue) noexcept {
    using namespace varnoth::pruefung;
    static const auto eigentliche = Eigentliche<int (*)(int, int, const struct termios*)>("tcsetattr");
    MerkeEinstellung(deskriptor, *neue);
    const int ergebnis =
        SchreibMit(Aufruf::Einstellen, deskriptor, [&] { return eigentliche(deskriptor, wann, neue); });
    // What a pseudo terminal forgets is reported as an error.
    return ergebnis != 0 && errno == EINVAL && IstDieLeitung(deskriptor) ? 0 : ergebnis;
}

int tcgetattr(int deskriptor, struct termios* stand) noexcept {
    using namespace varnoth::pruefung;
    static const auto eigentliche = Eigentliche<int (*)(int, struct termios*)>("tcgetattr");
    const int ergebnis = eigentliche(deskriptor, stand);
    ErgaenzeWieGesetzt(deskriptor, *stand);
    return ergebnis;
}

int close(int deskriptor) {
    using namespace varnoth::pruefung;
    static const auto eigentliche = Eigentliche<int (*)(int)>("close");
    return SchreibMit(Aufruf::Schliessen, deskriptor, [&] { return eigentliche(deskriptor); });
}
int ioctl(int deskriptor, unsigned long auftrag, ...) noexcept {
    using namespace varnoth::pruefung;
    static const auto eigentliche = Eigentliche<int (*)(int, unsigned long, void*)>("ioctl");
    va_list werte;
    va_start(werte, auftrag);
    void* const wert = va_arg(werte, void*);
    va_end(werte);
    MerkeModemleitungen(deskriptor, auftrag, wert);
    return eigentliche(deskriptor, auftrag, wert);
}
}
