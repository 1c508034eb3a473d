#pragma once

#include "lesart.h"
#include "registerfelder.h"
#include "werte.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varnoth {

/// How a parameter is named and told: by the fields of its register, or by a pair of functions.
struct Parameterworte {
    Speicherbereich bereich;
    std::int16_t adresse;
    std::int16_t name; ///< text id
    Fuegungen (*felder)(const Lesart& lesart) = nullptr;
    /// Words for all registers of the parameter; nothing where there are none. They count only if `ausWorten`
    /// gives the same value back.
    std::optional<std::string> (*alsWorte)(const Werte& werte, const Lesart& lesart) = nullptr;
    std::optional<Werte> (*ausWorten)(std::string_view worte, const Lesart& lesart) = nullptr;
};

/// The row of the parameter that starts at an address; null where none does.
const Parameterworte* ParameterworteVon(Speicherbereich bereich, std::int16_t adresse);

} // namespace varnoth
