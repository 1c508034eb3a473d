#include "pruefsumme.h"

#include "crc32.h"
#include "konfigurationsdatei.h"
#include "standtext.h"

#include <cstdint>
#include <string_view>

namespace varnoth {

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
