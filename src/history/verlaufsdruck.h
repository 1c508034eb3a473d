#pragma once

#include <QString>

class QPagedPaintDevice;

namespace varnoth {

class Verlaufsbild;

/// Paints the picture as it is on the page of a device, as large as fits below a heading, dark on white
/// whatever the colours of the screen. False when the device cannot be painted on.
bool DruckeVerlauf(Verlaufsbild& bild, const QString& ueberschrift, QPagedPaintDevice& geraet);

} // namespace varnoth
