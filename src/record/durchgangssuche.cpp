#include "durchgangssuche.h"

#include <algorithm>

namespace varnoth {

namespace {

// So many packets in a row without a pass that fits are looked through, no more.
constexpr int Geduld = 64;

std::optional<Messdurchgang> LetzterBis(const Messquelle& quelle, Zeit laufzeit, bool auchDieser) {
    if (quelle.Erstes() == quelle.Ende())
        return {};
    std::uint64_t nummer = quelle.PaketUm(laufzeit);
    for (int i = 0; i < Geduld; ++i, --nummer) {
        if (const auto paket = quelle.Lies(nummer)) {
            const auto& alle = paket->durchgaenge;
            const auto danach = auchDieser
                                    ? std::ranges::upper_bound(alle, laufzeit, {}, &Messdurchgang::uhr)
                                    : std::ranges::lower_bound(alle, laufzeit, {}, &Messdurchgang::uhr);
            if (danach != alle.begin())
                return *std::prev(danach);
        }
        if (nummer == quelle.Erstes())
            break;
    }
    return {};
}

} // namespace

std::optional<Messdurchgang> DurchgangVor(const Messquelle& quelle, Zeit laufzeit) {
    return LetzterBis(quelle, laufzeit, false);
}

std::optional<Messdurchgang> DurchgangNach(const Messquelle& quelle, Zeit laufzeit) {
    if (quelle.Erstes() == quelle.Ende())
        return {};
    std::uint64_t nummer = quelle.PaketUm(laufzeit);
    for (int i = 0; i < Geduld && nummer < quelle.Ende(); ++i, ++nummer)
        if (const auto paket = quelle.Lies(nummer)) {
            const auto& alle = paket->durchgaenge;
            const auto danach = std::ranges::upper_bound(alle, laufzeit, {}, &Messdurchgang::uhr);
            if (danach != alle.end())
                return *danach;
        }
    return {};
}

std::optional<Messdurchgang> DurchgangUm(const Messquelle& quelle, Zeit laufzeit) {
    auto davor = LetzterBis(quelle, laufzeit, true);
    if (davor && davor->uhr == laufzeit)
        return davor;
    auto danach = DurchgangNach(quelle, laufzeit);
    if (!davor || !danach)
        return davor ? davor : danach;
    return laufzeit - davor->uhr <= danach->uhr - laufzeit ? davor : danach;
}

Systemzeit Uhrzeit(const Messangaben& angaben, Zeit laufzeit) {
    return angaben.beginn + std::chrono::duration_cast<Systemzeit::duration>(laufzeit);
}

} // namespace varnoth
