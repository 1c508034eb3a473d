#pragma once

#include "strahlbild.h"

namespace varnoth {

/// Draws what stands still: transmitter and receiver, the millimetre scale, the beam numbers and, when
/// zoomed, which part of the beams is shown.
QPixmap Hintergrund(const Bildvorgabe& vorgabe, const Aufteilung& aufteilung, const Strahlfarben& farben);

} // namespace varnoth
