#include "crc32.h"

#include <array>
#include <cstddef>

namespace varnoth {

namespace {

constexpr std::size_t Schritt = 8; // bytes at once, each with a table of its own

using Tabellen = std::array<std::array<std::uint32_t, 256>, Schritt>;

constexpr Tabellen MacheTabellen() {
    constexpr std::uint32_t polynom = 0xEDB88320;
    Tabellen tabellen{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t wert = i;
        for (int bit = 0; bit < 8; ++bit)
            wert = (wert >> 1) ^ ((wert & 1) != 0 ? polynom : 0);
        tabellen[0][i] = wert;
    }
    for (std::size_t t = 1; t < Schritt; ++t)
        for (std::size_t i = 0; i < 256; ++i)
            tabellen[t][i] = (tabellen[t - 1][i] >> 8) ^ tabellen[0][tabellen[t - 1][i] & 0xFF];
    return tabellen;
}

constexpr Tabellen DieTabellen = MacheTabellen();

std::uint32_t Byte(std::string_view bytes, std::size_t i) {
    return static_cast<std::uint8_t>(bytes[i]);
}

std::uint32_t Wort(std::string_view bytes, std::size_t i) {
    return Byte(bytes, i) | Byte(bytes, i + 1) << 8 | Byte(bytes, i + 2) << 16 | Byte(bytes, i + 3) << 24;
}

} // namespace

std::uint32_t Crc32(std::string_view bytes) {
    const auto& t = DieTabellen;
    std::uint32_t wert = 0xFFFFFFFF;
    for (; bytes.size() >= Schritt; bytes.remove_prefix(Schritt)) {
        const std::uint32_t a = wert ^ Wort(bytes, 0);
        const std::uint32_t b = Wort(bytes, 4);
        wert = t[7][a & 0xFF] ^ t[6][a >> 8 & 0xFF] ^ t[5][a >> 16 & 0xFF] ^ t[4][a >> 24] ^ t[3][b & 0xFF] ^
               t[2][b >> 8 & 0xFF] ^ t[1][b >> 16 & 0xFF] ^ t[0][b >> 24];
    }
    for (std::size_t i = 0; i < bytes.size(); ++i)
        wert = (wert >> 8) ^ t[0][(wert ^ Byte(bytes, i)) & 0xFF];
    return ~wert;
}

} // namespace varnoth
