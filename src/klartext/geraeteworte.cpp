#include "geraeteworte.h"

#include "geraetetexte.h"
#include "wortlaut.h"
#include "zeichensatz.h"

#include <algorithm>
#include <array>

namespace varnoth {

namespace {

constexpr std::size_t Datumregister = 4;
constexpr std::size_t Datumziffern = 2 * Datumregister;
constexpr std::int32_t GroessteVersionszahl = 255;
constexpr int Byteversatz = 8;
constexpr std::int32_t Bytebits = 0xFF;

bool IstNull(const Werte& werte) {
    return std::ranges::all_of(werte, [](std::int32_t wert) { return wert == 0; });
}

bool HeisstUnbekannt(std::string_view worte) {
    const std::string kern = Wortkern(worte);
    return kern == Wortkern(LadeText(TextUnbekannt, Deutsch)) ||
           kern == Wortkern(LadeText(TextUnbekannt, Englisch));
}

/// Control characters are no text; the set leaves five codes from 0x80 on to them.
bool IstSchriftzeichen(int zeichen) {
    constexpr std::array ohne = {0x7F, 0x81, 0x8D, 0x8F, 0x90, 0x9D};
    return zeichen >= ' ' && std::ranges::find(ohne, zeichen) == ohne.end();
}

/// Takes the controller's character off the front of a UTF-8 text.
std::optional<int> NimmZeichen(std::string_view& text) {
    for (int zeichen = ' '; zeichen <= Bytebits; ++zeichen) {
        const std::string utf8 = AlsUtf8(static_cast<std::uint8_t>(zeichen));
        if (!IstSchriftzeichen(zeichen) || !text.starts_with(utf8))
            continue;
        text.remove_prefix(utf8.size());
        return zeichen;
    }
    return std::nullopt;
}

/// The eight digits of a date, the year first; empty where other characters stand.
std::string Ziffern(const Werte& werte) {
    std::string ziffern;
    for (const std::int32_t wert : werte)
        ziffern += RegisterAlsUtf8(wert);
    const bool alle = std::ranges::all_of(ziffern, [](char z) { return z >= '0' && z <= '9'; });
    return alle && ziffern.size() == Datumziffern ? ziffern : std::string();
}

/// Day, month and year of a date, or nothing.
std::optional<std::array<std::string_view, 3>> Datumsteile(std::string_view worte) {
    const bool deutsch = worte.find('.') != std::string_view::npos;
    const auto teile = Zerlege(worte, deutsch ? '.' : '/');
    if (teile.size() != 3)
        return std::nullopt;
    return deutsch ? std::array{teile[0], teile[1], teile[2]} : std::array{teile[1], teile[0], teile[2]};
}

} // namespace

std::optional<std::string> TextAlsWorte(const Werte& werte, const Lesart& lesart) {
    if (IstNull(werte))
        return LadeText(TextUnbekannt, lesart.sprache);
    std::string text;
    for (const std::int32_t wert : werte)
        text += RegisterAlsUtf8(wert);
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

std::optional<Werte> TextAusWorten(std::string_view worte, std::size_t anzahl) {
    if (HeisstUnbekannt(worte))
        return Werte(anzahl, 0);
    Werte werte;
    worte = OhneRand(worte);
    if (worte.empty())
        return std::nullopt;
    for (std::size_t i = 0; i < anzahl; ++i) {
        std::int32_t wert = 0;
        for (int haelfte = 0; haelfte < 2; ++haelfte) {
            const auto zeichen = worte.empty() ? std::optional<int>(' ') : NimmZeichen(worte);
            if (!zeichen)
                return std::nullopt;
            wert = wert << Byteversatz | *zeichen;
        }
        werte.push_back(wert);
    }
    return worte.empty() ? std::optional(werte) : std::nullopt;
}

std::optional<std::string> DatumAlsWorte(const Werte& werte, const Lesart& lesart) {
    if (IstNull(werte))
        return LadeText(TextUnbekannt, lesart.sprache);
    const std::string ziffern = Ziffern(werte);
    if (ziffern.empty())
        return std::nullopt;
    const std::string jahr = ziffern.substr(0, 4);
    const std::string monat = ziffern.substr(4, 2);
    const std::string tag = ziffern.substr(6, 2);
    return lesart.sprache == Deutsch ? tag + "." + monat + "." + jahr : monat + "/" + tag + "/" + jahr;
}

std::optional<Werte> DatumAusWorten(std::string_view worte) {
    if (HeisstUnbekannt(worte))
        return Werte(Datumregister, 0);
    const auto teile = Datumsteile(worte);
    if (!teile)
        return std::nullopt;
    const auto& [tag, monat, jahr] = *teile;
    if (tag.size() != 2 || monat.size() != 2 || jahr.size() != 4)
        return std::nullopt;
    const auto werte =
        TextAusWorten(std::string(jahr) + std::string(monat) + std::string(tag), Datumregister);
    return werte && !Ziffern(*werte).empty() ? werte : std::nullopt;
}

std::optional<std::string> VersionAlsWorte(const Werte& werte, const Lesart& lesart) {
    const std::int32_t version = werte.at(0);
    if (version == 0)
        return LadeText(TextUnbekannt, lesart.sprache);
    return std::to_string((version >> Byteversatz) & Bytebits) + "." + std::to_string(version & Bytebits);
}

std::optional<Werte> VersionAusWorten(std::string_view worte) {
    if (HeisstUnbekannt(worte))
        return Werte{0};
    const auto teile = Zerlege(worte, '.');
    if (teile.size() != 2)
        return std::nullopt;
    const auto haupt = ZahlAus(teile[0], GroessteVersionszahl);
    const auto unter = ZahlAus(teile[1], GroessteVersionszahl);
    if (!haupt || !unter || (*haupt == 0 && *unter == 0))
        return std::nullopt;
    return Werte{*haupt << Byteversatz | *unter};
}

} // namespace varnoth
