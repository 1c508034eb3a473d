#include "geraetecrc.h"

#include <array>

namespace varnoth::simulator {

namespace {

constexpr std::uint16_t Polynom = 0xA001;

constexpr std::uint16_t Verschiebe(std::uint16_t rest) {
    for (int bit = 0; bit < 8; ++bit)
        rest = static_cast<std::uint16_t>((rest >> 1) ^ ((rest & 1) != 0 ? Polynom : 0));
    return rest;
}

constexpr auto Tabelle = [] {
    std::array<std::uint16_t, 256> tabelle{};
    for (std::size_t i = 0; i < tabelle.size(); ++i)
        tabelle[i] = Verschiebe(static_cast<std::uint16_t>(i));
    return tabelle;
}();

} // namespace

std::uint16_t CrcWeiter(std::uint16_t crc, std::uint8_t zeichen) {
    return static_cast<std::uint16_t>(Tabelle[(crc ^ zeichen) & 0xFF] ^ (crc >> 8));
}

std::uint16_t Crc(std::span<const std::uint8_t> zeichen) {
    std::uint16_t crc = CrcStart;
    for (const std::uint8_t eines : zeichen)
        crc = CrcWeiter(crc, eines);
    return crc;
}

void HaengeCrcAn(Bytes& rahmen) {
    const std::uint16_t crc = Crc(rahmen);
    rahmen.push_back(static_cast<std::uint8_t>(crc & 0xFF));
    rahmen.push_back(static_cast<std::uint8_t>(crc >> 8));
}

} // namespace varnoth::simulator
