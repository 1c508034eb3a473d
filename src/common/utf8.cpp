#include "utf8.h"

#include <cstddef>
#include <cstdint>

namespace varnoth {

namespace {

/// How a character of several bytes begins, and what its code must reach at least.
struct Form {
    std::uint8_t maske;
    std::uint8_t kennung;
    std::uint8_t folgebytes;
    std::uint32_t kleinster;
};

constexpr Form Formen[] = {
    {0x80, 0x00, 0, 0}, {0xE0, 0xC0, 1, 0x80}, {0xF0, 0xE0, 2, 0x800}, {0xF8, 0xF0, 3, 0x10000}};
constexpr std::uint32_t GroessterCode = 0x10FFFF;

bool IstZeichencode(std::uint32_t code) {
    return code <= GroessterCode && (code < 0xD800 || code > 0xDFFF);
}

/// The length of the character in front; 0 where there is none.
std::size_t Zeichenlaenge(std::string_view bytes) {
    const auto erstes = static_cast<std::uint8_t>(bytes.front());
    for (const Form& form : Formen) {
        if ((erstes & form.maske) != form.kennung)
            continue;
        if (bytes.size() <= form.folgebytes)
            return 0;
        std::uint32_t code = erstes & static_cast<std::uint8_t>(~form.maske);
        for (std::size_t i = 1; i <= form.folgebytes; ++i) {
            const auto byte = static_cast<std::uint8_t>(bytes[i]);
            if ((byte & 0xC0) != 0x80)
                return 0;
            code = code << 6 | (byte & 0x3F);
        }
        return code >= form.kleinster && IstZeichencode(code) ? form.folgebytes + 1 : 0;
    }
    return 0;
}

} // namespace

bool IstUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t laenge = Zeichenlaenge(bytes);
        if (laenge == 0)
            return false;
        bytes.remove_prefix(laenge);
    }
    return true;
}

} // namespace varnoth
