#pragma once

#include <QString>

#include <optional>
#include <string_view>

#include <sys/socket.h>
#include <sys/un.h>

namespace varnoth {

/// A descriptor that closes itself; -1 = none.
class Deskriptor {
public:
    explicit Deskriptor(int offener) : nummer(offener) {}
    Deskriptor(Deskriptor&& anderer) noexcept;
    Deskriptor& operator=(Deskriptor&& anderer) noexcept;
    ~Deskriptor();
    int Nummer() const { return nummer; }

private:
    int nummer;
};

/// A new local socket that waits for nothing.
Deskriptor NeueRufleitung();

/// The address of a socket; none for a path that is empty or too long for one, or that does not lie in a
/// folder of this user alone.
std::optional<sockaddr_un> Rufadresse(const QString& ort);
const sockaddr* AlsAdresse(const sockaddr_un& adresse);

/// Whether whoever is at the other end runs as this user.
bool IstDerselbeNutzer(const Deskriptor& leitung);

/// Sends it whole; a line that takes only a part of so little is not worth waiting for.
bool Sende(const Deskriptor& leitung, std::string_view bytes);

} // namespace varnoth
