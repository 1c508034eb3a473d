#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace varnoth {

/// The language offsets: what is added to a string id when its text is fetched.
inline constexpr std::int16_t Deutsch = 0;
inline constexpr std::int16_t Englisch = 10000;

/// Titles of message boxes: the program's, and that of what needs attention.
inline constexpr std::int16_t TextProgrammtitel = 6000;
inline constexpr std::int16_t TextAchtung = 6109;

/// The current language offset.
std::int16_t GetSprachoffset();
/// Sets the language offset. Other values than Deutsch and Englisch are kept as they are and find no texts.
void SetzeSprachoffset(std::int16_t offset);

/// The text (UTF-8) of a string id in the current language; empty for an id that the table does not have.
const std::string& LadeText(std::int16_t id);

/// The text of a string id in the given language.
const std::string& LadeText(std::int16_t id, std::int16_t sprache);

/// All ids of the table, German and English, in rising order.
std::span<const std::int16_t> AlleTextIds();

} // namespace varnoth
