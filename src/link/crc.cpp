#include "crc.h"

#include <array>

namespace varnoth {

namespace {

constexpr Crc Polynom = 0xA001;

constexpr Crc NachAchtBits(Crc rest) {
    for (int bit = 0; bit < 8; ++bit)
        rest = (rest & 1) != 0 ? (rest >> 1) ^ Polynom : rest >> 1;
    return rest;
}

constexpr std::array<std::uint16_t, 256> CrcTabelleAufbauen() {
    std::array<std::uint16_t, 256> tabelle{};
    for (std::size_t i = 0; i < tabelle.size(); ++i)
        tabelle[i] = static_cast<std::uint16_t>(NachAchtBits(static_cast<Crc>(i)));
    return tabelle;
}

constexpr auto tabelle = CrcTabelleAufbauen();

} // namespace

Crc CrcInit() {
    return 0xFFFF;
}

Crc CrcUpdate(Crc crc, std::uint8_t byte) {
    return tabelle[static_cast<std::size_t>((crc & 0xFF) ^ byte)] ^ (crc / 256);
}

Crc CrcVon(std::string_view bytes) {
    Crc crc = CrcInit();
    for (const char byte : bytes)
        crc = CrcUpdate(crc, static_cast<std::uint8_t>(byte));
    return crc;
}

} // namespace varnoth
