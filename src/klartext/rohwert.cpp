#include "rohwert.h"

#include "wortlaut.h"
#include "zahlen.h"

#include <charconv>

namespace varnoth {

namespace {

constexpr std::int32_t GroessterRegisterwert = 0xFFFF;
constexpr std::int32_t KleinsterRegisterwert = -0x8000;

/// The hexadecimal digits of the register; all 32 bits where the value does not fit into one.
std::string Hextext(std::int32_t wert) {
    const auto bits = static_cast<std::uint32_t>(wert);
    const bool passt = wert >= KleinsterRegisterwert && wert <= GroessterRegisterwert;
    return "0x" + AlsHex(passt ? bits & 0xFFFF : bits);
}

/// The number that makes up the whole text.
template<class Zahl>
std::optional<Zahl> GanzeZahl(std::string_view text, int basis) {
    Zahl zahl{};
    const char* const ende = text.data() + text.size();
    const auto [stelle, fehler] = std::from_chars(text.data(), ende, zahl, basis);
    return fehler == std::errc() && stelle == ende ? std::optional(zahl) : std::nullopt;
}

std::optional<std::int32_t> HexwertAus(std::string_view kern) {
    if (!kern.starts_with("0x"))
        return std::nullopt;
    const auto wert = GanzeZahl<std::uint16_t>(kern.substr(2), 16);
    return wert ? std::optional<std::int32_t>(*wert) : std::nullopt;
}

std::string KurzerRohtext(std::int32_t wert) {
    return wert >= 0 && wert <= GroessterRegisterwert ? Hextext(wert) : std::to_string(wert);
}

} // namespace

std::string Rohtext(std::int32_t wert) {
    return std::to_string(wert) + " (" + Hextext(wert) + ")";
}

std::optional<std::int32_t> RohwertAus(std::string_view text) {
    const std::string kern = Wortkern(text);
    if (const auto hex = HexwertAus(kern))
        return hex;
    const auto wert = GanzeZahl<std::int32_t>(std::string_view(kern).substr(0, kern.find('(')), 10);
    return wert && Wortkern(Rohtext(*wert)) == kern ? wert : std::nullopt;
}

std::string Rohtexte(const Werte& werte) {
    if (werte.size() == 1)
        return Rohtext(werte[0]);
    std::string text;
    for (const std::int32_t wert : werte)
        text += (text.empty() ? "" : " ") + KurzerRohtext(wert);
    return text;
}

std::optional<Werte> RohwerteAus(std::string_view text) {
    const auto teile = Zerlege(OhneRand(text), ' ');
    if (const auto einzelner = RohwertAus(text))
        return Werte{*einzelner};
    Werte werte;
    for (const std::string_view teil : teile) {
        const std::string kern = Wortkern(teil);
        const auto hex = HexwertAus(kern);
        const auto wert = hex ? hex : GanzeZahl<std::int32_t>(kern, 10);
        if (!wert || teile.size() == 1)
            return std::nullopt;
        werte.push_back(*wert);
    }
    return werte;
}

} // namespace varnoth
