#pragma once

#include <QString>

#include <string>

namespace varnoth {

/// Makes a folder (UTF-8 path) with all above it. Gives the POSIX error number, 0 when it is there.
int LegeOrdnerAn(const std::string& pfad);

/// Whether the program's own files may lie in a folder that is there. Below the folders of installed programs
/// on Windows they may not, not even where this user could write.
bool IstBeschreibbar(const QString& ordner);

/// The folder where the system keeps settings of this user: ~/.config, on Windows %APPDATA%.
QString Einstellungsordner();

} // namespace varnoth
