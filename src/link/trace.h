#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// The byte trace: an optional file with every byte that went over the line.
namespace varnoth::modTrace {

/// The trace file's name, in the current directory.
inline constexpr const char* Dateiname = "Test.txt";

/// Deletes an old trace file, opens a new one, which only the user may read, and writes its first line.
/// @return empty, or the error's description when the file cannot be opened or written; nothing is traced
/// then
std::string Starte(const std::filesystem::path& datei);
/// Closes the trace file; tracing ends.
void Schliesse();
/// Whether bytes are traced.
bool Aktiv();

/// A line with the bytes that were read, each in hexadecimal without leading zeros, followed by "H ".
void SchreibeLesung(std::string_view bytes);
/// The same for bytes that were sent.
void SchreibeSendung(std::string_view bytes);
/// The mark of a cleared port, without a line end. A file above 1000000 bytes is closed here, after a line
/// that says so and with a message to the user; so is one that could no longer be written, with the reason.
void SchreibeLeerung();
/// The line of a time-out.
void SchreibeZeitueberschreitung();

} // namespace varnoth::modTrace
