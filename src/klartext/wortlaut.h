#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What counts in words that a person may have typed.
namespace varnoth {

/// The words without blanks, ASCII letters small, a decimal comma as point: what is equal in this form means
/// the same.
std::string Wortkern(std::string_view worte);

/// The text without the blanks and tabs at both ends.
std::string_view OhneRand(std::string_view text);

/// The parts between the separators, each without the blanks at its ends. An empty text has one empty part.
std::vector<std::string_view> Zerlege(std::string_view text, char trenner);

/// The decimal number that makes up the whole text, without sign, 0..`groesste`.
std::optional<std::int32_t> ZahlAus(std::string_view text, std::int32_t groesste);

} // namespace varnoth
