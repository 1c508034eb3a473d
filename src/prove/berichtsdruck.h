#pragma once

#include "seiteneinrichtung.h"

#include <QByteArray>
#include <QPagedPaintDevice>
#include <QString>

#include <string>

namespace varnoth {

/// A report as it goes to paper.
struct Berichtsdruck {
    QString html;
    QString fuss;      ///< at the foot of each page, beside its number
    QString seitewort; ///< "Seite %1 von %2"
};

/// Paints all pages on a device, black on white whatever the colours of the screen. False when the device
/// cannot be painted on.
bool Drucke(const Berichtsdruck& druck, QPagedPaintDevice& geraet);

/// The pages (A4) as a PDF file; empty when it could not be made.
QByteArray AlsPdf(const Berichtsdruck& druck, const QString& titel);

} // namespace varnoth
