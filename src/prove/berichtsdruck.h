#pragma once

#include "berichtsseiten.h"

#include <QByteArray>
#include <QPagedPaintDevice>
#include <QString>

namespace varnoth {

constexpr int Pdfaufloesung = 600; ///< points per inch

/// Paints all pages on a device. False when the device cannot be painted on.
bool Drucke(const Berichtsdruck& druck, QPagedPaintDevice& geraet);

/// The pages (A4) as a PDF file; empty when it could not be made.
QByteArray AlsPdf(const Berichtsdruck& druck, const QString& titel);

} // namespace varnoth
