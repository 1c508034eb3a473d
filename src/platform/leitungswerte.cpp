#include "leitungswerte.h"

#include <array>

namespace varnoth {

namespace {

unsigned char Paritaetszahl(Paritaet paritaet) {
    constexpr std::array<unsigned char, 5> KeineGeradeUngeradeEinsNull{0, 2, 1, 3, 4};
    return KeineGeradeUngeradeEinsNull.at(static_cast<std::size_t>(paritaet));
}

unsigned char Stoppbitzahl(Stoppbits stoppbits) {
    constexpr std::array<unsigned char, 3> EinsEineinhalbZwei{0, 1, 2};
    return EinsEineinhalbZwei.at(static_cast<std::size_t>(stoppbits));
}

} // namespace

Leitungswerte WerteFuer(const Porteinstellungen& einstellungen) {
    return {.baud = static_cast<unsigned long>(einstellungen.baud),
            .datenbits = static_cast<unsigned char>(einstellungen.datenbits),
            .paritaet = Paritaetszahl(einstellungen.paritaet),
            .stoppbits = Stoppbitzahl(einstellungen.stoppbits),
            .prueft = einstellungen.paritaet != Paritaet::Keine};
}

} // namespace varnoth
