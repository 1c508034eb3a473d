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
    : baud_(aufbau.baud), los_(static_cast<std::size_t>(std::max(aufbau.los, 1))),
      getaktet_(aufbau.getaktet) {}

std::chrono::nanoseconds Leitung::Dauer(std::size_t zeichen) const {
    if (!getaktet_)
        return std::chrono::nanoseconds{0};
    return std::chrono::nanoseconds{static_cast<std::int64_t>(zeichen) * BitsJeZeichen *
                                    NanosekundenJeSekunde / baud_};
}

void Leitung::Sende(const Sendung& sendung, std::chrono::nanoseconds fruehestens) {
    sendeende_ = std::max(sendeende_, fruehestens);
    for (const Stueck& stueck : sendung) {
        sendeende_ += stueck.pause;
        SendeStueck(stueck.zeichen);
    }
}

void Leitung::SendeStueck(const Bytes& zeichen) {
    const std::size_t los = getaktet_ ? los_ : zeichen.size();
    for (std::size_t anfang = 0; anfang < zeichen.size(); anfang += los) {
        const std::size_t ende = std::min(anfang + los, zeichen.size());
        const auto faellig = std::chrono::ceil<Zeit>(sendeende_ + Dauer(ende));
        unterwegs_.push_back({faellig, Bytes(zeichen.begin() + static_cast<std::ptrdiff_t>(anfang),
                                             zeichen.begin() + static_cast<std::ptrdiff_t>(ende))});
    }
    sendeende_ += Dauer(zeichen.size());
}

std::optional<Zeit> Leitung::NaechsteFaelligkeit() const {
    return unterwegs_.empty() ? std::nullopt : std::optional(unterwegs_.front().faellig);
}

Bytes Leitung::Entnimm(Zeit jetzt) {
    Bytes lesbar;
    for (; !unterwegs_.empty() && unterwegs_.front().faellig <= jetzt; unterwegs_.pop_front())
        lesbar.insert(lesbar.end(), unterwegs_.front().zeichen.begin(), unterwegs_.front().zeichen.end());
    return lesbar;
}

void Leitung::Verwirf() {
    unterwegs_.clear();
    sendeende_ = std::chrono::nanoseconds::min();
}

} // namespace varnoth::simulator
