#include "zeichensatz.h"

#include <array>

namespace varnoth {

namespace {

/// The characters 0x80..0x9F; the five that the set leaves open stand for themselves. All others have the
/// code of their Unicode character.
constexpr std::array<char16_t, 32> Ab0x80 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

unsigned Unicode(std::uint8_t zeichen) {
    if (zeichen >= 0x80 && zeichen < 0x80 + Ab0x80.size())
        return Ab0x80[zeichen - 0x80U];
    return zeichen;
}

} // namespace

std::string AlsUtf8(std::uint8_t zeichen) {
    const unsigned code = Unicode(zeichen);
    const auto folgebyte = [code](int ab) { return static_cast<char>(0x80 | ((code >> ab) & 0x3F)); };
    if (code < 0x80)
        return {static_cast<char>(code)};
    if (code < 0x800)
        return {static_cast<char>(0xC0 | (code >> 6)), folgebyte(0)};
    return {static_cast<char>(0xE0 | (code >> 12)), folgebyte(6), folgebyte(0)};
}

std::string RegisterAlsUtf8(std::int32_t wert) {
    return AlsUtf8(static_cast<std::uint8_t>(wert / 256)) + AlsUtf8(static_cast<std::uint8_t>(wert));
}

} // namespace varnoth
