#pragma once

#include "boolean.h"
#include "werte.h"

#include <cstdint>
#include <string>

namespace varnoth::modDaten {

/// Sets bit 0..15 of a register value when `zustand` is True; any other state clears it, and with it bits
/// 16..31. Another bit number shows a message box and changes nothing.
void SetBit(std::int32_t& wert, std::int16_t bit, Boolean zustand);

/// Whether bit 0..15 of a register value is 1. Another bit number shows a message box and gives False.
Boolean GetBit(std::int32_t wert, std::int16_t bit);

/// The date (UTF-8) in the current language, 13.05.2009 or 05/13/2009, from four registers of two characters
/// each: year, year, month, day. The characters are taken as they are; a missing register counts as 0. In an
/// unknown language a message box is shown and the date is empty.
std::string KonvertDatenToDatum(const Werte& daten);

} // namespace varnoth::modDaten
