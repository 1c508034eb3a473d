#include "leitung.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace varnoth::simulator {

namespace {

constexpr std::int64_t BitsJeZeichen = 11; // start, eight data bits, two more for parity or stop
constexpr std::int64_t NanosekundenJeSekunde = 1'000'000'000;

} // namespace

Leitung::Leitung(const Aufbau& aufbau)
    : baud(aufbau.baud), los(static_cast<std::size_t>(std::max(aufbau.los, 1))), getaktet(aufbau.getaktet) {}

std::chrono::nanoseconds Leitung::Dauer(std::size_t zeichen) const {
    if (!getaktet)
        return std::chrono::nanoseconds{0};
    return std::chrono::nanoseconds{static_cast<std::int64_t>(zeichen) * BitsJeZeichen *
                                    NanosekundenJeSekunde / baud};
}

void Leitung::Sende(const Sendung& sendung, std::chrono::nanoseconds fruehestens) {
    sendeende = std::max(sendeende, fruehestens);
    for (const Stueck& stueck : sendung) {
        sendeende += stueck.pause;
        SendeStueck(stueck.zeichen);
    }
}

void Leitung::SendeStueck(const Bytes& zeichen) {
    const std::size_t stueck = getaktet ? los : zeichen.size();
    for (std::size_t anfang = 0; anfang < zeichen.size(); anfang += stueck) {
        const std::size_t ende = std::min(anfang + stueck, zeichen.size());
        const auto faellig = std::chrono::ceil<Zeit>(sendeende + Dauer(ende));
        unterwegs.push_back({faellig, Bytes(zeichen.begin() + static_cast<std::ptrdiff_t>(anfang),
                                            zeichen.begin() + static_cast<std::ptrdiff_t>(ende))});
    }
    sendeende += Dauer(zeichen.size());
}

std::optional<Zeit> Leitung::NaechsteFaelligkeit() const {
    return unterwegs.empty() ? std::nullopt : std::optional(unterwegs.front().faellig);
}

Bytes Leitung::Entnimm(Zeit jetzt) {
    Bytes lesbar;
    for (; !unterwegs.empty() && unterwegs.front().faellig <= jetzt; unterwegs.pop_front())
        lesbar.insert(lesbar.end(), unterwegs.front().zeichen.begin(), unterwegs.front().zeichen.end());
    return lesbar;
}

void Leitung::Verwirf() {
    unterwegs.clear();
    sendeende = std::chrono::nanoseconds::min();
}

} // namespace varnoth::simulator
