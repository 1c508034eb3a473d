#include "steuerkanal.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <stdexcept>

namespace varnoth::simulator {

namespace {

constexpr int Wartende = 8;
constexpr std::size_t LaengsteZeile = 4096;

sockaddr_un Socketadresse(const std::string& pfad) {
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    if (pfad.size() >= sizeof adresse.sun_path)
        throw std::runtime_error("--control: the path is too long for a socket");
    std::ranges::copy(pfad, adresse.sun_path);
    return adresse;
}

Dateideskriptor NeuerSocket() {
    return Dateideskriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

/// Removes a socket that an earlier run has left behind and nobody serves.
void RaeumeAuf(const sockaddr_un& adresse) {
    std::error_code fehler;
    if (!std::filesystem::is_socket(adresse.sun_path, fehler))
        return;
    const Dateideskriptor probe = NeuerSocket();
    const auto* ziel = reinterpret_cast<const sockaddr*>(&adresse);
    if (::connect(probe.Nummer(), ziel, sizeof adresse) != 0 && errno == ECONNREFUSED)
        ::unlink(adresse.sun_path);
}

/// Gives the socket its place. From its first moment nobody but the owner may connect, whatever the umask.
bool Binde(const Dateideskriptor& tuer, const sockaddr_un& adresse) {
    constexpr mode_t AllesAusserLesenUndSchreibenDesEigentuemers = 0177;
    const mode_t vorher = ::umask(AllesAusserLesenUndSchreibenDesEigentuemers);
    const int ergebnis = ::bind(tuer.Nummer(), reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse);
    ::umask(vorher);
    return ergebnis == 0;
}

bool Antworte(const Dateideskriptor& leitung, const std::string& zeile) {
    const std::string text = zeile + '\n';
    return ::send(leitung.Nummer(), text.data(), text.size(), MSG_NOSIGNAL) ==
           static_cast<ssize_t>(text.size());
}

} // namespace

Steuerkanal::Steuerkanal(std::string socketpfad) : pfad(std::move(socketpfad)) {
    if (pfad.empty())
        return;
    const sockaddr_un adresse = Socketadresse(pfad);
    RaeumeAuf(adresse);
    Dateideskriptor neue = NeuerSocket();
    if (!Binde(neue, adresse) || ::listen(neue.Nummer(), Wartende) != 0)
        throw std::runtime_error("--control " + pfad + ": " + std::strerror(errno));
    tuer = std::move(neue);
}

Steuerkanal::~Steuerkanal() {
    if (tuer.Nummer() >= 0)
        ::unlink(pfad.c_str());
}

void Steuerkanal::Beobachte(std::vector<pollfd>& liste) const {
    if (tuer.Nummer() >= 0)
        liste.push_back({tuer.Nummer(), POLLIN, 0});
    for (const Gast& gast : gaeste)
        liste.push_back({gast.leitung.Nummer(), POLLIN, 0});
}

void Steuerkanal::Bediene(const std::vector<pollfd>& liste, const Ausfuehren& ausfuehren) {
    const auto meldetSich = [&liste](int nummer) {
        return std::ranges::any_of(liste,
                                   [nummer](const pollfd& p) { return p.fd == nummer && p.revents != 0; });
    };
    std::erase_if(
        gaeste, [&](Gast& gast) { return meldetSich(gast.leitung.Nummer()) && !Bediene(gast, ausfuehren); });
    if (tuer.Nummer() >= 0 && meldetSich(tuer.Nummer()))
        LasseEin();
}

/// False when the guest has left.
bool Steuerkanal::Bediene(Gast& gast, const Ausfuehren& ausfuehren) {
    std::array<char, 1024> puffer;
    const ssize_t anzahl = ::recv(gast.leitung.Nummer(), puffer.data(), puffer.size(), 0);
    if (anzahl <= 0)
        return anzahl < 0 && (errno == EAGAIN || errno == EINTR);
    gast.angefangen.append(puffer.data(), static_cast<std::size_t>(anzahl));
    for (std::size_t ende = 0; (ende = gast.angefangen.find('\n')) != std::string::npos;) {
        const std::string zeile = gast.angefangen.substr(0, ende);
        gast.angefangen.erase(0, ende + 1);
        if (!Antworte(gast.leitung, ausfuehren(zeile)))
            return false;
    }
    return gast.angefangen.size() <= LaengsteZeile;
}

void Steuerkanal::LasseEin() {
    Dateideskriptor leitung(::accept4(tuer.Nummer(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (leitung.Nummer() >= 0)
        gaeste.push_back({std::move(leitung)});
}

} // namespace varnoth::simulator
