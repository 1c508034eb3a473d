#include "ptyserver.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <termios.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <string_view>

namespace varnoth::simulator {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Scheitere(const std::string& was) {
    throw std::runtime_error(was + ": " + std::strerror(errno));
}

Dateideskriptor OeffneMaster() {
    Dateideskriptor master(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK));
    if (master.Nummer() < 0 || ::grantpt(master.Nummer()) != 0 || ::unlockpt(master.Nummer()) != 0)
        Scheitere("no pseudo terminal");
    return master;
}

Dateideskriptor OeffneSlave(const std::string& geraet) {
    Dateideskriptor slave(::open(geraet.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC));
    termios einstellung{};
    if (slave.Nummer() < 0 || ::tcgetattr(slave.Nummer(), &einstellung) != 0)
        Scheitere(geraet);
    ::cfmakeraw(&einstellung);
    if (::tcsetattr(slave.Nummer(), TCSANOW, &einstellung) != 0)
        Scheitere(geraet);
    return slave;
}

constexpr std::string_view Geraeteordner = "/dev/";
constexpr std::string_view Zielordner = "/dev/./"; // nobody else writes it like this

/// The terminal's path in a spelling by which this program knows its own links again.
std::string Linkziel(const std::string& geraet) {
    return std::string(Zielordner) + geraet.substr(Geraeteordner.size());
}

speed_t Systemgeschwindigkeit(int baud) {
    switch (baud) {
    case 1200:
        return B1200;
    case 2400:
        return B2400;
    case 4800:
        return B4800;
    case 9600:
        return B9600;
    case 19200:
        return B19200;
    case 38400:
        return B38400;
    default:
        return B57600;
    }
}

/// The parity that a terminal checks. Of a parity bit a pseudo terminal keeps nothing else.
char GepruefteParitaet(const termios& einstellung) {
    if ((einstellung.c_iflag & INPCK) == 0)
        return 'n';
    return (einstellung.c_cflag & PARODD) != 0 ? 'o' : 'e';
}

bool IstEigene(const std::string& verknuepfung) {
    struct stat da {};
    std::error_code fehler;
    return ::lstat(verknuepfung.c_str(), &da) == 0 && S_ISLNK(da.st_mode) && da.st_uid == ::geteuid() &&
           fs::read_symlink(verknuepfung, fehler).string().starts_with(Zielordner);
}

} // namespace

void Ptyserver::Stecke() {
    if (master.Nummer() >= 0)
        return;
    master = OeffneMaster();
    geraet = ::ptsname(master.Nummer());
    slave = OeffneSlave(geraet);
    if (!verknuepfung.empty())
        Verknuepfe();
}

void Ptyserver::Ziehe() {
    std::error_code fehler;
    if (VerknuepfungFuehrtHierher())
        fs::remove(verknuepfung, fehler);
    slave.Schliesse();
    master.Schliesse();
    geraet.clear();
}

/// A link that an earlier run has left is replaced in one step: at no time is there none. Anything else that
/// stands in the link's place, or in that of the new one, is not ours.
void Ptyserver::Verknuepfe() const {
    std::error_code fehler;
    fs::create_symlink(Linkziel(geraet), verknuepfung, fehler);
    if (fehler == std::errc::file_exists) {
        if (!IstEigene(verknuepfung))
            throw std::runtime_error(verknuepfung +
                                     " exists and is no link of this program: choose another path");
        const std::string neu = verknuepfung + ".new";
        if (IstEigene(neu))
            fs::remove(neu, fehler);
        fs::create_symlink(Linkziel(geraet), neu, fehler);
        if (!fehler)
            fs::rename(neu, verknuepfung, fehler);
    }
    if (fehler)
        throw std::runtime_error(verknuepfung + ": " + fehler.message());
}

bool Ptyserver::VerknuepfungFuehrtHierher() const {
    std::error_code fehler;
    return !verknuepfung.empty() && !geraet.empty() &&
           fs::read_symlink(verknuepfung, fehler) == Linkziel(geraet);
}

bool Ptyserver::IstEingestelltAuf(const Zeichenformat& format) const {
    termios einstellung{};
    return ::tcgetattr(slave.Nummer(), &einstellung) == 0 &&
           ::cfgetospeed(&einstellung) == Systemgeschwindigkeit(format.baud) &&
           GepruefteParitaet(einstellung) == format.paritaet;
}

std::vector<std::uint8_t> Ptyserver::Lies() {
    std::array<std::uint8_t, 4096> puffer;
    const ssize_t anzahl = ::read(master.Nummer(), puffer.data(), puffer.size());
    return {puffer.begin(), puffer.begin() + (anzahl > 0 ? anzahl : 0)};
}

void Ptyserver::Schreibe(std::span<const std::uint8_t> zeichen) {
    if (master.Nummer() >= 0) [[maybe_unused]]
        const ssize_t geschrieben = ::write(master.Nummer(), zeichen.data(), zeichen.size());
}

} // namespace varnoth::simulator
