#pragma once

#include "dateideskriptor.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace varnoth::simulator {

/// Whether the path is a symbolic link, wherever it leads.
bool IstVerweis(const std::filesystem::path& pfad);

/// Opens a file to write from its beginning; one that is made is readable by its owner alone. No descriptor,
/// with the reason in errno, where that fails or the path is a symbolic link.
Dateideskriptor OeffneZumSchreiben(const std::filesystem::path& pfad);

/// Writes the whole text. False, with the reason in errno, when the file does not take it.
bool SchreibeAlles(const Dateideskriptor& datei, std::string_view text);

/// Reads a file whole. False where it cannot be read or the path is a symbolic link.
bool LiesAlles(const std::filesystem::path& pfad, std::string& inhalt);

} // namespace varnoth::simulator
