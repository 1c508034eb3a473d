#pragma once

#include "lesart.h"
#include "werte.h"

#include <optional>
#include <string>
#include <string_view>

/// Texts, dates and versions of the controller in words, and back. What is all 0 is "unknown". Values that no
/// text, date or version has give nothing, as do words of another form.
namespace varnoth {

/// The two characters of each register, without the blanks at the end. A text with control characters, or
/// with a blank at its beginning, has no words.
std::optional<std::string> TextAlsWorte(const Werte& werte, const Lesart& lesart);
/// The registers of a text, filled up with blanks; nothing for one that is longer, or has characters that the
/// controller's character set lacks.
std::optional<Werte> TextAusWorten(std::string_view worte, std::size_t anzahl);

/// The date of four registers with two digits each: 13.05.2009 or 05/13/2009.
std::optional<std::string> DatumAlsWorte(const Werte& werte, const Lesart& lesart);
/// The registers of a date in either way of writing.
std::optional<Werte> DatumAusWorten(std::string_view worte);

/// A version: 2.3.
std::optional<std::string> VersionAlsWorte(const Werte& werte, const Lesart& lesart);
std::optional<Werte> VersionAusWorten(std::string_view worte);

} // namespace varnoth
