#include "probeleitung.h"

#include <algorithm>
#include <utility>

namespace varnoth::pruefung {

Zeit Probeleitung::Dauer(std::size_t zeichen) {
    constexpr std::size_t BitsJeZeichen = 11, Baud = 38400, Mikrosekunden = 1'000'000;
    return Zeit{static_cast<Zeit::rep>(zeichen * BitsJeZeichen * Mikrosekunden / Baud)};
}

void Probeleitung::Sende(const simulator::Sendung& sendung, Zeit fruehestens, bool darfUeberholtWerden) {
    Zeit beginn = darfUeberholtWerden ? fruehestens : std::max(sendeende, fruehestens);
    for (const auto& [pause, zeichen] : sendung) {
        beginn += pause;
        SendeStueck(zeichen, beginn);
        beginn += Dauer(zeichen.size());
    }
    if (!darfUeberholtWerden)
        sendeende = beginn;
}

void Probeleitung::SendeStueck(const simulator::Bytes& zeichen, Zeit beginn) {
    for (std::size_t von = 0; von < zeichen.size(); von += uebergabe.los) {
        const std::size_t bis = std::min(von + uebergabe.los, zeichen.size());
        Lege({beginn + Dauer(bis), std::string(zeichen.begin() + static_cast<std::ptrdiff_t>(von),
                                               zeichen.begin() + static_cast<std::ptrdiff_t>(bis))});
    }
}

void Probeleitung::Lege(Los los) {
    if (uebergabe.takt > Zeit{0})
        los.faellig = (los.faellig / uebergabe.takt + 1) * uebergabe.takt;
    const auto stelle = std::ranges::upper_bound(unterwegs, los.faellig, {}, &Los::faellig);
    unterwegs.insert(stelle, std::move(los));
}

void Probeleitung::Uebergib(Zeit jetzt) {
    for (; !unterwegs.empty() && unterwegs.front().faellig <= jetzt; unterwegs.pop_front())
        eingang += unterwegs.front().zeichen;
}

std::string Probeleitung::LiesAlles(Zeit jetzt) {
    if (!eingang.empty())
        letzteLesung = jetzt;
    return std::exchange(eingang, {});
}

std::optional<Zeit> Probeleitung::NaechsteFaelligkeit() const {
    return unterwegs.empty() ? std::nullopt : std::optional(unterwegs.front().faellig);
}

bool Probeleitung::IstAbwartbar(Zeit jetzt, Zeit ruhe) const {
    Zeit zuletzt = eingang.empty() ? letzteLesung : jetzt;
    for (const auto& [faellig, zeichen] : unterwegs) {
        if (faellig >= zuletzt + ruhe)
            return false;
        zuletzt = faellig;
    }
    return true;
}

} // namespace varnoth::pruefung
