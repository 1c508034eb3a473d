#include "strahlmenge.h"

#include "registeradressen.h"

#include <algorithm>
#include <cstddef>

namespace varnoth {

namespace {

constexpr int StrahlenJeRegister = 16;
constexpr int StrahlenJeByte = 8;

/// The first 0..16 beams of a register: those of the high byte come first.
std::uint16_t Anfangsmaske(int strahlen) {
    const auto bits = [](int anzahl) { return (1U << static_cast<unsigned>(anzahl)) - 1U; };
    const int imHohen = std::min(strahlen, StrahlenJeByte);
    return static_cast<std::uint16_t>(bits(imHohen) << 8U | bits(strahlen - imHohen));
}

bool IstErreichbar(int strahl) {
    return strahl >= 0 && strahl < MaxStrahlregister * StrahlenJeRegister;
}

std::size_t Registerindex(int strahl) {
    return static_cast<std::size_t>(strahl / StrahlenJeRegister);
}

std::uint16_t Maske(int strahl) {
    return static_cast<std::uint16_t>(1U << (static_cast<unsigned>(strahl % StrahlenJeRegister) ^ 8U));
}

} // namespace

bool Enthaelt(const Strahlmenge& menge, int strahl) {
    return IstErreichbar(strahl) && (menge.at(Registerindex(strahl)) & Maske(strahl)) != 0;
}

void FuegeHinzu(Strahlmenge& menge, int strahl) {
    if (IstErreichbar(strahl))
        menge.at(Registerindex(strahl)) |= Maske(strahl);
}

Strahlmenge ErsteStrahlen(int anzahl) {
    Strahlmenge menge{};
    for (std::size_t i = 0; i < menge.size(); ++i)
        menge[i] = Anfangsmaske(
            std::clamp(anzahl - static_cast<int>(i) * StrahlenJeRegister, 0, StrahlenJeRegister));
    return menge;
}

void Strahlsicht::Nimm(const Strahlsicht& andere) {
    strahlen = std::max(strahlen, andere.strahlen);
    for (std::size_t i = 0; i < frei.size(); ++i) {
        unterbrochen[i] |= andere.unterbrochen[i];
        frei[i] |= andere.frei[i];
    }
}

Strahlsicht SichtAus(const Teilmessung& messung, const Strahlmenge& geblankt) {
    Strahlsicht sicht{.strahlen = messung.strahlen};
    const Strahlmenge alle = ErsteStrahlen(messung.strahlen);
    for (std::size_t i = 0; i < alle.size(); ++i) {
        const auto sichtbar = static_cast<std::uint16_t>(alle[i] & ~geblankt[i]);
        sicht.frei[i] = messung.strahlregister[i] & sichtbar;
        sicht.unterbrochen[i] = static_cast<std::uint16_t>(~messung.strahlregister[i] & sichtbar);
    }
    return sicht;
}

const Strahlmenge& Blankingkenntnis::Um(const Messquelle& quelle, std::uint64_t paket, int teil) {
    auto neues = quelle.Konfiguration(paket);
    if (neues == abbild && fuerTeil == teil)
        return geblankt;
    abbild = std::move(neues);
    fuerTeil = teil;
    geblankt = {};
    if (abbild == nullptr)
        return geblankt;
    const Werte muster =
        abbild->HoleParameter(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Blankingmuster, teil);
    for (std::size_t i = 0; i < std::min(muster.size(), geblankt.size()); ++i)
        geblankt[i] = static_cast<std::uint16_t>(muster[i]);
    return geblankt;
}

} // namespace varnoth
