#pragma once

#include "dateien.h"

#include <QFileInfo>
#include <QString>

#include <string>
#include <string_view>

/// What reading and writing whole files needs of the system. Errors are texts (UTF-8), empty when all went
/// well.
namespace varnoth::dateizugriff {

/// Why the path is no place for a file; empty when it is one or nothing is there yet.
std::string Hindernis(const QString& pfad);

/// Reads a file from its beginning, at most so many bytes.
Leseergebnis Lies(const QString& pfad, std::size_t hoechstens);

/// Makes a new file with these bytes and, as far as the system offers it, the rights of an old one that it is
/// to replace; the disk holds it then. After an error nothing is left of it.
std::string LegeGefuellteAn(const QString& pfad, std::string_view bytes, const QFileInfo& alte);

/// Gives a file another's name in one step, and that one's place where it is there; the disk holds the name
/// then. On Windows another program that has it open for a moment is waited for, a second at most.
std::string BenenneUm(const QString& von, const QFileInfo& nach);

/// Appends, as HaengeAnDatei does.
Anhaengeergebnis HaengeAn(const QString& pfad, std::string_view bytes, std::size_t hoechstens);

/// Removes a file; one that is not there is none to remove.
std::string Entferne(const QString& pfad);

/// Whether two paths lead to the same file, folder or device that is there.
bool IstDieselbe(const QString& eine, const QString& andere);

} // namespace varnoth::dateizugriff
