#pragma once

#include "werte.h"

#include <cstdint>
#include <string>

namespace varnoth {

/// Function codes that the program sends.
enum class Funktion : std::uint8_t { Lesen = 0x03, Kommando = 0x09, Schreiben = 0x10, Identifikation = 0x11 };

/// Request for `anzahl` registers from `start` on: address, 0x03, start, count, CRC. Of the address the low
/// byte is sent; all register fields go high byte first, the CRC low byte first.
std::string LeseAnforderung(std::int16_t slaveAdresse, std::uint16_t start, std::uint16_t anzahl);

/// Request to write werte[0..anzahl-1], of each the low 16 bits, to the registers from `start` on.
/// @throws std::out_of_range when `werte` has fewer elements
std::string SchreibAnforderung(std::int16_t slaveAdresse, std::uint16_t start, std::uint16_t anzahl,
                               const Werte& werte);

/// Identification request, always to address 0.
std::string IdentifikationsAnforderung();

/// The bare command frame of function 0x09.
std::string KommandoRahmen(std::int16_t slaveAdresse);

} // namespace varnoth
