#pragma once

#include "verlaufswahl.h"

#include <string>

namespace varnoth {

/// "22.11.2026 14:03:05,250 · K1 TU 15, HU 23, ZU 9 · Schaltausgang aktiv": what was measured at a pass.
std::string Zeigerworte(const Messangaben& angaben, const Messdurchgang& durchgang, const Verlaufswahl& wahl,
                        const Strahlabstaende& abstaende);

/// What lies between two passes: the time, and how much each value chosen has grown. With one of them only
/// when that was.
std::string Markenworte(const Messangaben& angaben, const Messdurchgang* a, const Messdurchgang* b,
                        const Verlaufswahl& wahl, const Strahlabstaende& abstaende);

} // namespace varnoth
