#include "seiteneinrichtung.h"

#include <QPagedPaintDevice>

namespace varnoth {

void RichteSeiteEin(QPagedPaintDevice& geraet, QPageLayout::Orientation lage) {
    constexpr double Randbreite = 15; // mm
    geraet.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), lage,
                                     QMarginsF(Randbreite, Randbreite, Randbreite, Randbreite),
                                     QPageLayout::Millimeter));
}

} // namespace varnoth
