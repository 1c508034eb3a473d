#include "zahlworte.h"

#include "wortlaut.h"

namespace varnoth {

namespace {
constexpr std::int16_t TextPauseneinheit = 5623;
}

std::optional<std::string> ZahlenAlsWorte(const Werte& werte, const Lesart& /*lesart*/) {
    std::string worte;
    for (const std::int32_t wert : werte)
        worte += (worte.empty() ? "" : ", ") + std::to_string(wert);
    return worte;
}

std::optional<Werte> ZahlenAusWorten(std::string_view worte, std::size_t anzahl, std::int32_t groesste) {
    const auto teile = Zerlege(worte, ',');
    if (teile.size() != anzahl)
        return std::nullopt;
    Werte werte;
    for (const std::string_view teil : teile) {
        const auto zahl = ZahlAus(teil, groesste);
        if (!zahl)
            return std::nullopt;
        werte.push_back(*zahl);
    }
    return werte;
}

std::optional<std::string> PauseAlsWorte(const Werte& werte, const Lesart& lesart) {
    return std::to_string(werte.at(0)) + " " + LadeText(TextPauseneinheit, lesart.sprache);
}

std::optional<Werte> PauseAusWorten(std::string_view worte, const Lesart& lesart) {
    std::string kern = Wortkern(worte);
    const std::string einheit = Wortkern(LadeText(TextPauseneinheit, lesart.sprache));
    if (kern.ends_with(einheit))
        kern.erase(kern.size() - einheit.size());
    return ZahlenAusWorten(kern, 1);
}

} // namespace varnoth
