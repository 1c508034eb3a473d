#pragma once

#include "boolean.h"
#include "identifikation.h"
#include "werte.h"

#include <cstdint>
#include <string>

/// The blocking exchanges with the controller. Each sends one request, waits for the reply at most one second
/// from byte to byte, and stores results only when the whole reply is valid. They never retry. A failure is a
/// silent False, also when a reply that is still on its way could be mistaken for this one and nothing could
/// be done about it; the request is not sent then. Only an error inside the program shows a box titled with
/// the procedure's name.
namespace varnoth::modModbus {

/// Reads registers into Werte[0..Anzahl-1], each 0..65535. Werte must have room for them and is left as it is
/// on False.
Boolean RTUModeH03LeseAnforderung(std::uint16_t Startadresse, std::uint16_t Anzahl, Werte& werte);
/// Writes Werte[0..Anzahl-1], of each the low 16 bits.
Boolean RTUModeH10SchreibenAnforderung(std::uint16_t Startadresse, std::uint16_t Anzahl, const Werte& werte);
/// Asks the controller who it is and fills the identification record.
Boolean RTUModeH11IndentifikationsAnforderung();
/// Sends the bare command frame of function 0x09 without waiting for anything. Always True.
Boolean SendeFunktion09();

/// Selects the optical part 0..3 that specific addresses mean from now on.
Boolean WaehleOptikteil(int optikteil);

/// Empties the identification record; every identification begins with it.
void IdentReset();
Boolean GetIdentGueltig();
std::int16_t GetSlaveAdresse();
std::int16_t GetIdentByte1();
std::int16_t GetIdentByte2();
const std::string& GetIdentText1();
const std::string& GetIdentText2();
const std::string& GetIdentText3();

/// Opens the port, sends the bare command frame and closes the port; True also when nothing was sent because
/// no controller is identified.
Boolean SendeFunktion09Kommando();
/// Ends autosend: opens the port, writes 4 to the control register and closes the port. Nothing happens when
/// no controller is identified; the result does not matter.
void SchreibeSteuerwert4();
/// Starts autosend in the same way with the value 2.
void SchreibeSteuerwert2();
/// Whether this run has started autosend and not ended it since.
bool AutosendGestartet();
/// Behind an attempt that has failed: ends autosend on the port that is open when the line did not become
/// quiet before it. Nothing happens on a line that did, or when no controller is identified.
void BeruhigeGeraet();
/// Ends autosend on a port that is open, opening it anew and closing it afterwards. Nothing happens when it
/// is closed.
void BeendeAutosendAmOffenenPort();

} // namespace varnoth::modModbus
