#pragma once

#include "speicherbereich.h"

#include <cstdint>
#include <ranges>
#include <span>

namespace varnoth {

/// The values of `Registerbeschreibung::Zugriff`: how a parameter takes part in a whole-configuration
/// transfer.
namespace zugriff {
inline constexpr std::int16_t NurLesen = 0;
inline constexpr std::int16_t KeineUebertragung = 1;
inline constexpr std::int16_t LesenUndSchreiben = 2;
} // namespace zugriff

/// What is known about the parameter that starts at an address.
struct Registerbeschreibung {
    std::int16_t Laenge = 0;           ///< number of registers; 0 where no parameter starts
    std::int16_t IstKonfiguration = 0; ///< 1 = configuration that is written to the device, 0 = information
    std::int16_t Zugriff = 0;          ///< one of the values in namespace zugriff

    bool operator==(const Registerbeschreibung&) const = default;
};

/// The description of an address; one without a parameter (Laenge 0) for an address outside the range.
Registerbeschreibung Beschreibung(Speicherbereich bereich, std::int16_t adresse);

/// Whether a whole-configuration read fetches the parameter.
constexpr bool IstLesbar(const Registerbeschreibung& beschreibung) {
    return beschreibung.Laenge > 0 && beschreibung.Zugriff != zugriff::KeineUebertragung;
}

/// Whether a whole-configuration write sends the parameter.
constexpr bool IstSchreibbar(const Registerbeschreibung& beschreibung) {
    return beschreibung.Laenge > 0 && beschreibung.Zugriff == zugriff::LesenUndSchreiben &&
           beschreibung.IstKonfiguration == 1;
}

/// A parameter of the controller.
struct Parameter {
    Speicherbereich bereich;
    std::int16_t adresse; ///< of its first register
    Registerbeschreibung beschreibung;
};

/// All parameters, in the order of ranges and addresses.
std::span<const Parameter> AlleParameter();

/// The parameters of a range whose description satisfies the condition (`IstLesbar`, `IstSchreibbar`), in the
/// order of addresses.
template<class Bedingung>
auto ParameterMit(Speicherbereich bereich, Bedingung bedingung) {
    return AlleParameter() | std::views::filter([=](const Parameter& parameter) {
               return parameter.bereich == bereich && bedingung(parameter.beschreibung);
           });
}

/// What the value of a register must satisfy. A register with two fields has one rule for each.
struct Werteregel {
    Speicherbereich bereich;
    std::int16_t adresse;
    std::int32_t maske;     ///< the bits that the rule looks at
    std::int32_t kleinster; ///< where no choice is given: the lowest valid value of those bits
    std::int32_t groesster; ///< and the highest
    std::span<const std::int32_t> auswahl{}; ///< the valid values where they do not follow one another
};

/// All rules, in the order of ranges and addresses.
std::span<const Werteregel> AlleWerteregeln();

/// Whether the value satisfies the rule. A negative value, which no register has but an edited configuration
/// can hold, is neither 0 nor too large.
bool Erfuellt(const Werteregel& regel, std::int32_t wert);

/// The value of a register in the default configuration. Registers without one are 0.
struct Standardwert {
    Speicherbereich bereich;
    std::int16_t adresse;
    std::int32_t wert;
};

/// All default values, in the order of ranges and addresses.
std::span<const Standardwert> AlleStandardwerte();

} // namespace varnoth
