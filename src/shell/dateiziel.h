#pragma once

#include "dateidialog.h"

#include <optional>
#include <string>

namespace varnoth {

/// Asks for a file to save to until the path is free or may be replaced, with the dialog preset to what was
/// chosen before. The path (UTF-8), or nothing when the dialog was cancelled.
std::optional<std::string> FrageNachZiel(Dateifrage frage);

/// The folder part of a path, with its separator; empty where it has none.
std::string Ordner(const std::string& pfad);

/// Asks where a document is to go and puts it there, an older file being replaced as a whole or not at all.
/// Questions and messages are shown; the folder is remembered for the next document. True when it is saved.
bool SpeichereDokument(const std::string& filter, const std::string& name, const std::string& bytes);

/// Where a document was saved or read last; empty = nowhere yet.
std::string Dokumentordner();
/// Remembers the folder of a document.
void MerkeDokumentordner(const std::string& pfad);

} // namespace varnoth
