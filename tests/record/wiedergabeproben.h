#pragma once

#include "pruefmessquelle.h"

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace varnoth::pruefung {

/// A pass of one part that was measured, with a status beside the presence bit.
inline Messdurchgang Durchgang(Zeit uhr, std::uint16_t status = 1, bool ausgang = false) {
    Messdurchgang durchgang{.uhr = uhr, .anzahlTeile = 1};
    durchgang.teile[0] = {.vorhanden = true,
                          .gemessen = true,
                          .status = static_cast<std::uint16_t>(0x80 | status),
                          .strahlen = 16};
    durchgang.geraetestatus = ausgang ? 2 : 0;
    return durchgang;
}

inline Messereignis Ereignis(Messereignisart art, Zeit laufzeit, std::string text = {}) {
    return {.art = art, .laufzeit = laufzeit, .text = std::move(text)};
}

/// A packet over a span.
inline Messpaket Paket(Zeit von, Zeit bis, std::vector<Messdurchgang> durchgaenge,
                       std::vector<Messereignis> ereignisse = {}) {
    return {.spanne = {von, bis}, .durchgaenge = std::move(durchgaenge), .ereignisse = std::move(ereignisse)};
}

} // namespace varnoth::pruefung
