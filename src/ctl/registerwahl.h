#pragma once

#include "konfigurationstransfer.h"

#include <optional>
#include <string>
#include <string_view>

namespace varnoth::ctl {

/// Which register a word of the command line means.
struct Registerwahl {
    std::optional<Transferparameter> stelle{}; ///< nothing where the word means none
    std::string fehler{};                      ///< then: why not, in the current language
};

/// Understands "Optical part 2/Resolution" and "2/Resolution" (a comma does as well),
/// "Communication/Address", a name alone where only one range has it, an address in decimal or hexadecimal
/// ("193", "0x4004"), the way windows show it ("4000H + 4"), and "2/13" for an address within the range of
/// part 2. Names of both languages count. An address at which a parameter starts means all of it, any other a
/// single register.
Registerwahl WaehleRegister(std::string_view wort);

/// Whether these registers are a parameter.
bool IstParameter(const Transferparameter& parameter);

/// Its name with its group, "Optical part 2 / Resolution"; of one that is no parameter where it lies.
std::string Registername(const Transferparameter& parameter);

} // namespace varnoth::ctl
