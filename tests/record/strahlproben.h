#pragma once

#include "pruefmessquelle.h"
#include "registeradressen.h"
#include "strahlmenge.h"

#include <functional>
#include <set>

/// Made-up curtains: what their beams do, pass by pass.
namespace varnoth::strahlproben {

/// Whether a beam (index) is interrupted in a pass (from 0).
using Vorhang = std::function<bool(int durchgang, int strahl)>;

inline constexpr Zeit Takt = std::chrono::milliseconds(50);

inline Messdurchgang Durchgang(Zeit uhr, int teil, int strahlen,
                               const std::function<bool(int)>& unterbrochen) {
    Messdurchgang durchgang{.uhr = uhr, .anzahlTeile = 4};
    Teilmessung& messung = durchgang.teile.at(static_cast<std::size_t>(teil));
    messung.vorhanden = messung.gemessen = true;
    messung.strahlen = static_cast<std::int16_t>(strahlen);
    for (int strahl = 0; strahl < strahlen; ++strahl)
        if (!unterbrochen(strahl))
            FuegeHinzu(messung.strahlregister, strahl);
    return durchgang;
}

inline void Blanke(Abbild& abbild, int teil, const std::set<int>& strahlen) {
    Strahlmenge menge{};
    for (const int strahl : strahlen)
        FuegeHinzu(menge, strahl);
    const Werte muster(menge.begin(), menge.begin() + spezifisch::Blankingregister);
    if (!abbild.SetzeParameter(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Blankingmuster, muster,
                               teil))
        throw std::logic_error("no blanking pattern");
}

/// A source with packets of a second.
inline void Fuelle(pruefung::PruefMessquelle& quelle, int durchgaenge, int strahlen, const Vorhang& vorhang,
                   int teil = 0, Zeit beginn = Zeit{}) {
    Messpaket paket;
    for (int i = 0; i < durchgaenge; ++i) {
        const Zeit uhr = beginn + i * Takt;
        if (!paket.durchgaenge.empty() && uhr - paket.durchgaenge.front().uhr >= std::chrono::seconds(1))
            quelle.Nimm(std::exchange(paket, {}));
        paket.durchgaenge.push_back(
            Durchgang(uhr, teil, strahlen, [&](int strahl) { return vorhang(i, strahl); }));
    }
    if (!paket.durchgaenge.empty())
        quelle.Nimm(std::move(paket));
}

} // namespace varnoth::strahlproben
