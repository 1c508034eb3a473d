#pragma once

#include "lesart.h"
#include "registerfelder.h"
#include "werte.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The controller's parameters in words, in both languages. A parameter is named by its range and the address
/// at which the description table has one; its value are all its registers.
namespace varnoth {

/// The name, without colon; empty where no parameter starts.
std::string Parametername(Speicherbereich bereich, std::int16_t adresse,
                          std::int16_t sprache = GetSprachoffset());

/// The value in words (UTF-8, one line). A value that means nothing is told as a number, decimal and
/// hexadecimal: "99 (0x63)"; of several registers hexadecimal. Whatever is told, `WerteAus` reads it back.
/// Empty where no parameter starts, or when the number of registers is not the parameter's.
std::string Klartext(Speicherbereich bereich, std::int16_t adresse, const Werte& werte,
                     const Lesart& lesart = {});

/// The value of which the words speak. Blanks, the case of ASCII letters and the kind of decimal separator do
/// not count; words of the reading's language come first, those of the other one are understood too. Nothing
/// for words that mean nothing.
std::optional<Werte> WerteAus(Speicherbereich bereich, std::int16_t adresse, std::string_view worte,
                              const Lesart& lesart = {});

/// What can be chosen, field by field; none for a parameter without a list of choices. Most registers can be
/// put together in one way, some, whose fields depend on one another, in several.
Fuegungen Wahlmoeglichkeiten(Speicherbereich bereich, std::int16_t adresse, const Lesart& lesart = {});

} // namespace varnoth
