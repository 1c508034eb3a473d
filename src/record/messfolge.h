#pragma once

#include "messquelle.h"

namespace varnoth {

/// For how long a pass holds when no other follows and nothing says that live data was lost.
inline constexpr Zeit MessungGiltHoechstens = std::chrono::seconds(5);

/// Whether nothing is measured from this event on.
constexpr bool BeginntLuecke(Messereignisart art) {
    return art == Messereignisart::Verloren || art == Messereignisart::LiveBeendet;
}

/// Gives the passes and events of a packet in the order of their times to two functions; of the same time the
/// event comes first.
template<class AmDurchgang, class AmEreignis>
void InZeitfolge(const Messpaket& paket, AmDurchgang amDurchgang, AmEreignis amEreignis) {
    auto ereignis = paket.ereignisse.begin();
    for (const Messdurchgang& durchgang : paket.durchgaenge) {
        for (; ereignis != paket.ereignisse.end() && ereignis->laufzeit <= durchgang.uhr; ++ereignis)
            amEreignis(*ereignis);
        amDurchgang(durchgang);
    }
    for (; ereignis != paket.ereignisse.end(); ++ereignis)
        amEreignis(*ereignis);
}

} // namespace varnoth
