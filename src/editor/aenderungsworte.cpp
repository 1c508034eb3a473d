#include "aenderungsworte.h"

#include "klartext.h"
#include "textmitwerten.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextVonNach = 9863;
constexpr std::int16_t TextErstesOptikteil = 5200;

/// The name of a parameter, that of its optical part before it.
std::string Name(const Parameter& parameter, int teil) {
    std::string name = Parametername(parameter.bereich, parameter.adresse);
    if (parameter.bereich != Speicherbereich::SpezifischeGeraetedaten)
        return name;
    return LadeText(static_cast<std::int16_t>(TextErstesOptikteil + teil)) + " " + name;
}

std::string Worte(const Abbild& abbild, const Parameter& parameter, int teil) {
    return Klartext(parameter.bereich, parameter.adresse,
                    abbild.HoleParameter(parameter.bereich, parameter.adresse, teil),
                    LesartFuer(abbild, parameter.bereich, teil));
}

} // namespace

std::string Aenderungsworte(const Abbild& vorher, const Abbild& nachher) {
    std::string worte;
    for (const Parameter& parameter : AlleParameter())
        for (int teil = 0; teil < Exemplare(parameter.bereich); ++teil) {
            if (vorher.HoleParameter(parameter.bereich, parameter.adresse, teil) ==
                nachher.HoleParameter(parameter.bereich, parameter.adresse, teil))
                continue;
            worte += (worte.empty() ? "" : "; ") +
                     LadeTextMit(TextVonNach, {Name(parameter, teil), Worte(vorher, parameter, teil),
                                               Worte(nachher, parameter, teil)});
        }
    return worte;
}

} // namespace varnoth
