#pragma once

#include <QString>
#include <QStringList>

namespace varnoth {

/// Whether this is a folder, and no link to one, that belongs to this user and that nobody else may enter. On
/// Windows: that nobody else but the computer's administrators may write.
bool GehoertNurMir(const QString& ordner);

/// Makes a folder of that kind. Nothing that is there already is touched: what others put in the way stays
/// theirs.
void LegeEigenenOrdnerAn(const QString& ordner);

/// The first of the folders that belongs to this user alone; one that is missing is made so, if that is
/// possible. Empty when none serves.
QString ErsterEigenerOrdner(const QStringList& kandidaten);

/// Where the files of a running program lie that others must not tamper with: the session's folder, else one
/// of this user's own in the temporary folder, else in the user's cache; on Windows one in %LOCALAPPDATA%,
/// else in the temporary folder. Empty when none serves.
QString LaufzeitOrdner();

} // namespace varnoth
