#pragma once

#include "terminal.h"

#include <string>
#include <string_view>

namespace varnoth::ctl {

/// A text (UTF-8) in the characters that there are; for others stands what a person would write instead
/// ("ae", "..."), or "?".
std::string FuerVorrat(std::string_view text, Zeichenvorrat vorrat);

/// A word of the command line as UTF-8: bytes that are none count as Windows-1252.
std::string WortAlsUtf8(std::string_view wort);

/// How many characters a text (UTF-8) takes in a line.
int Anzeigebreite(std::string_view text);

/// The text without what lies behind so many characters.
std::string_view Gekuerzt(std::string_view text, int breite);

/// The text with blanks behind it up to so many characters.
std::string Aufgefuellt(std::string_view text, int breite);

} // namespace varnoth::ctl
