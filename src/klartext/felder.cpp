#include "felder.h"

#include "texte.h"
#include "wortlaut.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr char Trenner = ';';

const Wahl* Finde(const Feld& feld, std::int32_t wert) {
    const auto treffer = std::ranges::find(feld.wahlen, wert & feld.maske, &Wahl::wert);
    return treffer == feld.wahlen.end() ? nullptr : &*treffer;
}

/// The choice that the words name, the words being in the form that counts.
const Wahl* Finde(const Feld& feld, const std::string& kern) {
    const auto treffer =
        std::ranges::find_if(feld.wahlen, [&](const Wahl& wahl) { return Wortkern(wahl.worte) == kern; });
    return treffer == feld.wahlen.end() ? nullptr : &*treffer;
}

std::int32_t AlleMasken(const Felder& felder) {
    std::int32_t maske = 0;
    for (const Feld& feld : felder)
        maske |= feld.maske;
    return maske;
}

} // namespace

Feld FeldAus(std::int32_t maske, std::span<const Option> optionen, std::int16_t sprache) {
    Feld feld{maske, {}};
    for (const Option& option : optionen)
        feld.wahlen.push_back({option.wert, LadeText(option.text, sprache)});
    return feld;
}

Feld Schalter(std::int32_t bit, const std::string& worte) {
    return {bit, {{0, {}}, {bit, worte}}};
}

std::optional<std::string> WorteFuer(const Felder& felder, std::int32_t wert) {
    if ((wert & ~AlleMasken(felder)) != 0)
        return std::nullopt;
    std::string worte;
    for (const Feld& feld : felder) {
        const Wahl* const wahl = Finde(feld, wert);
        if (wahl == nullptr)
            return std::nullopt;
        if (!worte.empty() && !wahl->worte.empty())
            worte += "; ";
        worte += wahl->worte;
    }
    return worte;
}

std::optional<std::int32_t> WertAus(const Felder& felder, std::string_view worte) {
    const auto teile = Zerlege(worte, Trenner);
    std::size_t teil = 0;
    std::int32_t wert = 0;
    for (const Feld& feld : felder) {
        const Wahl* wahl = teil < teile.size() ? Finde(feld, Wortkern(teile[teil])) : nullptr;
        if (wahl != nullptr && !wahl->worte.empty())
            ++teil;
        else
            wahl = Finde(feld, std::string());
        if (wahl == nullptr)
            return std::nullopt;
        wert |= wahl->wert;
    }
    return teil == teile.size() ? std::optional(wert) : std::nullopt;
}

} // namespace varnoth
