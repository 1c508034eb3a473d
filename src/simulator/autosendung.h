#pragma once

#include "aufbau.h"
#include "registerspeicher.h"

#include <optional>

namespace varnoth::simulator {

/// What a controller in autosend sends by itself, as its registers say.
struct Autosendung {
    Zeit periode; ///< from the start of a block to the start of the next
    Bytes block;  ///< its bytes; in Modbus format like a reply to a read, otherwise the values and their sum
    bool lesbar;  ///< its line format is that of the line
};

/// The block that is due. Nothing in the modes that send nothing unasked, or without a part or an entry.
std::optional<Autosendung> HoleAutosendung(const Registerspeicher& speicher, int adresse);

} // namespace varnoth::simulator
