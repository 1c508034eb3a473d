#pragma once

#include "abbild.h"
#include "bustyp.h"
#include "texte.h"

#include <cstdint>
#include <functional>
#include <string>

namespace varnoth {

/// Writes a number as the reader is used to it.
using Zahlformat = std::function<std::string(double zahl)>;

/// What the words for a value depend on besides the value.
struct Lesart {
    std::int16_t sprache = GetSprachoffset(); ///< Deutsch or Englisch
    std::int32_t zyklus = 0; ///< microseconds that durations count in; 0 = not known: they are told in cycles
    std::int32_t bustyp = bustyp::Modbus; ///< the value of the bus type's register
    Zahlformat zahlformat{}; ///< empty: at most 15 digits and the decimal separator of the language
};

/// How to read a parameter of the image: with the cycle time that follows from its beam counts, of the
/// optical part 0..3 in the specific range and of the whole controller in the others, and with its bus type.
Lesart LesartFuer(const Abbild& abbild, Speicherbereich bereich, int optikteil = 0);

/// The number in the reading's format.
std::string Zahlwort(double zahl, const Lesart& lesart);

} // namespace varnoth
