#pragma once

#include "pruefmessquelle.h"

#include <cstdint>

namespace varnoth::pruefung {

/// A pass at a time in which the first part was measured: 128 beams, TU as given, HU and ZU with it, minimum
/// and maximum registers around it.
inline Messdurchgang DurchgangMit(Zeit uhr, std::uint16_t tu) {
    Messdurchgang durchgang{.uhr = uhr, .anzahlTeile = 1};
    Teilmessung& teil = durchgang.teile[0];
    teil = {.vorhanden = true, .gemessen = true, .status = 1 << 7, .strahlen = 128};
    teil.werte = {tu, static_cast<std::uint16_t>(tu + 10), 11};
    teil.werte[6] = 2;
    teil.werte[12] = 120;
    return durchgang;
}

/// A packet of such passes, `jeAbstand` apart, the first one at `von`.
inline Messpaket PaketMit(Zeit von, int anzahl, Zeit jeAbstand, std::uint16_t tu = 20) {
    Messpaket paket;
    for (int i = 0; i < anzahl; ++i)
        paket.durchgaenge.push_back(DurchgangMit(von + i * jeAbstand, tu));
    paket.spanne = {paket.durchgaenge.front().uhr, paket.durchgaenge.back().uhr};
    return paket;
}

/// So many seconds of such passes from 0 on, ten a second, a packet a second.
inline void FuelleSekunden(PruefMessquelle& quelle, int sekunden, std::uint16_t tu = 20) {
    for (int i = 0; i < sekunden; ++i)
        quelle.Nimm(PaketMit(std::chrono::seconds(i), 10, std::chrono::milliseconds(100), tu));
}

} // namespace varnoth::pruefung
