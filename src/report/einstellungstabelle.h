#pragma once

#include "abbild.h"
#include "abschnitte.h"
#include "parameterstelle.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// The tables of a report that are made from the registers.
namespace varnoth {

/// The settings that a write could set back to what the default configuration has; those of missing parts
/// left out.
Parametermenge Abweichungen(const Abbild& abbild);

/// Every setting of a range in words: name, value, and the default value where it is one of those that
/// differ; the value is then bold.
std::string Einstellungstabelle(const Abbild& abbild, const Abschnitt& abschnitt,
                                const Parametermenge& abweichungen, std::int16_t sprache);

/// Type, serial number, date and versions of the controller; none of these can be set.
std::string Geraetetabelle(const Abbild& abbild,
                           const std::vector<std::pair<std::string, std::string>>& weitere,
                           std::int16_t sprache);

/// The entries of the autosend data block in the order they are sent, with their words in the register.
std::string Datenblocktabelle(const Abbild& abbild, std::int16_t sprache);

/// Every register of every parameter that is no measured value: address, name, decimal, hexadecimal. Three or
/// more of a parameter that follow one another and hold the same value share a row.
std::string Registertabelle(const Abbild& abbild, std::int16_t sprache);

} // namespace varnoth
