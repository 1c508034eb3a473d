#include "pruefsumme.h"

#include "konfigurationsdatei.h"
#include "standtext.h"

#include <array>

namespace varnoth {

namespace {

constexpr auto Crctabelle() {
    constexpr std::uint32_t polynom = 0xEDB88320;
    std::array<std::uint32_t, 256> tabelle{};
    for (std::uint32_t i = 0; i < tabelle.size(); ++i) {
        std::uint32_t wert = i;
        for (int bit = 0; bit < 8; ++bit)
            wert = (wert >> 1) ^ ((wert & 1) != 0 ? polynom : 0);
        tabelle[i] = wert;
    }
    return tabelle;
}

} // namespace

std::uint32_t Crc32(std::string_view bytes) {
    static constexpr auto tabelle = Crctabelle();
    std::uint32_t wert = 0xFFFFFFFF;
    for (const char zeichen : bytes)
        wert = (wert >> 8) ^ tabelle[(wert ^ static_cast<std::uint8_t>(zeichen)) & 0xFF];
    return ~wert;
}

std::string Konfigurationspruefsumme(const Abbild& abbild) {
    constexpr std::string_view ziffern = "0123456789ABCDEF";
    constexpr int stellen = 8;
    const std::uint32_t summe = Crc32(AlsKonfigurationsdatei(OhneMomentanes(abbild)));
    std::string text;
    for (int stelle = stellen - 1; stelle >= 0; --stelle)
        text += ziffern[summe >> (4 * stelle) & 0xF];
    return text;
}

} // namespace varnoth
