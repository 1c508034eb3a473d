#pragma once

#include <QPageLayout>

class QPagedPaintDevice;

namespace varnoth {

/// Makes A4 with margins of 15 mm of a device's pages.
void RichteSeiteEin(QPagedPaintDevice& geraet, QPageLayout::Orientation lage = QPageLayout::Portrait);

} // namespace varnoth
