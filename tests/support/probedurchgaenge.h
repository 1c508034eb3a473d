#pragma once

#include "messpaket.h"
#include "strahlbits.h"

#include <algorithm>
#include <random>

namespace varnoth::pruefung {

/// How long a pass over 4 parts of 128 beams takes at 38400 baud.
inline constexpr Zeit Durchgangsdauer{170'000};

/// Noon of a day; what a test's passes count their time of day from.
inline constexpr Systemzeit Probebeginn{std::chrono::seconds(1'790'000'000)};

/// An optical part with a web that wanders over its beams, its edges unquiet, now and then with a hole.
inline Teilmessung LebhafterTeil(int i, int teil, int strahlen) {
    std::minstd_rand zufall(static_cast<unsigned>(i * 7 + teil + 1));
    zufall.discard(3);
    const int breite = strahlen / 3 + static_cast<int>(zufall() % 5);
    const int unten = (i * 3 / 2 + teil * 20 + static_cast<int>(zufall() % 4)) % (strahlen - breite - 6);
    const int loch = zufall() % 4 == 0 ? unten + 1 + static_cast<int>(zufall() % 20U) : -1;
    Werte register_(static_cast<std::size_t>((strahlen + 15) / 16));
    int freie = 0;
    for (int strahl = 0; strahl < strahlen; ++strahl) {
        const bool frei = strahl < unten || strahl >= unten + breite || strahl == loch;
        SetzeStrahlBit(register_, strahl, frei);
        freie += frei ? 1 : 0;
    }
    Teilmessung messung{.vorhanden = true,
                        .gemessen = true,
                        .status = static_cast<std::uint16_t>(0x80 + i / 10 % 2),
                        .strahlen = static_cast<std::int16_t>(strahlen)};
    std::ranges::copy(register_, messung.strahlregister.begin());
    const int werte[] = {unten + 1, unten + breite, strahlen - freie, 1, strahlen, freie};
    for (std::size_t w = 0; w < 6; ++w) {
        messung.werte.at(w) = static_cast<std::uint16_t>(werte[w]);
        messung.werte.at(6 + w) = static_cast<std::uint16_t>(std::max(0, werte[w] - i / 40 % 9));
        messung.werte.at(12 + w) = static_cast<std::uint16_t>(werte[w] + i / 30 % 9);
    }
    return messung;
}

/// Pass number i of a lively curtain of 4 parts; its clock counts from 0.
inline Messdurchgang LebhafterDurchgang(int i, int strahlen = 128) {
    const Zeit uhr = Durchgangsdauer * i + Zeit(i * 37 % 900);
    Messdurchgang durchgang{.zeit = Probebeginn + uhr + Zeit(i % 5),
                            .uhr = uhr,
                            .anzahlTeile = AnzahlOptikteile,
                            .geraetestatus = static_cast<std::uint16_t>(i / 25 % 2)};
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        durchgang.teile.at(static_cast<std::size_t>(teil)) = LebhafterTeil(i, teil, strahlen);
    return durchgang;
}

/// Passes of a lively curtain from number `ab` on, as a packet.
inline Messpaket LebhaftesPaket(int ab, int anzahl, int strahlen = 128) {
    Messpaket paket;
    for (int i = ab; i < ab + anzahl; ++i)
        paket.durchgaenge.push_back(LebhafterDurchgang(i, strahlen));
    paket.spanne = {paket.durchgaenge.front().uhr, paket.durchgaenge.back().uhr};
    return paket;
}

} // namespace varnoth::pruefung
