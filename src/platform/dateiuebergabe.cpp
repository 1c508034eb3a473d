#include "dateiuebergabe.h"

#include "rufleitung.h"

#include <algorithm>
#include <chrono>
#include <cstdint>

#ifdef Q_OS_LINUX
#include <cerrno>

#include <poll.h>
#include <unistd.h>
#endif

namespace varnoth {

#ifdef Q_OS_LINUX

namespace {

constexpr Zeit Atempause = std::chrono::milliseconds(20);

/// The time that a handing-over may take.
class Frist {
public:
    explicit Frist(Zeit dauer) : ende(std::chrono::steady_clock::now() + dauer) {}
    bool Laeuft() const { return Rest() > 0; }
    int Rest() const {
        const auto rest = ende - std::chrono::steady_clock::now();
        return static_cast<int>(
            std::max<std::int64_t>(0, std::chrono::ceil<std::chrono::milliseconds>(rest).count()));
    }

private:
    std::chrono::steady_clock::time_point ende;
};

/// Calls until somebody answers: a program that starts does not listen yet, one that is busy has others
/// waiting.
bool RufeAn(const Deskriptor& leitung, const sockaddr_un& adresse, const Frist& frist) {
    constexpr int pause = static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(Atempause).count());
    while (::connect(leitung.Nummer(), AlsAdresse(adresse), sizeof adresse) != 0) {
        const bool kommtNoch = errno == ENOENT || errno == ECONNREFUSED || errno == EAGAIN || errno == EINTR;
        if (!kommtNoch || !frist.Laeuft())
            return false;
        ::poll(nullptr, 0, std::min(pause, frist.Rest()));
    }
    return true;
}

/// The answer, to the end of the stream or of the time.
std::string HoereAntwort(const Deskriptor& leitung, const Frist& frist) {
    std::string antwort;
    for (pollfd eines{leitung.Nummer(), POLLIN, 0};
         antwort.size() < RufAngenommen.size() && ::poll(&eines, 1, frist.Rest()) > 0;) {
        char puffer[16];
        const ssize_t stueck = ::read(leitung.Nummer(), puffer, sizeof puffer);
        if (stueck <= 0)
            break;
        antwort.append(puffer, static_cast<std::size_t>(stueck));
    }
    return antwort;
}

} // namespace

bool UebergibDatei(const QString& ort, const std::string& pfad, Zeit hoechstens) {
    const auto adresse = Rufadresse(ort);
    const Deskriptor leitung = NeueRufleitung();
    const Frist frist(hoechstens);
    return adresse && RufeAn(leitung, *adresse, frist) && IstDerselbeNutzer(leitung) &&
           Sende(leitung, std::string(Rufgruss) + pfad) && ::shutdown(leitung.Nummer(), SHUT_WR) == 0 &&
           HoereAntwort(leitung, frist) == RufAngenommen;
}

#else

bool UebergibDatei(const QString& /*ort*/, const std::string& /*pfad*/, Zeit /*hoechstens*/) {
    return false;
}

#endif

} // namespace varnoth
