#include "dateiuebergabe.h"

#include "rufleitung_posix.h"
#include "rufworte.h"

#include <algorithm>
#include <chrono>

#include <cerrno>

#include <poll.h>
#include <unistd.h>

namespace varnoth {

namespace {

/// Calls until somebody answers: a program that starts does not listen yet, one that is busy has others
/// waiting.
bool RufeAn(const Deskriptor& leitung, const sockaddr_un& adresse, const Ruffrist& frist) {
    constexpr int pause = static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(Rufpause).count());
    while (::connect(leitung.Nummer(), AlsAdresse(adresse), sizeof adresse) != 0) {
        const bool kommtNoch = errno == ENOENT || errno == ECONNREFUSED || errno == EAGAIN || errno == EINTR;
        if (!kommtNoch || !frist.Laeuft())
            return false;
        ::poll(nullptr, 0, std::min(pause, frist.Rest()));
    }
    return true;
}

/// The answer, to the end of the stream or of the time.
std::string HoereAntwort(const Deskriptor& leitung, const Ruffrist& frist) {
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
    const Ruffrist frist(hoechstens);
    return adresse && RufeAn(leitung, *adresse, frist) && IstDerselbeNutzer(leitung) &&
           Sende(leitung, std::string(Rufgruss) + pfad) && ::shutdown(leitung.Nummer(), SHUT_WR) == 0 &&
           HoereAntwort(leitung, frist) == RufAngenommen;
}

} // namespace varnoth
