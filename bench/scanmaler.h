#pragma once

#include "beambarcontrol.h"

#include <QImage>

namespace varnoth::bench {

/// Draws scans into memory, each one with another state of every beam.
class Scanmaler {
public:
    Scanmaler(int strahlen, const QSize& groesse);

    /// Draws the next scan.
    void Zeichne();

private:
    void ZeigeScan();

    BeamBarControl balken;
    QImage bild;
    int scan = 0;
};

} // namespace varnoth::bench
