#pragma once

#include "boolean.h"
#include "seriellerport.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// The one serial port that connects the program to the controller. Every exchange runs through these
/// operations, on the window's thread; their waits let window events run.
namespace varnoth::modSchnittstelle {

/// The settings string in force when none is given.
inline constexpr const char* StandardComSettings = "38400,n,8,2";

/// Fits the port in (nullptr takes it out). It must live until it is taken out.
void SetzePort(SeriellerPort* port);

/// The port that a number from the settings means: 1..4 themselves, anything else port 1.
constexpr std::int16_t GueltigerComPort(int nummer) {
    return nummer >= 1 && nummer <= 4 ? static_cast<std::int16_t>(nummer) : std::int16_t{1};
}
/// Port number for the next OpenCommPort; 1..4 are known.
void SetzeComPort(std::int16_t nummer);
std::int16_t GetComPort();
/// Device that every port number means from the next OpenCommPort on; empty: the one of the settings.
void SetzeGeraet(const std::string& pfad);
const std::string& GetGeraet();
/// Settings string for the next OpenCommPort; empty stands for the standard.
void SetzeComSettings(const std::string& einstellungen);
const std::string& GetComSettings();

/// Closes, configures, opens and clears the port. A port that cannot be opened stays closed, without a
/// message.
void OpenCommPort();
/// Closes the port once all that was sent has left it, which is waited for at most a second.
void CloseCommPort();
/// The port's open state as last read back from it.
Boolean GetPortIstOffen();
/// What the port number in use leads to.
Anschluss GetAnschluss();
/// What stands in the way of the port in use, looked for now.
Portbefund GetPortbefund();
/// Why the port could not be opened last, in words; empty when it could.
std::string GetPortfehler();

/// Opens the port anew if it was open and its line has disappeared. Nothing happens when the line is still
/// away.
void HoleVerlorenenPortZurueck();

/// Whether the line has disappeared since the last call and is open anew, or was when the port was closed:
/// what was on its way is lost.
bool NimmVerlust();

/// Discards what was received and starts the pause before the next write.
void ClearCommPort();
/// Waits for the end of the pause before the next write.
void WarteSendepause();
/// What was discarded since the last call because the port was cleared or closed; the newest 4096 bytes.
std::string NimmVerworfenes();
/// Number of received bytes waiting, at most 32767.
std::int16_t CommPortBytesAvailable();
/// Every byte waiting; empty when the port is not open.
std::string CommPortReadInput();
/// Sends bytes, not earlier than 2 ms after the last clear or read. Nothing happens when the port is not
/// open.
void CommPortWriteOutput(std::string_view daten);
/// Sleeps as long as, by the line's pace, so many further bytes of the reply cannot have arrived yet, at most
/// until the window's turn. Returns at once where nothing is known of the pace.
void WarteAufRest(std::size_t bytes);
/// Whether what was read since the last write came too early to be a reply to it.
bool KamZuFrueh();
/// Whether what was read since the last write came much later than replies on this line did before.
bool KamSpaet();
/// Waits up to TimeoutMs milliseconds; with AufZeichenWarten it returns as soon as a byte waits. False when
/// the time ran out.
bool WarteAufZeichen(int TimeoutMs, Boolean AufZeichenWarten);
/// How long a line in use is quiet at least when nothing is under way; USB adapters hand over every 16 ms.
inline constexpr Zeit Ruhezeit = std::chrono::milliseconds(20);
/// Whether nothing has come for so long.
bool IstRuhig(Zeit ruhe = Ruhezeit);
/// Takes what arrives until nothing has for so long, at most for one second or three times as long. Returns
/// at once when the line has been quiet for that time already.
std::string WarteAufRuhe(Zeit ruhe = Ruhezeit);
/// Acts on the port's error events: an overflow of the receive buffer discards the input, all others pass.
void BehandleCommEreignis(int ereignis);

} // namespace varnoth::modSchnittstelle
