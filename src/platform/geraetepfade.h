#pragma once

#include <string>

namespace varnoth {

/// The system's name of serial port 1..4: what the settings name in section "Settings" under "ComGeraet1" to
/// "ComGeraet4", else COM1..COM4 on Windows and /dev/ttyS0../dev/ttyS3 elsewhere. Empty for another number.
std::string Geraetepfad(int nummer);

/// Names another device for all ports of this run (empty: none).
void SetzeGeraetepfad(const std::string& pfad);

} // namespace varnoth
