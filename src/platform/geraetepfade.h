#pragma once

#include <string>

namespace varnoth {

/// The system's name of serial port 1..4: what the settings name in section "Settings" under "ComGeraet1" to
/// "ComGeraet4", else COM1..COM4 on Windows and /dev/ttyS0../dev/ttyS3 elsewhere. Empty for another number.
std::string Geraetepfad(int nummer);

/// What the settings name for serial port 1..4, whatever was named for this run; empty where they name none.
std::string EingetragenesGeraet(int nummer);
/// Enters a device in the settings for serial port 1..4.
void TrageGeraetEin(int nummer, const std::string& pfad);
/// What serial port 1..4 means where the settings name nothing.
std::string UeblichesGeraet(int nummer);

/// Names another device for all ports of this run (empty: none).
void SetzeGeraetepfad(const std::string& pfad);
/// The device that was named for this run; empty: none.
const std::string& GeraetDiesesLaufs();

} // namespace varnoth
