#include "abschnitte.h"

#include "registeradressen.h"
#include "texte.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr std::int16_t TextGlobal = 9650;
constexpr std::int16_t TextOptikteil = 9651;
constexpr std::int16_t TextKommunikation = 9652;

constexpr Abschnitt Abschnitte[] = {{Global, 0},     {Spezifisch, 0}, {Spezifisch, 1},
                                    {Spezifisch, 2}, {Spezifisch, 3}, {Kommunikation, 0}};

} // namespace

std::span<const Abschnitt> AlleAbschnitte() {
    return Abschnitte;
}

std::string Abschnittsname(const Abschnitt& abschnitt, std::int16_t sprache) {
    if (abschnitt.bereich == Spezifisch)
        return LadeText(TextOptikteil, sprache) + std::to_string(abschnitt.optikteil + 1);
    return LadeText(abschnitt.bereich == Global ? TextGlobal : TextKommunikation, sprache);
}

bool IstMomentan(const Parameter& parameter) {
    return parameter.beschreibung.Zugriff == zugriff::KeineUebertragung ||
           (parameter.bereich == Global && parameter.adresse == global::Geraetestatus);
}

bool GehoertZuParameter(Speicherbereich bereich, std::int16_t adresse) {
    return std::ranges::any_of(AlleParameter(), [&](const Parameter& parameter) {
        return parameter.bereich == bereich && parameter.adresse <= adresse &&
               adresse < parameter.adresse + parameter.beschreibung.Laenge;
    });
}

} // namespace varnoth
