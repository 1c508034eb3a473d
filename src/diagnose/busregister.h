#pragma once

#include "busrahmen.h"

#include <cstdint>
#include <string>
#include <vector>

/// The registers of the line by name.
namespace varnoth {

/// Registers that have one name.
struct Registername {
    Speicherbereich bereich;
    std::int16_t adresse; ///< of the first one
    int anzahl;
    std::int16_t text = 0; ///< string id of those that the image does not keep; 0: the parameter has one

    bool operator==(const Registername&) const = default;
};

/// All registers that have a name: the parameters and what is only ever sent to, by range and address.
const std::vector<Registername>& AlleRegisternamen();

/// The name, in the current language.
std::string Name(const Registername& name);
/// The name behind that of its range: "Global: PNP output". Of the range of an optical part 0..3, or of an
/// unknown one (-1), that part's.
std::string NameMitBereich(const Registername& name, int optikteil);

/// The registers in words: their name; of several the first and the last; of what has none its address. Of a
/// piece of a parameter it says which registers of it.
std::string Registerworte(const Registerbezug& bezug, int optikteil);

/// The name that covers the registers exactly; nullptr where there is none.
const Registername* GenauerName(const Registerbezug& bezug);

} // namespace varnoth
