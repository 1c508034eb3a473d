#include "rufleitung_posix.h"

#include "eigenerordner.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

#include <unistd.h>

namespace varnoth {

Deskriptor::Deskriptor(Deskriptor&& anderer) noexcept : nummer(std::exchange(anderer.nummer, -1)) {}

Deskriptor& Deskriptor::operator=(Deskriptor&& anderer) noexcept {
    std::swap(nummer, anderer.nummer);
    return *this;
}

Deskriptor::~Deskriptor() {
    if (nummer >= 0)
        ::close(nummer);
}

Deskriptor NeueRufleitung() {
    return Deskriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
}

std::optional<sockaddr_un> Rufadresse(const QString& ort) {
    const QByteArray pfad = QFile::encodeName(ort);
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    const bool passt = !pfad.isEmpty() && static_cast<std::size_t>(pfad.size()) < sizeof adresse.sun_path;
    if (!passt || !GehoertNurMir(QFileInfo(ort).path()))
        return std::nullopt;
    std::ranges::copy(pfad, adresse.sun_path);
    return adresse;
}

const sockaddr* AlsAdresse(const sockaddr_un& adresse) {
    return reinterpret_cast<const sockaddr*>(&adresse);
}

bool IstDerselbeNutzer(const Deskriptor& leitung) {
    ucred gegenueber{};
    socklen_t laenge = sizeof gegenueber;
    return ::getsockopt(leitung.Nummer(), SOL_SOCKET, SO_PEERCRED, &gegenueber, &laenge) == 0 &&
           gegenueber.uid == ::geteuid();
}

bool Sende(const Deskriptor& leitung, std::string_view bytes) {
    return ::send(leitung.Nummer(), bytes.data(), bytes.size(), MSG_NOSIGNAL) ==
           static_cast<ssize_t>(bytes.size());
}

} // namespace varnoth
