#include "initext.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr std::string_view Bom = "\xEF\xBB\xBF";
constexpr std::string_view Blanks = " \t\r";

/// What a search in the text found. Places are offsets in the text.
struct Fund {
    std::optional<std::string_view> wert{};      ///< the value, a part of the text
    std::optional<std::size_t> einfuegestelle{}; ///< behind the section's last key; nothing without section
};

std::string_view OhneBlanks(std::string_view text) {
    const auto anfang = text.find_first_not_of(Blanks);
    if (anfang == std::string_view::npos)
        return text.substr(0, 0);
    return text.substr(anfang, text.find_last_not_of(Blanks) - anfang + 1);
}

char Klein(char zeichen) {
    return zeichen >= 'A' && zeichen <= 'Z' ? static_cast<char>(zeichen - 'A' + 'a') : zeichen;
}

bool GleicherName(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, Klein, Klein);
}

/// Whether a line that begins with "[" opens this section; without its closing bracket it opens none.
bool Oeffnet(std::string_view zeile, std::string_view abschnitt) {
    const auto ende = zeile.find(']');
    return ende != std::string_view::npos && GleicherName(OhneBlanks(zeile.substr(1, ende - 1)), abschnitt);
}

bool IstKommentar(std::string_view zeile) {
    return zeile.starts_with(';') || zeile.starts_with('#');
}

Fund Suche(std::string_view text, std::string_view abschnitt, std::string_view schluessel) {
    Fund fund;
    bool imAbschnitt = false;
    for (std::size_t stelle = text.starts_with(Bom) ? Bom.size() : 0; stelle < text.size();) {
        const std::size_t ende = std::min(text.find('\n', stelle), text.size());
        const std::string_view zeile = OhneBlanks(text.substr(stelle, ende - stelle));
        stelle = std::min(ende + 1, text.size());
        const bool kopf = zeile.starts_with('[');
        if (kopf)
            imAbschnitt = Oeffnet(zeile, abschnitt);
        const std::size_t gleich = zeile.find('=');
        const bool eintrag = !kopf && !IstKommentar(zeile) && gleich != std::string_view::npos;
        if (!imAbschnitt || !(kopf || eintrag))
            continue;
        fund.einfuegestelle = stelle;
        if (eintrag && GleicherName(OhneBlanks(zeile.substr(0, gleich)), schluessel)) {
            fund.wert = OhneBlanks(zeile.substr(gleich + 1));
            return fund;
        }
    }
    return fund;
}

/// The line end that the text uses.
std::string_view Zeilenende(std::string_view text) {
    const auto ende = text.find('\n');
    return ende != std::string_view::npos && ende > 0 && text[ende - 1] == '\r' ? "\r\n" : "\n";
}

} // namespace

std::optional<std::string> Initext::Lies(std::string_view abschnitt, std::string_view schluessel) const {
    const auto wert = Suche(text, abschnitt, schluessel).wert;
    return wert ? std::optional<std::string>(*wert) : std::nullopt;
}

bool Initext::Setze(std::string_view abschnitt, std::string_view schluessel, std::string_view wert) {
    using namespace std::string_view_literals;
    if (wert.find_first_of("\r\n\0"sv) != std::string_view::npos)
        return false;
    const Fund fund = Suche(text, abschnitt, schluessel);
    if (fund.wert) {
        text.replace(static_cast<std::size_t>(fund.wert->data() - text.data()), fund.wert->size(), wert);
        return true;
    }
    const std::string ende(Zeilenende(text));
    const std::size_t stelle = fund.einfuegestelle.value_or(text.size());
    std::string neu = stelle == 0 || text[stelle - 1] == '\n' ? "" : ende;
    if (!fund.einfuegestelle)
        neu += (text.empty() ? "" : ende) + "[" + std::string(abschnitt) + "]" + ende;
    neu += std::string(schluessel) + "=" + std::string(wert) + ende;
    text.insert(stelle, neu);
    return true;
}

} // namespace varnoth
