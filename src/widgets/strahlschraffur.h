#pragma once

#include "strahlbild.h"

class QPainter;

namespace varnoth {

/// Draws the beams of which no state is known: grey lines without an end, the whole field hatched.
void Schraffiere(QPainter& maler, const Aufteilung& aufteilung, const Strahlfarben& farben, double dichte);

} // namespace varnoth
