#pragma once

#include "option.h"
#include "werte.h"

#include <cstdint>
#include <span>
#include <string>

/// What the editor shows of registers that it never writes, in the current language (UTF-8).
namespace varnoth {

/// What stands for a value that the controller does not have.
inline constexpr std::int16_t TextUnbekannt = 5103;

/// The device types with their texts.
std::span<const Option> AlleGeraetetypen();

/// The device type of global register 0.
std::string Geraetetyptext(std::int32_t typ);

/// The serial number: two characters from each register. The first one 0: "unbekannt".
std::string Seriennummertext(const Werte& daten);

/// The date of manufacture from its four registers. The first one 0: "unbekannt".
std::string Herstelldatumtext(const Werte& daten);

/// A hardware or software version, high byte and low byte: 2.3. The register 0: "unbekannt".
std::string Versionstext(std::int32_t version);

/// The kind of bus of communication register 0.
std::string Bustyptext(std::int32_t typ);

} // namespace varnoth
