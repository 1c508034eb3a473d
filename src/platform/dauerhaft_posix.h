#pragma once

#include <QFile>
#include <QString>

#include <string>

namespace varnoth {

/// Waits until the disk itself holds what was written to an open file.
/// @return the system's error text, empty when all went well or the file system knows no such thing
std::string BringeAufDatentraeger(const QFile& datei);

/// The same for the names in a folder, as far as the system offers it.
void BringeOrdnerAufDatentraeger(const QString& ordner);

} // namespace varnoth
