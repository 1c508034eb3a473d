#include "textschutz.h"

#include "utf8.h"

#include <algorithm>
#include <cstdint>

namespace varnoth {

namespace {

constexpr const char* Ersatz = "\xEF\xBF\xBD"; // U+FFFD
constexpr std::uint8_t ErstesDruckbares = 0x20, Loeschzeichen = 0x7F, ErstesFolgebyte = 0x80;

/// Marks of two or three bytes that break a line or turn its direction.
constexpr std::string_view Wirksame[] = {
    "\xE2\x80\xA8", "\xE2\x80\xA9",                                                 // line ends
    "\xE2\x80\x8E", "\xE2\x80\x8F", "\xE2\x80\xAA", "\xE2\x80\xAB", "\xE2\x80\xAC", // directions
    "\xE2\x80\xAD", "\xE2\x80\xAE", "\xE2\x81\xA6", "\xE2\x81\xA7", "\xE2\x81\xA8",
    "\xE2\x81\xA9", "\xD8\x9C",     "\xEF\xBB\xBF",
};

std::uint8_t Code(char zeichen) {
    return static_cast<std::uint8_t>(zeichen);
}

bool IstSteuerzeichen(std::uint8_t byte) {
    return byte < ErstesDruckbares || byte == Loeschzeichen;
}

/// The length of a mark in front that must not take effect; 0 where there is none.
std::size_t LaengeDesWirksamen(std::string_view text) {
    if (IstSteuerzeichen(Code(text.front())))
        return 1;
    const bool c1 = text.size() > 1 && Code(text[0]) == 0xC2 && Code(text[1]) < 0xA0;
    if (c1)
        return 2;
    const auto* const wirksames =
        std::ranges::find_if(Wirksame, [&](std::string_view eines) { return text.starts_with(eines); });
    return wirksames == std::ranges::end(Wirksame) ? 0 : wirksames->size();
}

std::size_t Zeichenlaenge(std::string_view text) {
    std::size_t laenge = 1;
    while (laenge < text.size() && (Code(text[laenge]) & 0xC0) == ErstesFolgebyte)
        ++laenge;
    return laenge;
}

} // namespace

std::string Einzeilig(std::string_view text) {
    std::string zeile;
    while (!text.empty()) {
        const std::size_t wirksames = LaengeDesWirksamen(text);
        const std::size_t laenge = wirksames != 0 ? wirksames : Zeichenlaenge(text);
        const std::string_view zeichen = text.substr(0, laenge);
        zeile += wirksames != 0 || !IstUtf8(zeichen) ? std::string_view(Ersatz) : zeichen;
        text.remove_prefix(laenge);
    }
    return zeile;
}

std::string Gefaltet(std::string_view text) {
    std::string gefaltetes(text);
    for (std::size_t i = 0; i < gefaltetes.size(); ++i) {
        const std::uint8_t byte = Code(gefaltetes[i]);
        const bool latein =
            i > 0 && Code(gefaltetes[i - 1]) == 0xC3 && byte >= 0x80 && byte <= 0x9E && byte != 0x97;
        if ((byte >= 'A' && byte <= 'Z') || latein)
            gefaltetes[i] = static_cast<char>(byte + ('a' - 'A'));
    }
    return gefaltetes;
}

} // namespace varnoth
