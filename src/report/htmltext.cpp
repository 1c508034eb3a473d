#include "htmltext.h"

#include <cstdint>

namespace varnoth::html {

namespace {

std::string_view Ersatz(char zeichen) {
    switch (zeichen) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&#39;";
    default:
        return {};
    }
}

bool IstSteuerzeichen(char zeichen) {
    const auto byte = static_cast<unsigned char>(zeichen);
    return byte < ' ' || byte == 0x7F;
}

/// A paper whose rows end with a cell of nothing would set what follows the table close to it.
std::string Zelleninhalt(const Zelle& zelle) {
    return zelle.inhalt.empty() ? "&nbsp;" : zelle.inhalt;
}

std::string Tabellenzeile(const Zeile& zeile, std::string_view art) {
    std::string zellen;
    for (const Zelle& zelle : zeile)
        zellen += Element(art, Zelleninhalt(zelle), zelle.attribute);
    return Element("tr", zellen) + "\n";
}

} // namespace

std::string AlsHtml(std::string_view text) {
    std::string ergebnis;
    for (const char zeichen : text) {
        const std::string_view ersatz = Ersatz(zeichen);
        if (!ersatz.empty())
            ergebnis += ersatz;
        else if (!IstSteuerzeichen(zeichen))
            ergebnis += zeichen;
    }
    return ergebnis;
}

std::string Element(std::string_view name, std::string_view inhalt, std::string_view attribute) {
    std::string element = "<" + std::string(name);
    if (!attribute.empty())
        element.append(" ").append(attribute);
    return element.append(">").append(inhalt).append("</").append(name).append(">");
}

std::string Tabelle(const Zeile& kopf, const std::vector<Zeile>& zeilen) {
    std::string inhalt = "\n";
    if (!kopf.empty())
        inhalt += Element("thead", Tabellenzeile(kopf, "th"));
    for (const Zeile& zeile : zeilen)
        inhalt += Tabellenzeile(zeile, "td");
    return Element("table", inhalt, R"(border="1" cellspacing="0" cellpadding="3" width="100%")") + "\n";
}

std::string AlsBase64(std::string_view bytes) {
    constexpr std::string_view zeichen = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::size_t gruppe = 3;
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += gruppe) {
        std::uint32_t bits = 0;
        for (std::size_t j = i; j < i + gruppe; ++j)
            bits = bits << 8 | (j < bytes.size() ? static_cast<std::uint8_t>(bytes[j]) : 0U);
        for (std::size_t stelle = 0; stelle <= gruppe; ++stelle)
            text += i + stelle <= bytes.size() ? zeichen[bits >> (18 - 6 * stelle) & 0x3F] : '=';
    }
    return text;
}

} // namespace varnoth::html
