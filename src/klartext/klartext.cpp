#include "klartext.h"

#include "parameterworte.h"
#include "rohwert.h"
#include "wortlaut.h"

namespace varnoth {

namespace {

bool HatAnzahl(Speicherbereich bereich, std::int16_t adresse, std::size_t anzahl) {
    return static_cast<std::size_t>(Beschreibung(bereich, adresse).Laenge) == anzahl;
}

/// The words of a value, if it has some from which it can be read again.
std::optional<std::string> Worte(const Parameterworte& parameter, const Werte& werte, const Lesart& lesart) {
    if (parameter.felder == nullptr) {
        auto worte = parameter.alsWorte(werte, lesart);
        return worte && parameter.ausWorten(*worte, lesart) == werte ? worte : std::nullopt;
    }
    for (const Felder& felder : parameter.felder(lesart))
        if (auto worte = WorteFuer(felder, werte[0]))
            return worte;
    return std::nullopt;
}

std::optional<Werte> AusWorten(const Parameterworte& parameter, std::string_view worte,
                               const Lesart& lesart) {
    if (parameter.felder == nullptr)
        return parameter.ausWorten(worte, lesart);
    for (const Felder& felder : parameter.felder(lesart))
        if (const auto wert = WertAus(felder, worte))
            return Werte{*wert};
    return std::nullopt;
}

Lesart InAndererSprache(Lesart lesart) {
    lesart.sprache = lesart.sprache == Deutsch ? Englisch : Deutsch;
    return lesart;
}

} // namespace

std::string Parametername(Speicherbereich bereich, std::int16_t adresse, std::int16_t sprache) {
    const Parameterworte* const parameter = ParameterworteVon(bereich, adresse);
    if (parameter == nullptr)
        return {};
    std::string_view name = OhneRand(LadeText(parameter->name, sprache));
    if (name.ends_with(':'))
        name.remove_suffix(1);
    return std::string(name);
}

std::string Klartext(Speicherbereich bereich, std::int16_t adresse, const Werte& werte,
                     const Lesart& lesart) {
    const Parameterworte* const parameter = ParameterworteVon(bereich, adresse);
    if (parameter == nullptr || !HatAnzahl(bereich, adresse, werte.size()))
        return {};
    const auto worte = Worte(*parameter, werte, lesart);
    return worte ? *worte : Rohtexte(werte);
}

std::optional<Werte> WerteAus(Speicherbereich bereich, std::int16_t adresse, std::string_view worte,
                              const Lesart& lesart) {
    const Parameterworte* const parameter = ParameterworteVon(bereich, adresse);
    if (parameter == nullptr)
        return std::nullopt;
    for (const Lesart& eine : {lesart, InAndererSprache(lesart)})
        if (auto werte = AusWorten(*parameter, worte, eine))
            return werte;
    auto rohwerte = RohwerteAus(worte);
    return rohwerte && HatAnzahl(bereich, adresse, rohwerte->size()) ? rohwerte : std::nullopt;
}

Fuegungen Wahlmoeglichkeiten(Speicherbereich bereich, std::int16_t adresse, const Lesart& lesart) {
    const Parameterworte* const parameter = ParameterworteVon(bereich, adresse);
    if (parameter == nullptr || parameter->felder == nullptr)
        return {};
    return parameter->felder(lesart);
}

} // namespace varnoth
